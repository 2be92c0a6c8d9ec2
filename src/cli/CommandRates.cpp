#include <iostream>
#include <utility>

#include "basic/Number.h"
#include "basic/Text.h"
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "company/RateSheet.h"
#include "company/RateTables.h"
#include "import/sheet/Spreadsheet.h"
#include "reports/ReportExports.h"

namespace lorvane {
namespace {

// Rows as ReadRateSheet takes them, whatever kind of file they stood in.
std::vector<SheetRow> RowsOf(const std::string& path) {
  const Spreadsheet sheet = ReadSpreadsheet(path);
  std::vector<SheetRow> rows;
  for (std::size_t row = 1; row <= sheet.RowCount(); ++row) {
    SheetRow& taken = rows.emplace_back(SheetRow{row, {}});
    for (std::size_t column = 1; column <= sheet.ColumnCount(row); ++column) {
      taken.cells.push_back(CellText(sheet.Cell(row, column)));
    }
  }
  return rows;
}

std::vector<PublishedRate> RatesOfSheet(const std::string& path) {
  RateSheet sheet = ReadRateSheet(RowsOf(path));
  const std::string name = GetNamePart(path);
  for (const std::string& fault : sheet.faults) {
    std::cerr << name << ", " << fault << '\n';
  }
  if (!sheet.faults.empty()) {
    throw CommandFailure("'" + path +
                         "' can't be brought in: " + std::to_string(sheet.faults.size()) +
                         " of its cells are wrong. Nothing was changed.");
  }
  if (sheet.rates.empty()) {
    throw CommandFailure("'" + path + "' holds no rates; a row is \"code,description,rate\".");
  }
  return std::move(sheet.rates);
}

std::string Described(const PublishedRate& rate) {
  return rate.description + ", " + ShortestText(rate.rate);
}

void PrintChanges(const RateChanges& changes) {
  for (const PublishedRate& rate : changes.added) {
    std::cout << "added    " << rate.code << "  " << Described(rate) << '\n';
  }
  for (const auto& [before, after] : changes.changed) {
    std::cout << "changed  " << after.code << "  " << Described(before) << " -> "
              << Described(after) << '\n';
  }
  for (const PublishedRate& rate : changes.removed) {
    std::cout << "removed  " << rate.code << "  " << Described(rate) << '\n';
  }
  std::cout << changes.added.size() << " added, " << changes.changed.size() << " changed, "
            << changes.removed.size() << " removed, " << changes.unchanged << " unchanged."
            << std::endl;
}

}  // namespace

int RunRatesList(const CommandOptions& options) {
  CommandProgram program(options);
  RateTables tables(program.GetSession());
  for (const int year : tables.Years()) {
    std::cout << year << ": " << tables.Read(std::to_string(year)).size() << " rates\n";
  }
  return 0;
}

int RunRatesExport(const CommandOptions& options, const std::string& yearText) {
  const int year = YearOfArgument(yearText);
  CommandProgram program(options);
  RateTables tables(program.GetSession());
  if (!tables.Has(year)) {
    throw CommandFailure("There are no rates for " + yearText + ".");
  }
  std::cout << CsvLine({"SIC", "Description", "Rate"}) << '\n';
  for (const PublishedRate& rate : tables.Read(yearText)) {
    std::cout << CsvLine({rate.code, rate.description, ShortestText(rate.rate)}) << '\n';
  }
  return 0;
}

int RunRatesImport(const CommandOptions& options, const std::string& yearText,
                   const std::string& path) {
  const int year = YearOfArgument(yearText);
  const std::vector<PublishedRate> rates = RatesOfSheet(path);
  CommandProgram program(options);
  RateTables tables(program.GetSession());
  const RateChanges changes =
      CompareRates(tables.Has(year) ? tables.Read(yearText) : std::vector<PublishedRate>(), rates);
  PrintChanges(changes);
  if (changes.None()) {
    return 0;
  }
  if (program.Services().MsgBox(
          "The rates for " + yearText + " will be as in the sheet.\r\n\r\nDo you wish to continue?",
          box::kYesNo | box::kQuestion, "Rates") != answer::kYes) {
    return program.Refused();
  }
  tables.Replace(year, rates);
  std::cout << "Brought " << rates.size() << " rates in for " << yearText << ".\n";
  return 0;
}

}  // namespace lorvane
