#include <gtest/gtest.h>

#include "basic/RuntimeError.h"
#include "people/cEmployee.h"
#include "support/RowsText.h"
#include "support/StatementTable.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

void Fill(cEmployee& record) {
  record.LastName = "O'Brien";
  record.FirstName = "Ann";
  record.Initial = "K";
  record.Sin = "416-223-871";
  record.HPhone = "1";
  record.CPhone = "2";
  record.WPhone = "3";
  record.Gender = "Female";
  record.Birth = "3/4/1980";
  record.Health = "H7";
  record.AccWages = 1234.5;
  record.MaxContrib = 41100.25;
  record.Ind[IndustrySlot::kC] = true;
  for (const IndustrySlot slot : kAllSlots) {
    record.Amount[slot] = NumberOf(slot) + 0.125;
    record.AssessAmt[slot] = NumberOf(slot) + 0.5;
  }
}

using EmployeeRecord = RecordingTest;

TEST_F(EmployeeRecord, Statements) {
  cEmployee record;
  Fill(record);
  record.EmployeeId = 42;
  record.Inactive = true;
  CheckStatements("people/statements/cEmployee.txt", record);
}

TEST_F(EmployeeRecord, Validation) {
  struct Case {
    const char* last;
    const char* first;
    bool industry;
    const char* message;
  };
  constexpr Case cases[] = {{" ", "Ann", true, "False"},
                            {"Pike", "", true, "False"},
                            {"", "", false, "False Please assign an industry."},
                            {"Pike", "Ann", false, " Please assign an industry."}};
  for (const Case& row : cases) {
    cEmployee record;
    record.SetDataConnection(&connection_);
    record.LastName = row.last;
    record.FirstName = row.first;
    record.Ind[IndustrySlot::kF] = row.industry;
    EXPECT_FALSE(record.AddNew());
    EXPECT_EQ(record.InfoMsg(), row.message);
    record.UpdateFilter = 3;
    EXPECT_FALSE(record.Update());
    EXPECT_EQ(record.InfoMsg(), row.message);
    EXPECT_EQ(record.FieldInError(), "");
    EXPECT_EQ(record.UpdateFilter, 3);
  }
  EXPECT_EQ(engine_.TakeStatements(), "");
}

class EmployeeRecordOnFile : public testing::Test {
 protected:
  EmployeeRecordOnFile() {
    record_.SetDataConnection(company_.GetSession().gDataConn.get());
    Fill(record_);
  }

  TestCompany company_;
  cEmployee record_;
};

TEST_F(EmployeeRecordOnFile, ANewRowHasNoAmountsAndKeepsItsInitial) {
  ASSERT_TRUE(record_.AddNew()) << record_.InfoMsg();
  EXPECT_EQ(company_.First("SELECT Count(*) FROM tblEmployees WHERE AccWages Is Null AND AmountA "
                           "Is Null AND AssessAmtF Is Null AND PayDateC Is Null"),
            "1");
  record_.Initial = "Z";
  record_.Birth = "none";
  record_.City = " Digby ";
  ASSERT_TRUE(record_.Update()) << record_.InfoMsg();
  record_.UpdateFilter = 3;
  ASSERT_TRUE(record_.Update()) << record_.InfoMsg();
  EXPECT_EQ(RowsText(company_.Connection(),
                     "SELECT Initial, Birth, AccWages, AmountB, AmountC, AssessAmtC FROM "
                     "tblEmployees"),
            "K||1234.5||3.125|3.5");
  cEmployee read;
  Fill(read);
  read.SetDataConnection(company_.GetSession().gDataConn.get());
  read.EmployeeId = 1;
  read.WhereFilter = cEmployee::kWhereKey;
  read.SelectFilter = 4;
  read.Ind[IndustrySlot::kA] = true;
  ASSERT_TRUE(read.Find()) << read.InfoMsg();
  EXPECT_EQ(read.City, "Digby");
  EXPECT_EQ(read.Birth, "");
  EXPECT_EQ(read.Amount[IndustrySlot::kC], 3.125);
  EXPECT_EQ(read.Amount[IndustrySlot::kA], 1.125);
  EXPECT_TRUE(read.Ind[IndustrySlot::kA]);
  EXPECT_TRUE(read.Ind[IndustrySlot::kC]);
  // Filters out of range write nothing and fail.
  read.UpdateFilter = 7;
  EXPECT_FALSE(read.Update());
  EXPECT_EQ(read.InfoCode(), error_number::kEngineCommand);
}

TEST_F(EmployeeRecordOnFile, FindsByPrefixAndBySlot) {
  for (const char* name : {"MacDonald", "O'Mac", "macneil"}) {
    record_.LastName = name;
    record_.Inactive = std::string(name) == "macneil";
    ASSERT_TRUE(record_.AddNew()) << record_.InfoMsg();
  }
  const auto found = [&](std::int32_t where, const char* lastName) {
    record_.CloseRecordset();
    record_.SelectFilter = cEmployee::kSelectNames;
    record_.WhereFilter = where;
    record_.OrderByFilter = cEmployee::kOrderByLastNameDescending;
    record_.LastName = lastName;
    std::string names;
    for (bool more = record_.Find(); more; more = record_.MoveNext()) {
      names += record_.LastName + ";";
    }
    return names;
  };
  EXPECT_EQ(found(cEmployee::kWhereLastNameBegins, "Mac"), "macneil;MacDonald;");
  EXPECT_EQ(found(cEmployee::kWhereLastNameBegins, "O'M"), "O'Mac;");
  EXPECT_EQ(found(cEmployee::kWhereLastNameBegins, ""), "O'Mac;macneil;MacDonald;");
  EXPECT_EQ(found(cEmployee::kWhereLastName, "MACDONALD"), "MacDonald;");
  EXPECT_EQ(found(cEmployee::kWhereSlot + 2, ""), "O'Mac;MacDonald;");
  EXPECT_EQ(found(cEmployee::kWhereSlot + 1, ""), "");
}

TEST_F(EmployeeRecordOnFile, CopiesAllButTheBirthDate) {
  record_.Inactive = true;
  record_.PayDate[IndustrySlot::kB] = "1/5/2026";
  cEmployee target;
  target.Birth = "5/6/1970";
  target.WhereFilter = 3;
  record_.CopyObject(target);
  EXPECT_EQ(target.Birth, "5/6/1970");
  EXPECT_EQ(target.WhereFilter, 3);
  EXPECT_EQ(target.LastName + target.Initial + target.Health + target.Gender, "O'BrienKH7Female");
  EXPECT_EQ(target.PayDate[IndustrySlot::kB], "1/5/2026");
  EXPECT_EQ(target.AssessAmt[IndustrySlot::kF], 6.5);
  EXPECT_EQ(target.AccWages + target.MaxContrib, 1234.5 + 41100.25);
  EXPECT_TRUE(target.Inactive && target.Ind[IndustrySlot::kC]);
}

}  // namespace
}  // namespace lorvane
