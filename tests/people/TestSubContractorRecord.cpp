#include <gtest/gtest.h>

#include "basic/RuntimeError.h"
#include "people/cAssessable.h"
#include "people/cSubContractor.h"
#include "support/RowsText.h"
#include "support/StatementTable.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

void Fill(cSubContractor& record) {
  record.Name = "Smith's Trucking";
  record.ContractType = "Labour Only";
  record.PercentLabour = 12.5;
  record.BusNum = "987654321";
  record.Description = "Hauling";
  record.PostCode = "B0V 1H0";
  record.Expiry = "1/1/1899";
  record.Phone = "1";
  record.Fax = "2";
  record.Ind[IndustrySlot::kE] = true;
  record.RemittPay = 9;
  for (const IndustrySlot slot : kAllSlots) {
    record.Amount[slot] = NumberOf(slot) + 0.25;
    record.AssessAmt[slot] = NumberOf(slot) + 0.75;
  }
}

using SubContractorRecord = RecordingTest;

TEST_F(SubContractorRecord, Statements) {
  cSubContractor record;
  Fill(record);
  record.SubContractId = 42;
  CheckStatements("people/statements/cSubContractor.txt", record);
}

TEST_F(SubContractorRecord, Validation) {
  struct Case {
    const char* name;
    const char* contract;
    bool industry;
    const char* message;
  };
  constexpr Case cases[] = {{" ", "Labour", true, "False"},
                            {"Smith", " ", true, "False"},
                            {"", "", false, "False Please assign an industry."},
                            {"Smith", "Labour", false, " Please assign an industry."}};
  for (const Case& row : cases) {
    cSubContractor record;
    record.SetDataConnection(&connection_);
    record.Name = row.name;
    record.ContractType = row.contract;
    record.Ind[IndustrySlot::kA] = row.industry;
    EXPECT_FALSE(record.AddNew());
    EXPECT_FALSE(record.Update());
    EXPECT_EQ(record.InfoMsg(), row.message);
    EXPECT_EQ(record.FieldInError(), "");
  }
  EXPECT_EQ(engine_.TakeStatements(), "");
}

TEST(SubContractorRecordOnFile, ReadsOnlyWhatEachSelectionNames) {
  TestCompany company;
  cSubContractor record;
  Fill(record);
  record.SetDataConnection(company.GetSession().gDataConn.get());
  ASSERT_TRUE(record.AddNew()) << record.InfoMsg();
  record.UpdateFilter = 2;
  ASSERT_TRUE(record.Update()) << record.InfoMsg();
  EXPECT_EQ(RowsText(company.Connection(),
                     "SELECT AmountA, AmountB, AssessAmtB, RemittPay, Expiry FROM tblSubContract"),
            "|2.25|2.75||1/1/1899");
  for (const std::int32_t select : {0, 1, 3}) {
    SCOPED_TRACE(select);
    cSubContractor read;
    read.SetDataConnection(company.GetSession().gDataConn.get());
    read.Name = "Smith";
    read.SelectFilter = select;
    read.WhereFilter = cSubContractor::kWhereNameBegins;
    ASSERT_TRUE(read.Find()) << read.InfoMsg();
    EXPECT_EQ(read.Name, "Smith's Trucking");
    EXPECT_EQ(read.PercentLabour, select == 1 ? 0 : 12.5);
    EXPECT_EQ(read.BusNum, select == 0 ? "987654321" : "");
    EXPECT_EQ(read.Expiry, select == 1 ? "" : "1/1/1899");
    EXPECT_EQ(read.Amount[IndustrySlot::kB], select == 3 ? 2.25 : 0);
    EXPECT_EQ(read.Ind[IndustrySlot::kE], select == 0);
    read.CloseRecordset();
    read.Name = "Trucking";
    read.WhereFilter = cSubContractor::kWhereNameBegins;
    EXPECT_FALSE(read.Find());
    EXPECT_EQ(read.InfoMsg(), "");
  }
}

TEST(SubContractorRecordOnFile, CopiesItsPartOnly) {
  cSubContractor record;
  Fill(record);
  record.SubContractId = 7;
  record.Assessable = 4;
  cSubContractor target;
  record.CopyObject(target);
  EXPECT_EQ(target.SubContractId, 7);
  EXPECT_EQ(target.Name + target.ContractType, "Smith's TruckingLabour Only");
  EXPECT_EQ(target.Assessable + target.PercentLabour, 16.5);
  EXPECT_EQ(target.AssessAmt[IndustrySlot::kF], 6.75);
  EXPECT_TRUE(target.Ind[IndustrySlot::kE]);
  EXPECT_EQ(target.BusNum + target.Description + target.PostCode + target.Expiry + target.Phone,
            "");
  EXPECT_EQ(target.RemittPay, 0);
}

using AssessableRecord = RecordingTest;

TEST_F(AssessableRecord, Statements) {
  cAssessable record;
  record.AssessId = 42;
  record.ProvId = "NS";
  record.Description = "Labour 'n all";
  record.AssessableLabour = 33.3;
  CheckStatements("people/statements/cAssessable.txt", record);
  cAssessable target;
  target.ProvId = "NB";
  record.CopyObject(target);
  EXPECT_EQ(target.ProvId + target.Description, "NBLabour 'n all");
  engine_.OnQuery = [](const std::string&) -> ResultTable { throw RuntimeError(6); };
  EXPECT_FALSE(record.AddNew());
  EXPECT_TRUE(record.InfoMsg().starts_with(
      "cAssessable.GetNewPrimaryKey()\r\nCould not generate a unique ID for this table: "
      "tblAssessables \r\nError #: 6\r\n"));
}

TEST(AssessableRecordOnFile, OffersTheStandardTypesAndThoseOfAProvince) {
  TestCompany company;
  cAssessable record;
  record.SetDataConnection(company.GetSession().gDataConn.get());
  record.ProvId = "NS";
  record.Description = "Diving";
  record.AssessableLabour = 62.12345;
  ASSERT_TRUE(record.AddNew()) << record.InfoMsg();
  EXPECT_EQ(record.AssessId, 14);
  record.WhereFilter = cAssessable::kWhereOffered;
  record.OrderByFilter = cAssessable::kOrderByDescription;
  std::string offered;
  for (bool more = record.Find(); more; more = record.MoveNext()) {
    offered += record.Description + ";";
    if (record.Description == "Diving") {
      EXPECT_EQ(record.AssessableLabour, 62.1234);
    }
  }
  EXPECT_EQ(offered,
            "Clearance Letter Supplied;Courier Service;Diving;Exempt Industry;Labour and "
            "Materials;Labour Only;Logging (Chain Saw);Not Assigned;Trucking and Leased "
            "Equipment;");
}

}  // namespace
}  // namespace lorvane
