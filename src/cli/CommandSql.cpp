#include <iostream>

#include "basic/Text.h"
#include "cli/Commands.h"
#include "cli/Statements.h"
#include "reports/ReportExports.h"

namespace lorvane {
namespace {

void PrintRows(const ResultTable& table) {
  std::vector<std::string> cells;
  for (const Column& column : table.columns) {
    cells.push_back(column.name);
  }
  std::cout << CsvLine(cells) << '\n';
  for (const std::vector<Value>& row : table.rows) {
    cells.clear();
    for (const Value& value : row) {
      cells.push_back(ListingTextOf(value));
    }
    std::cout << CsvLine(cells) << '\n';
  }
}

}  // namespace

int RunSql(const CommandOptions& options, const std::string& typed) {
  const std::string statement = ToUtf8(typed);
  CommandProgram program(options);
  program.OpenFile();
  if (IsSelect(statement)) {
    PrintRows(program.Connection().Query(statement));
  } else {
    std::cout << program.Connection().Execute(statement) << " rows affected\n";
  }
  return 0;
}

}  // namespace lorvane
