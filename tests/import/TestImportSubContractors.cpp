#include <gtest/gtest.h>

#include "basic/RuntimeError.h"
#include "import/ImportSubContractors.h"
#include "support/RowsText.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

constexpr const char* kCount = "SELECT Count(*) AS Rows FROM tblSubContract";

class CompanyImport : public testing::Test {
 protected:
  // Makes a data file with the columns that are copied, or the first of them.
  void MakeSource(const std::string& password, bool whole = true) {
    const std::unique_ptr<EngineConnection> file = MakeFileEngine()->Create(Source(), password);
    std::vector<Column> columns{{"SubContractId", ColumnType::kLong, 0, true},
                                {"BusNum", ColumnType::kText, 20}};
    if (whole) {
      for (const char* name :
           {"Name", "Address", "City", "Province", "PostCode", "ContractType", "Description"}) {
        columns.push_back({name, ColumnType::kText, 255});
      }
      columns.push_back({"PercentLabour", ColumnType::kDouble});
    }
    file->CreateTable("tblSubContract", columns);
    file->Execute("INSERT INTO tblSubContract (BusNum) VALUES ('1')");
    if (whole) {
      file->Execute(
          "INSERT INTO tblSubContract (BusNum, Name, PercentLabour) VALUES ('2', 'Tern', 12.5)");
    }
  }
  [[nodiscard]] std::string Source() const { return company_.Folder() + "/Other.mdb"; }
  [[nodiscard]] std::size_t Import() {
    return ImportSubContractors(*company_.GetSession().gDataConn, Source());
  }
  [[nodiscard]] std::int32_t ErrorOfImport() {
    try {
      static_cast<void>(Import());
      return 0;
    } catch (const RuntimeError& error) {
      return error.Number();
    }
  }

  TestCompany company_;
};

TEST_F(CompanyImport, CopiesAnUnprotectedFileWithItsNulls) {
  MakeSource("");
  EXPECT_EQ(Import(), 2U);
  EXPECT_EQ(RowsText(company_.Connection(),
                     "SELECT SubContractId, BusNum, Name, PercentLabour, IndA FROM tblSubContract"),
            "1|1|||0;2|2|Tern|12.5|0");
  EXPECT_EQ(company_.First("SELECT Count(*) AS Rows FROM tblSubContract WHERE Name IS NULL AND "
                           "PercentLabour IS NULL AND Province IS NULL"),
            "1");
  EXPECT_EQ(company_.First("SELECT NextId FROM tblTableIDs WHERE TableName = 'tblSubContract'"),
            "0");
}

TEST_F(CompanyImport, AddsNothingWhenItFails) {
  company_.Execute("INSERT INTO tblSubContract (SubContractId, Name) VALUES (5, 'Here')");
  EXPECT_EQ(ErrorOfImport(), error_number::kEngineFailure);
  MakeSource("another password");
  EXPECT_EQ(ErrorOfImport(), error_number::kEngineFailure);
  company_.Disk().Remove(Source());
  MakeSource("", false);
  EXPECT_EQ(ErrorOfImport(), error_number::kEngineUnknownColumn);
  company_.Disk().Remove(Source());

  // The second row doesn't fit.
  MakeSource(kDataFilePassword);
  company_.Execute("UPDATE tblSubContract SET Name = 'Me'");
  company_.Execute("ALTER TABLE tblSubContract ALTER COLUMN Name TEXT(3)");
  EXPECT_EQ(ErrorOfImport(), error_number::kEngineTextTooLong);
  EXPECT_EQ(company_.First(kCount), "1");
  EXPECT_EQ(company_.First("SELECT Name FROM tblSubContract"), "Me");
}

TEST_F(CompanyImport, OverflowsWhenTheCounterIsFull) {
  MakeSource("");
  {
    const std::unique_ptr<EngineConnection> file = MakeFileEngine()->Open(Source(), "");
    WriteBatch batch(*file);
    constexpr int kRows = 32767;
    for (int row = 3; row <= kRows; ++row) {
      file->InsertRow("tblSubContract", {{"BusNum", std::string("3")}});
    }
    batch.Commit();
  }
  EXPECT_EQ(ErrorOfImport(), error_number::kOverflow);
  EXPECT_EQ(company_.First(kCount), "0");
}

}  // namespace
}  // namespace lorvane
