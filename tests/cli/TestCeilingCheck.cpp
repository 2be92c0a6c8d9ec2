#include <gtest/gtest.h>

#include <vector>

#include "basic/RuntimeError.h"
#include "cli/CeilingCheck.h"
#include "support/ErrorOf.h"

namespace lorvane {
namespace {

Currency Dollars(double amount) { return Currency::FromDouble(amount); }

struct Row {
  int employee;
  double amount;
  double assessable;
  const char* finding;
};

void Expect(const CeilingCheck& fresh, const std::vector<Row>& rows) {
  CeilingCheck check = fresh;
  for (const Row& row : rows) {
    EXPECT_EQ(check.Next(row.employee, Dollars(row.amount), Dollars(row.assessable)), row.finding)
        << row.amount << " / " << row.assessable;
  }
}

// Employees 1 and 2 with the same maximum, 3 with one of their own, 4 with none.
CeilingCheck FourEmployees() {
  return CeilingCheck(
      {{1, Dollars(40000)}, {2, Dollars(40000)}, {3, Dollars(500.004)}, {4, Currency()}});
}

TEST(CeilingCheck, PassesWhatPostingWrites) {
  // To the ceiling, over it, a correction above it, and back under it by another.
  Expect(FourEmployees(), {{1, 39500, 39500, ""},
                           {1, 1000, 500, ""},
                           {1, -500, 0, ""},
                           {1, -200, 0, ""},
                           {1, 1000, 200, ""},
                           {3, 500, 500, ""},
                           {3, 10, 0, ""},
                           {4, 100, 0, ""},
                           {4, -100, 0, ""},
                           {9, 7, 99, ""}});
}

TEST(CeilingCheck, TellsWhatNoCeilingExplains) {
  Expect(FourEmployees(), {{1, 999.99, 1000,
                            "1,000.00 is assessable, which no maximum contribution explains for "
                            "999.99."},
                           {1, -200, -100,
                            "-100.00 is assessable, which no maximum contribution explains for "
                            "-200.00."}});
}

TEST(CeilingCheck, TellsWhatGoesBeyondTheCeiling) {
  Expect(FourEmployees(),
         {{1, 39500, 39500, ""},
          {1, 1000, 1000,
           "1,000.00 is assessable instead of 500.00: wages of 39,500.00 came before it, and the "
           "maximum contribution is 40,000.00."},
          {1, -50, -50,
           "-50.00 is assessable instead of 0.00: wages of 40,500.00 came before it, and the "
           "maximum contribution is 40,000.00."},
          {3, 500.01, 500.01,
           "500.01 is assessable instead of 500.00: wages of 0.00 came before it, and the maximum "
           "contribution is 500.00."}});
}

TEST(CeilingCheck, TakesACeilingThatWasRaisedButNotOneThatEarlierPaymentsExceed) {
  Expect(FourEmployees(),
         {{1, 30000, 30000, ""},
          {2, 38000, 35000, ""},  // at a maximum of 35,000
          {2, 100, 0, ""},
          {1, 6000, 6000, ""},  // raised meanwhile
          {2, 100, 100, ""},
          {1, 1000, 0,
           "0.00 is assessable instead of 1,000.00: wages of 36,000.00 came before it, and the "
           "maximum contribution was 38,200.00 or more, as earlier payments show."},
          {3, 400.5, 400, ""}});
}

TEST(CeilingCheck, RaisesAnOverflowOfTheWages) {
  CeilingCheck check = FourEmployees();
  const Currency most = Dollars(900000000000000);
  EXPECT_EQ(check.Next(9, most, most), "");
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(check.Next(9, most, most)); }),
            error_number::kOverflow);
  EXPECT_EQ(check.WagesOf(9), most);
}

}  // namespace
}  // namespace lorvane
