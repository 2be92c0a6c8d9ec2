#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "reports/ReportExports.h"
#include "support/TemporaryFolder.h"

namespace lorvane {
namespace {

ReportDocument MakeReport() {
  ReportDocument report;
  report.title = "A [Report]: with *odd* letters?";
  ReportSection& section = report.sections.emplace_back();
  section.columns = {{"Payee", ReportFormat::kText, 60, true},
                     {"Day", ReportFormat::kDate},
                     {"Amount, in $", ReportFormat::kMoney},
                     {"Rate", ReportFormat::kNumber}};
  section.rows = {{ReportRow::Kind::kGroup, {}, "Only on pages"},
                  {ReportRow::Kind::kDetail,
                   {std::string("The \"Tern\", Ltd\nDigby"), DateTime{2026, 2, 3},
                    Currency::FromTenThousandths(9'007'199'254'740'993'050), 2.355},
                   {}},
                  {ReportRow::Kind::kDetail,
                   {std::string("Auk"), DateTime{2026, 2, 3, 4, 5, 6},
                    Currency::FromTenThousandths(-50), Value()},
                   {}},
                  {ReportRow::Kind::kTotal,
                   {Value(), Value(), Currency::FromTenThousandths(-49), Value()},
                   "Total of 2"}};
  report.sections.push_back(section);
  return report;
}

TEST(ReportExports, CsvKeepsAmountsExactAndQuotesWhatNeedsIt) {
  const std::string table =
      "Payee,Day,\"Amount, in $\",Rate\n"
      "\"The \"\"Tern\"\", Ltd\nDigby\",2026-02-03,900719925474099.31,2.355\n"
      "Auk,2026-02-03T04:05:06,-0.01,\n"
      "Total of 2,,0.00,\n";
  EXPECT_EQ(ReportAsCsv(MakeReport()), table + "\n" + table);
  EXPECT_EQ(ReportAsCsv(ReportDocument()), "");
}

TEST(ReportExports, AWorkbookLeavesNothingBehind) {
  const TemporaryFolder folder;
  setenv("TMPDIR", folder.Path().c_str(), 1);
  const std::string workbook = ReportAsXlsx(MakeReport());
  EXPECT_TRUE(workbook.starts_with("PK"));
  // A sheet for each of the two tables, though they bear the same name.
  EXPECT_NE(workbook.find("xl/worksheets/sheet2.xml"), std::string::npos);
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
  setenv("TMPDIR", (folder.Path() + "/gone").c_str(), 1);
  EXPECT_ANY_THROW(static_cast<void>(ReportAsXlsx(MakeReport())));
  unsetenv("TMPDIR");
}

}  // namespace
}  // namespace lorvane
