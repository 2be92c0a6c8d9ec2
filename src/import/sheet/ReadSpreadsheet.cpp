#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <string_view>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "import/sheet/CsvFile.h"
#include "import/sheet/SheetFailure.h"
#include "import/sheet/SheetReaders.h"

namespace lorvane {
namespace {

constexpr std::string_view kZipMark("PK\x03\x04", 4);
constexpr std::string_view kCompoundMark("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);
// How files begin that people take for spreadsheets, in capitals.
constexpr std::array<std::string_view, 6> kOtherKinds{"<?XML",  "<!DOCTYPE", "<HTML",
                                                      "<TABLE", "%PDF",      "{\\RTF"};

std::string BeginningOf(const std::string& path) {
  constexpr std::size_t kEnough = 16;
  std::string bytes(kEnough, '\0');
  std::ifstream file(path, std::ios::binary);
  file.read(bytes.data(), kEnough);
  bytes.resize(static_cast<std::size_t>(file.gcount()));
  return bytes;
}

void RequireFile(const std::string& path) {
  std::error_code ignored;
  if (!std::filesystem::exists(path, ignored)) {
    throw RuntimeError(error_number::kFileNotFound, fmt::format("There is no file '{}'.", path));
  }
  // The readers go through it more than once.
  if (!std::filesystem::is_regular_file(path, ignored)) {
    RefuseSheet(path, "can't be read: it is no file on a disk.");
  }
}

void RequireSmallFile(const std::string& path) {
  constexpr std::uintmax_t kMaxBytes = 64U << 20U;
  std::error_code failed;
  const std::uintmax_t size = std::filesystem::file_size(path, failed);
  if (failed || size > kMaxBytes) {
    RefuseSheet(path, failed ? "can't be read."
                             : fmt::format("is larger than {} megabytes.", kMaxBytes >> 20U));
  }
}

Spreadsheet ReadZipped(const std::string& path) {
  RequireSmallFile(path);
  ZipFile archive(path);
  const std::string kind = archive.ReadShort("mimetype");
  if (kind.starts_with("application/vnd.oasis.opendocument.spreadsheet")) {
    return ReadOds(archive);
  }
  if (!kind.empty()) {
    RefuseSheet(path, "is no spreadsheet.");
  }
  return ReadXlsx(archive);
}

Spreadsheet ReadText(const std::string& path) {
  const CsvFile file = CsvFile::Read(path, CsvBlanks::kKept);
  Spreadsheet sheet;
  for (const CsvRow& row : file.Rows()) {
    for (std::size_t place = 0; place < row.cells.size(); ++place) {
      sheet.SetCell(row.number, place + 1, row.cells[place]);
    }
  }
  return sheet;
}

}  // namespace

Spreadsheet ReadSpreadsheet(const std::string& path) {
  RequireFile(path);
  const std::string beginning = BeginningOf(path);
  if (beginning.starts_with(kZipMark)) {
    return ReadZipped(path);
  }
  if (beginning.starts_with(kCompoundMark)) {
    RequireSmallFile(path);
    return ReadXls(path);
  }
  const std::string capitals = ToUpper(ToUtf8(beginning));
  if (std::any_of(kOtherKinds.begin(), kOtherKinds.end(),
                  [&](std::string_view kind) { return capitals.starts_with(kind); })) {
    RefuseSheet(path, "is no spreadsheet. Please save it as .xlsx, .ods or .csv first.");
  }
  return ReadText(path);
}

}  // namespace lorvane
