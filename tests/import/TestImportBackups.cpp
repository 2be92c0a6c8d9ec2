#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "import/frmImport.h"
#include "import/frmImportExisting.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

class ImportBackups : public testing::Test {
 protected:
  ImportBackups() {
    company_.GetSession().status.Msg = "as before";
    std::filesystem::copy_file(company_.DataFile(), Other());
    company_.Execute("INSERT INTO tblEmployees (EmployeeId, Sin) VALUES (1, 'before')");
  }

  [[nodiscard]] std::string Other() const { return company_.Folder() + "/Other.mdb"; }
  [[nodiscard]] const std::string& Status() { return company_.GetSession().status.Msg; }
  [[nodiscard]] std::vector<std::string> Backups() {
    return company_.Disk().Names(company_.Folder() + "/Backup");
  }
  [[nodiscard]] std::string CountOf(const std::string& table) {
    return company_.First("SELECT Count(*) AS N FROM " + table);
  }

  // The text of the box that the import ends with.
  std::string ImportSheet(const char* rows) {
    const std::string sheet = company_.Folder() + "/people.csv";
    std::ofstream(sheet) << rows;
    frmImport window(company_.Context());
    window.Employee = window.Excel = true;
    company_.Services().InWindow([&](Screen&) {
      window.ChooseSource(sheet);
      window.txtNumberCols.SetText("2");
      window.cmdImportExcel.UserClick();
      EXPECT_FALSE(window.prgBar.Visible());
    });
    company_.Services().ShowModal(window);
    return company_.Services().NextBox();
  }
  void ImportOther() {
    company_.Services().Answer(Other());
    frmImportExisting window(company_.Context());
    company_.Services().InWindow([&](Screen&) {
      window.cmdFrom.UserClick();
      window.cmdImport.UserClick();
      EXPECT_EQ(window.lblImporting.Caption(), "Importing...complete.");
    });
    company_.Services().ShowModal(window);
    EXPECT_EQ(company_.Services().NextBox(), "");
  }
  void AddToOther() {
    const auto other = MakeFileEngine()->Open(Other(), kDataFilePassword);
    other->Execute("INSERT INTO tblSubContract (Name) VALUES ('Tern')");
  }

  TestCompany company_;
};

constexpr const char* kImported = "\"Import Data\" \"Imported 1 rows\"";

TEST_F(ImportBackups, OneHoldsWhatWasBeforeASpreadsheet) {
  EXPECT_EQ(ImportSheet("1,LeBlanc\n"), kImported);
  ASSERT_EQ(Backups().size(), 1U);
  const auto backup = MakeFileEngine()->Open(
      company_.Folder() + "/Backup/" + Backups().front() + "/Data.mdb", kDataFilePassword);
  EXPECT_EQ(TextOf(backup->Query("SELECT Count(*) AS N FROM tblEmployees").rows.front().front()),
            "1");
  EXPECT_EQ(Status(), "as before");
}

TEST_F(ImportBackups, OneIsMadeBeforeAnotherCompanysPeople) {
  AddToOther();
  ImportOther();
  EXPECT_EQ(Backups().size(), 1U);
  EXPECT_EQ(CountOf("tblSubContract"), "1");
  EXPECT_EQ(Status(), "as before");
}

TEST_F(ImportBackups, NoneIsMadeForNothing) {
  ImportSheet("");
  ImportSheet("1\n");
  ImportOther();
  EXPECT_TRUE(Backups().empty());
}

TEST_F(ImportBackups, ThatThereIsNoneStopsNothing) {
  constexpr const char* kNone = "No backup was made. 'Backup' failed.";
  company_.Disk().Fail("folder", "Backup", 70);
  EXPECT_EQ(ImportSheet("1,LeBlanc\n"), kImported);
  EXPECT_EQ(Status(), kNone);
  EXPECT_EQ(CountOf("tblEmployees"), "2");
  company_.GetSession().status.Msg.clear();
  AddToOther();
  ImportOther();
  EXPECT_EQ(Status(), kNone);
  EXPECT_EQ(CountOf("tblSubContract"), "1");
}

}  // namespace
}  // namespace lorvane
