// Importing a sheet of 10,000 employees, and a bare reading of the same sheet's XML with the bare
// inserts in one transaction.

#include <expat.h>
#include <fmt/format.h>
#include <xlsxwriter.h>
#include <zip.h>

#include <array>
#include <iostream>
#include <stdexcept>
#include <string>

#include "BareFile.h"
#include "CompanyFiles.h"
#include "Comparison.h"
#include "OpenCompany.h"
#include "basic/Text.h"
#include "import/ImportFromExcel.h"

namespace lorvane {
namespace {

constexpr int kPeople = 10'000;

bool WriteSheet(const std::string& path) {
  lxw_workbook* book = workbook_new(path.c_str());
  lxw_worksheet* sheet = workbook_add_worksheet(book, nullptr);
  for (int row = 0; row < kPeople; ++row) {
    const auto at = static_cast<lxw_row_t>(row);
    const std::array<std::string, 4> cells{fmt::format("{:03}-{:03}-286", row / 1000, row % 1000),
                                           fmt::format("Boutilier{}", row),
                                           fmt::format("Réjean {}", row % 97), "M"};
    for (std::size_t column = 0; column < cells.size(); ++column) {
      worksheet_write_string(sheet, at, static_cast<lxw_col_t>(column), cells.at(column).c_str(),
                             nullptr);
    }
  }
  return workbook_close(book) == LXW_NO_ERROR;
}

double Ours(const CompanyFiles& files, const std::string& sheet) {
  OpenCompany company(files.FreshCopy());
  DataConnection& connection = *company.GetSession().gDataConn;
  ImportOutcome outcome;
  const double seconds =
      SecondsOf([&] { outcome = ImportFromExcel(connection, sheet, 4, EmployeeTarget()); });
  if (outcome.rows != kPeople || !outcome.refused.empty()) {
    throw std::runtime_error("the sheet wasn't imported");
  }
  return seconds;
}

// Unpacks and parses the two parts that matter, and does nothing with what they hold.
std::size_t ParsePart(zip_t* archive, const char* name) {
  constexpr std::size_t kBlock = 65536;
  zip_file_t* part = zip_fopen(archive, name, 0);
  XML_Parser parser = XML_ParserCreateNS(nullptr, '|');
  std::size_t characters = 0;
  XML_SetUserData(parser, &characters);
  XML_SetCharacterDataHandler(parser, [](void* sum, const char* /*text*/, int length) {
    *static_cast<std::size_t*>(sum) += static_cast<std::size_t>(length);
  });
  std::array<char, kBlock> block{};
  for (zip_int64_t count = 1; count > 0;) {
    count = zip_fread(part, block.data(), block.size());
    XML_Parse(parser, block.data(), static_cast<int>(count), count == 0 ? 1 : 0);
  }
  XML_ParserFree(parser);
  zip_fclose(part);
  return characters;
}

double Bare(const CompanyFiles& files, const std::string& sheet) {
  BareFile file(files.FreshCopy());
  return SecondsOf([&] {
    zip_t* archive = zip_open(sheet.c_str(), ZIP_RDONLY, nullptr);
    if (ParsePart(archive, "xl/sharedStrings.xml") == 0 ||
        ParsePart(archive, "xl/worksheets/sheet1.xml") == 0) {
      throw std::runtime_error("the sheet wasn't read");
    }
    zip_discard(archive);
    file.Run("BEGIN IMMEDIATE");
    for (int row = 0; row < kPeople; ++row) {
      file.Run(fmt::format(
          "INSERT INTO tblEmployees (SIN, LastName, FirstName, Initial, IndA, MaxContrib) VALUES "
          "('{:03}-{:03}-286', 'Boutilier{}', 'Réjean {}', 'M', -1, 40500.0)",
          row / 1000, row % 1000, row, row % 97));
    }
    file.Run(fmt::format("UPDATE tblTableIDs SET NextId = {} WHERE TableName = 'tblEmployees'",
                         kPeople));
    file.Run("COMMIT");
  });
}

}  // namespace
}  // namespace lorvane

int main(int argc, char** argv) {
  using namespace lorvane;
  const CompanyFiles files(0, 0);
  const std::string sheet = GetPathPart(files.FreshCopy()) + "../people.xlsx";
  if (!WriteSheet(sheet)) {
    std::cerr << sheet << " can't be written\n";
    return 1;
  }
  return RunComparison(argc, argv,
                       {"importing a sheet of 10,000 employees", [&] { return Ours(files, sheet); },
                        [&] { return Bare(files, sheet); }});
}
