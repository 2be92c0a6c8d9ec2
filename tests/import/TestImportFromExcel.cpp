#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "import/ImportFromExcel.h"
#include "import/ImportPreview.h"
#include "import/ImportReport.h"
#include "import/frmImport.h"
#include "support/FaultyVfs.h"
#include "support/RowsText.h"
#include "support/TestCompany.h"
#include "support/sheets/OldWorkbook.h"
#include "support/sheets/WorkbookFiles.h"

namespace lorvane {
namespace {

using testing::HasSubstr;
using End = ImportOutcome::End;

class SheetImport : public testing::Test {
 protected:
  [[nodiscard]] std::string Sheet() const { return company_.Folder() + "/people"; }
  [[nodiscard]] ImportOutcome Import(const ImportTarget& target, int columns,
                                     const ImportWishes& wishes = {}) {
    return ImportFromExcel(*company_.GetSession().gDataConn, Sheet(), columns, target, wishes);
  }
  [[nodiscard]] std::string Employees() {
    return RowsText(company_.Connection(),
                    "SELECT Sin, LastName, FirstName, Initial FROM tblEmployees");
  }
  [[nodiscard]] std::string NextId(const std::string& table) {
    return company_.First("SELECT NextId FROM tblTableIDs WHERE TableName = '" + table + "'");
  }

