#include <gtest/gtest.h>

#include "company/cIndustry.h"
#include "support/StatementTable.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

using IndustryRecord = RecordingTest;

TEST_F(IndustryRecord, Statements) {
  cIndustry record;
  record.Ind[IndustrySlot::kB] = true;
  record.Desc[IndustrySlot::kA] = "Fish 'n Net";
  record.Identifier[IndustrySlot::kF] = "0006";
  record.Rate[IndustrySlot::kA] = 1.14;
  record.Rate[IndustrySlot::kC] = 0.001;
  record.Rate[IndustrySlot::kD] = 1.23456;
  record.Sic[IndustrySlot::kE] = "3140";
  CheckStatements("company/statements/cIndustry.txt", record);
}

TEST(IndustryRecordOnFile, KeepsRatesInTheirUnits) {
  TestCompany company;
  cIndustry record;
  record.SetDataConnection(company.GetSession().gDataConn.get());
  struct Case {
    double given;
    const char* stored;
    double read;
  };
  constexpr Case cases[] = {
      {1.14, "0.0114", 1.14}, {1.23456, "0.01235", 1.235}, {0, "0", 0},           {100, "1", 100},
      {0.0004, "0", 0},       {9.999, "0.09999", 9.999},   {-2.5, "-0.025", -2.5}};
  for (const Case& row : cases) {
    SCOPED_TRACE(row.given);
    record.Rate[IndustrySlot::kD] = row.given;
    ASSERT_TRUE(record.Update()) << record.InfoMsg();
    EXPECT_EQ(company.First("SELECT RateD FROM tblIndustries"), row.stored);
    ASSERT_TRUE(record.Find()) << record.InfoMsg();
    EXPECT_EQ(record.Rate[IndustrySlot::kD], row.read);
  }
  company.Execute("UPDATE tblIndustries SET RateD = 0.0123456, IndD = 5, DescD = ' Net Loft '");
  record.Desc[IndustrySlot::kD] = "as it was";
  record.SelectFilter = cIndustry::kSelectRates;
  ASSERT_TRUE(record.Find());
  EXPECT_EQ(record.Rate[IndustrySlot::kD], 1.2346);
  EXPECT_EQ(record.Desc[IndustrySlot::kD], "as it was");
  record.SelectFilter = 0;
  ASSERT_TRUE(record.Find());
  EXPECT_EQ(record.Desc[IndustrySlot::kD], "Net Loft");
  EXPECT_TRUE(record.Ind[IndustrySlot::kD]);
}

TEST(IndustryRecordOnFile, NeedsItsRow) {
  TestCompany company;
  company.Execute("DELETE FROM tblIndustries");
  cIndustry record;
  record.SetDataConnection(company.GetSession().gDataConn.get());
  EXPECT_FALSE(record.OpenRecordset());
  EXPECT_EQ(record.InfoMsg(), "");
  record.UpdateFilter = 1;
  EXPECT_FALSE(record.Update());
  EXPECT_EQ(record.InfoMsg(), "cIndustry.Update()\r\nCould Not Update This Table: tblIndustries");
  EXPECT_EQ(record.InfoCode(), 0);
  EXPECT_EQ(record.UpdateFilter, 1);
}

}  // namespace
}  // namespace lorvane
