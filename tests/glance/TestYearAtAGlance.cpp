#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "basic/RuntimeError.h"
#include "glance/YearAtAGlance.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

using testing::ElementsAre;

constexpr DateTime kToday{2026, 3, 16, 9, 30, 0};

class Glance : public testing::Test {
 protected:
  Glance() {
    company_.SetIni("Assessment", "CurrentYear", "2026");
    company_.Execute(
        "UPDATE tblIndustries SET IndA = 1, DescA = 'Roofing', RateA = 0.02, IndB = 1, DescB = "
        "'Siding'");
  }

  void Post(const char* table, char slot, const char* date, double assessable, double assessment) {
    const std::string letter(1, slot);
    company_.Execute("INSERT INTO " + std::string(table) + " (TransactionId, PayDate" + letter +
                     ", AssessAmt" + letter + ", Ind" + letter + ", Remittance) VALUES (" +
                     std::to_string(++key_) + ", '" + date + "', " + std::to_string(assessable) +
                     ", 1, " + std::to_string(assessment) + ")");
  }
  void AddEmployee(const char* name, const std::string& columns, const std::string& values) {
    company_.Execute("INSERT INTO tblEmployees (EmployeeId, LastName, FirstName" + columns +
                     ") VALUES (" + std::to_string(++key_) + ", '" + name + "', 'Ann'" + values +
                     ")");
  }
  [[nodiscard]] YearAtAGlance Read() { return ReadYearAtAGlance(company_.GetSession(), kToday); }

  TestCompany company_;
  int key_ = 0;
};

std::string Text(const YearSums& sums) {
  return sums.assessable.ToText() + " " + sums.assessment.ToText();
}

TEST_F(Glance, SumsEachMonthAndIndustryOfTheYear) {
  Post("tblEmpHistory", 'A', "1/1/2026", 1000.25, 20.005);
  Post("tblEmpHistory", 'A', "1/31/2026", 0.1, 0.002);
  Post("tblSubHistory", 'A', "1/31/2026", 10, 0.2);
  Post("tblSubHistory", 'C', "12/31/2026", 50, 1);
  // Of other years.
  Post("tblEmpHistory", 'A', "12/31/2025", 7000, 140);
  Post("tblEmpHistory", 'A', "1/1/2027", 7000, 140);

  const YearAtAGlance glance = Read();
  EXPECT_EQ(glance.year, 2026);
  EXPECT_EQ(Text(glance.months[0][IndustrySlot::kA]), "1010.35 20.207");
  EXPECT_EQ(Text(glance.months[11][IndustrySlot::kC]), "50 1");
  EXPECT_EQ(Text(glance.TotalOf(IndustrySlot::kA)), "1010.35 20.207");
  EXPECT_EQ(Text(glance.Total()), "1060.35 21.207");
  // Ticked without payments, paid without a tick, neither.
  EXPECT_TRUE(glance.used[IndustrySlot::kB]);
  EXPECT_TRUE(glance.used[IndustrySlot::kC]);
  EXPECT_FALSE(glance.used[IndustrySlot::kD]);
  EXPECT_EQ(glance.descriptions[IndustrySlot::kB], "Siding");

  company_.SetIni("Assessment", "CurrentYear", "0");
  EXPECT_EQ(Read().year, 2026);
  company_.SetIni("Assessment", "CurrentYear", "2025");
  EXPECT_EQ(Text(Read().Total()), "7000 140");
}

TEST_F(Glance, NamesWhoIsNearTheCeiling) {
  const std::string columns = ", AccWages, MaxContrib, Inactive";
  AddEmployee("Under", columns, ", 899.99, 1000, 0");
  AddEmployee("At nine tenths", columns, ", 900, 1000, 0");
  AddEmployee("Over", columns, ", 1200, 1000, 0");
  AddEmployee("Reached", columns, ", 1000, 1000, 0");
  AddEmployee("Gone", columns, ", 1000, 1000, 1");
  AddEmployee("Without", columns, ", 1000, 0, 0");
  AddEmployee("Unpaid", columns, ", Null, Null, 0");
  std::vector<std::string> found;
  for (const NearCeiling& one : Read().nearCeiling) {
    found.push_back(one.name + (one.IsReached() ? "!" : ""));
  }
  EXPECT_THAT(found, ElementsAre("Over, Ann!", "Reached, Ann!", "At nine tenths, Ann"));
}

TEST_F(Glance, NamesClearanceLettersThatAreDue) {
  constexpr std::array cases{
      std::pair("Long valid", "'4/16/2026'"), std::pair("In thirty days", "'4/15/2026'"),
      std::pair("Today", "'3/16/2026'"),      std::pair("Yesterday", "'3/15/2026'"),
      std::pair("None", "'1/1/1899'"),        std::pair("Unknown", "Null")};
  for (const auto& [name, expiry] : cases) {
    company_.Execute("INSERT INTO tblSubContract (SubContractId, Name, Expiry) VALUES (" +
                     std::to_string(++key_) + ", '" + name + "', " + expiry + ")");
  }
  std::vector<std::string> found;
  for (const ClearanceDue& one : Read().clearances) {
    found.push_back(one.name + (one.expired ? " expired " : " ") + ShortDate(one.expiry));
  }
  EXPECT_THAT(found, ElementsAre("Yesterday expired 3/15/2026", "Today 3/16/2026",
                                 "In thirty days 4/15/2026"));
}

TEST_F(Glance, CountsWhatWaitsToBePosted) {
  AddEmployee("One", ", IndA, AmountA", ", 1, 100.5");
  AddEmployee("Two", ", IndA, AmountA", ", 1, -50");
  AddEmployee("Nothing", ", IndA, AmountA", ", 1, 0");
  AddEmployee("Elsewhere", ", IndA, AmountA", ", 0, 70");
  AddEmployee("Gone", ", IndA, AmountA, Inactive", ", 1, 70, 1");
  company_.Execute("INSERT INTO tblSubContract (SubContractId, IndB, AmountB) VALUES (1, 1, 8)");
  std::vector<std::string> found;
  for (const WaitingEntries& one : Read().waiting) {
    found.push_back(one.payee + " " + LetterOf(one.slot) + " " + std::to_string(one.count) + " " +
                    one.amount.ToText());
  }
  EXPECT_THAT(found, ElementsAre("employee A 2 50.5", "sub-contractor B 1 8"));
}

TEST_F(Glance, LeavesTheSessionAsItStands) {
  try {
    company_.Execute("SELECT");
  } catch (const RuntimeError&) {
    const std::size_t errors = company_.Connection().Errors().size();
    static_cast<void>(Read());
    EXPECT_EQ(company_.Connection().Errors().size(), errors);
  }
  company_.GetSession().gDataConn->DataSource = company_.Folder() + "/gone.mdb";
  EXPECT_THROW(static_cast<void>(Read()), RuntimeError);
  EXPECT_TRUE(company_.GetSession().gDataConn->IsOpen());
}

}  // namespace
}  // namespace lorvane
