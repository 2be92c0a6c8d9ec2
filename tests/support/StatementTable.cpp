#include "support/StatementTable.h"

#include <fstream>
#include <sstream>

namespace lorvane {

std::vector<StatementLine> ReadStatements(const std::string& path) {
  std::ifstream file(std::string(LORVANE_TESTS_FOLDER "/") + path);
  EXPECT_TRUE(file.is_open()) << path;
  std::vector<StatementLine> lines;
  for (std::string text; std::getline(file, text);) {
    const std::size_t bar = text.find('|');
    StatementLine line;
    std::istringstream head(text.substr(0, bar));
    head >> line.verb;
    for (std::int32_t& filter : line.filters) {
      head >> filter;
    }
    line.statement = text.substr(bar + 1, text.rfind('|') - bar - 1);
    lines.push_back(line);
  }
  return lines;
}

RecordingTest::RecordingTest()
    : connection_({&engine_, "/program", [] { return DateTime{2026, 1, 5, 10, 0, 0}; }}) {
  connection_.DataOpen();
}

}  // namespace lorvane
