// Whatever a file holds, reading it as a spreadsheet gives cells or a refusal. The first byte tells
// where the rest goes, of what LORVANE_FUZZ_KINDS names: it is the whole file, or what lies under
// the wrapping of a workbook.

#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include "basic/RuntimeError.h"
#include "import/sheet/Spreadsheet.h"
#include "support/sheets/OldWorkbook.h"
#include "support/sheets/WorkbookFiles.h"

namespace lorvane {
namespace {

enum class Kind : std::uint8_t { kFile, kXlsxSheet, kXlsxStyles, kXlsxTexts, kOds, kXls };
using enum Kind;

constexpr std::array kKinds{LORVANE_FUZZ_KINDS};

std::string Path() {
  return std::filesystem::temp_directory_path() / ("lorvane-fuzz." + std::to_string(getpid()));
}

void Replace(ZipEntries& entries, const std::string& name, const std::string& bytes) {
  for (auto& [entry, content] : entries) {
    if (entry == name) {
      content = bytes;
    }
  }
}

void WritePart(const std::string& path, const std::string& name, const std::string& bytes) {
  ZipEntries entries =
      XlsxEntries({"<row><c t=\"s\" s=\"1\"><v>0</v></c><c s=\"2\"><v>7</v></c></row>"});
  Replace(entries, name, bytes);
  WriteZip(path, entries);
}

void Write(const std::string& path, Kind kind, const std::string& bytes) {
  switch (kind) {
    case Kind::kXlsxSheet:
      return WriteZip(path, XlsxEntries({bytes}));
    case Kind::kXlsxStyles:
      return WritePart(path, "xl/styles.xml", bytes);
    case Kind::kXlsxTexts:
      return WritePart(path, "xl/sharedStrings.xml", bytes);
    case Kind::kOds:
      return WriteZip(path, OdsEntries({bytes}));
    case Kind::kXls:
      std::ofstream(path, std::ios::binary) << CompoundFileOf("Workbook", bytes);
      return;
    case Kind::kFile:
      break;
  }
  std::ofstream(path, std::ios::binary) << bytes;
}

}  // namespace
}  // namespace lorvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace lorvane;
  constexpr std::size_t kLongest = 60000;
  if (size == 0 || size > kLongest) {
    return 0;
  }
  const std::string bytes(data + 1, data + size);
  static const std::string path = Path();
  Write(path, kKinds[data[0] % kKinds.size()], bytes);
  try {
    const Spreadsheet sheet = ReadSpreadsheet(path);
    for (std::size_t row = 1; row <= sheet.RowCount(); ++row) {
      for (std::size_t column = 1; column <= sheet.ColumnCount(row); ++column) {
        static_cast<void>(CellText(sheet.Cell(row, column)));
      }
    }
  } catch (const RuntimeError&) {
    return 0;
  }
  return 0;
}
