// Writes the seeds that are no text, each into the folder of its target under the folder given.

#include <fstream>
#include <iterator>
#include <string>

#include "support/TemporaryFolder.h"
#include "support/sheets/OldWorkbook.h"
#include "support/sheets/WorkbookFiles.h"

namespace lorvane {
namespace {

std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void WriteSeeds(const std::string& folder) {
  constexpr std::size_t kStreamAt = 1536;
  const auto put = [&](const char* name, char kind, const std::string& bytes) {
    std::ofstream(folder + "/" + name, std::ios::binary) << kind << bytes;
  };
  OldWorkbook old;
  old.AddText(0, 0, "C\xF4t\xE9");
  old.AddNumber(0, 1, 46027, true);
  old.AddFormula(1, 0, 2.5);
  old.AddFormula(1, 1, "text");
  old.AddFlag(2, 0, true);
  put("xls/file", '\0', old.Bytes());
  put("xls/stream", '\1', old.Bytes().substr(kStreamAt));
  const TemporaryFolder temporary;
  const std::string file = temporary.File("sheet");
  WriteXlsx(file, {{"text", 1.0, true, DateTime{2026, 1, 5}}});
  put("xlsx/file", '\0', BytesOf(file));
  WriteZip(file, OdsEntries({"<table:table-row/>"}, "Sheet1"));
  put("ods/file", '\0', BytesOf(file));
}

}  // namespace
}  // namespace lorvane

int main(int count, char** arguments) {
  if (count != 2) {
    return 2;
  }
  lorvane::WriteSeeds(arguments[1]);
  return 0;
}