  TestCompany company_;
};

TEST_F(SheetImport, StoresCellsAsTextsWhateverTheyAre) {
  WriteXlsx(Sheet(),
            {{46454286.0, "Côté", DateTime{2026, 1, 5}, true}, {"1", false, 0.1, "Élodie"}});
  EXPECT_EQ(Import(EmployeeTarget(), 4).rows, 2);
  // A cell with an error has nothing to store, but is no gap.
  WriteZip(Sheet(), XlsxEntries({"<row><c t=\"e\"><v>#N/A</v></c><c t=\"b\"><v>1</v></c></row>"}));
  EXPECT_EQ(Import(EmployeeTarget(), 2).rows, 1);
  EXPECT_EQ(Employees(), "46454286|Côté|1/5/2026|T;1|False|0.1|É;|True||");
}

TEST_F(SheetImport, ReadsEveryKindOfFileAlike) {
  const auto cell = [](const std::string& text) {
    return "<table:table-cell office:value-type=\"string\"><text:p>" + text +
           "</text:p></table:table-cell>";
  };
  WriteXlsx(Sheet(), {{"1", "LeBlanc"}});
  EXPECT_EQ(Import(EmployeeTarget(), 2).rows, 1);
  WriteZip(Sheet(),
           OdsEntries({"<table:table-row>" + cell("1") + cell("LeBlanc") + "</table:table-row>"}));
  EXPECT_EQ(Import(EmployeeTarget(), 2).rows, 1);
  OldWorkbook old;
  old.AddText(0, 0, "1");
  old.AddText(0, 1, "LeBlanc");
  old.Write(Sheet());
  EXPECT_EQ(Import(EmployeeTarget(), 2).rows, 1);
  std::ofstream(Sheet()) << "1\tLeBlanc\n";
  EXPECT_EQ(Import(EmployeeTarget(), 2).rows, 1);
  EXPECT_EQ(Employees(), "1|LeBlanc||;1|LeBlanc||;1|LeBlanc||;1|LeBlanc||");
}

TEST_F(SheetImport, TakesTheFirstRowAsDataAndStopsAtABlankFirstCell) {
  WriteXlsx(Sheet(), {{"SIN", "Last name"}, {"1"}, {std::monostate(), "behind"}, {"2"}});
  const ImportOutcome outcome = Import(EmployeeTarget(), 2);
  EXPECT_EQ(outcome.end, End::kImported);
  EXPECT_EQ(outcome.rows, 2);
  EXPECT_EQ(Employees(), "SIN|Last name||;1|||");
  WriteXlsx(Sheet(), {{}, {"1"}});
  EXPECT_EQ(Import(EmployeeTarget(), 2).end, End::kNoData);
  WriteXlsx(Sheet(), {{"1"}});
  EXPECT_EQ(Import(EmployeeTarget(), 0).end, End::kNoData);
  EXPECT_EQ(RowsText(company_.Connection(), "SELECT Count(*) AS Rows FROM tblEmployees"), "2");
}

// Columns are counted on the first thousand rows, each up to its first gap.
TEST_F(SheetImport, CountsTheWidestRow) {
  SheetRows rows(1000, {"1", "2", std::monostate(), "4"});
  rows.push_back({"1", "2", "3"});
  WriteXlsx(Sheet(), rows);
  const ImportOutcome narrow = Import(EmployeeTarget(), 3);
  EXPECT_EQ(narrow.end, End::kMissingColumns);
  EXPECT_EQ(narrow.columns, 2);
  rows[999] = {"1", "2", "3", "4", "5", "6", "7", "8"};
  WriteXlsx(Sheet(), rows);
  // More columns than the layout has fall on fields that get their defaults.
  EXPECT_EQ(Import(EmployeeTarget(), 8).rows, 1001);
  EXPECT_EQ(RowsText(company_.Connection(),
                     "SELECT Count(*) AS Rows FROM tblEmployees WHERE MaxContrib = 40500 AND IndA "
                     "= -1"),
            "1001");
}

TEST_F(SheetImport, GivesTheLastKeyToTheCounterWhileItFits) {
  WriteXlsx(Sheet(), {{"1", "A"}, {"2", "B"}});
  EXPECT_EQ(Import(SubContractorTarget(), 2).rows, 2);
  EXPECT_EQ(NextId("tblSubContract"), "2");
  company_.Execute("INSERT INTO tblSubContract (SubContractId, Name) VALUES (32765, 'Tern')");
  EXPECT_EQ(Import(SubContractorTarget(), 2).rows, 2);
  EXPECT_EQ(NextId("tblSubContract"), "32767");
  EXPECT_EQ(Import(SubContractorTarget(), 2).rows, 2);
  EXPECT_EQ(NextId("tblSubContract"), "32767");
  EXPECT_EQ(NextId("tblEmployees"), "0");
}

TEST_F(SheetImport, TellsOfRowsThatTheTableRefuses) {
  company_.Execute("ALTER TABLE tblEmployees ALTER COLUMN LastName TEXT(5)");
  WriteXlsx(Sheet(), {{"1", "Short"}, {"2", "Too long"}, {"3", "Short"}});
  std::vector<std::size_t> taken;
  ImportWishes wishes;
  wishes.onTaken = [&](std::size_t place) { taken.push_back(place); };
  const ImportOutcome outcome = Import(EmployeeTarget(), 2, wishes);
  EXPECT_EQ(outcome.rows, 3);
  EXPECT_EQ(taken.size(), 6U);
  ASSERT_EQ(outcome.refused.size(), 1U);
  EXPECT_EQ(outcome.refused[0].row, 2U);
  EXPECT_EQ(Employees(), "1|Short||;3|Short||");
  EXPECT_EQ(NextId("tblEmployees"), "2");
  EXPECT_EQ(DescribeOutcome(outcome), "1 row was not taken in.");
  EXPECT_THAT(RefusedReport(outcome.refused), HasSubstr("Row,Reason\r\n2,\"The text \"\"Too long"));
}

TEST_F(SheetImport, PassesOverPeopleOnFileWhenWished) {
  company_.Execute("INSERT INTO tblEmployees (EmployeeId, Sin) VALUES (1, '046 454 286')");
  WriteXlsx(Sheet(), {{"046-454-286", "On file"},
                      {"123-456-782", "New"},
                      {"123456782", "Twice"},
                      {"-", "No number"},
                      {"-", "No number"}});
  const ImportPreview preview =
      PreviewImport(*company_.GetSession().gDataConn, Sheet(), 2, EmployeeTarget(), true);
  EXPECT_EQ(preview.summary, "5 rows. 2 rows are on file already.");
  ImportWishes wishes;
  wishes.skipPeopleOnFile = true;
  const ImportOutcome outcome = Import(EmployeeTarget(), 2, wishes);
  EXPECT_EQ(outcome.onFile, 2);
  EXPECT_EQ(Employees(), "046 454 286|||;123-456-782|New||;-|No number||;-|No number||");
}

// What can't be read counts as a spreadsheet without data; the window says why.
TEST_F(SheetImport, TellsWhyASpreadsheetCantBeRead) {
  OldWorkbook locked;
  locked.AddText(0, 0, "1");
  locked.Protected = true;
  locked.Write(Sheet());
  frmImport window(company_.Context());
  window.Excel = true;
  company_.Services().Show(window);
  window.ChooseSource(Sheet());
  window.cmdImportExcel.UserClick();
  EXPECT_EQ(company_.Services().NextBox(),
            "\"No Data\" \"The specified spreadsheet does not contain any data.\"");
  EXPECT_EQ(window.lblResult.Caption(), "'people' is protected by a password.");
  EXPECT_EQ(company_.Services().Pointer(), pointer::kDefault);
  window.cmdPreview.UserClick();
  EXPECT_EQ(window.lblResult.Caption(), "'people' is protected by a password.");
  EXPECT_TRUE(window.cmdImportExcel.Enabled());
}

TEST_F(SheetImport, OffersNothingWithoutASpreadsheet) {
  frmImport window(company_.Context());
  company_.Services().Show(window);
  EXPECT_EQ(company_.Services().NextBox(), "\"Lorvane\" \"Add frames for ASCII transfer\"");
  EXPECT_EQ(window.txtTo.Text(), company_.DataFile());
  EXPECT_FALSE(window.cmdImportExcel.Visible());
}

TEST(SheetImportOnDisk, RefusesEveryRowWhenTheDiskFills) {
  FaultyVfs disk;
  TestCompany company;
  const std::string sheet = company.Folder() + "/people";
  WriteXlsx(sheet, SheetRows(2000, {"1", std::string(50, 'x'), std::string(75, 'y')}));
  disk.FillAfter(100'000);
  const ImportOutcome outcome =
      ImportFromExcel(*company.GetSession().gDataConn, sheet, 3, EmployeeTarget());
  disk.Heal();
  EXPECT_EQ(outcome.rows, 2000);
  EXPECT_EQ(outcome.refused.size(), 2000U);
  EXPECT_EQ(company.First("SELECT Count(*) AS Rows FROM tblEmployees"), "0");
}

}  // namespace
}  // namespace lorvane
