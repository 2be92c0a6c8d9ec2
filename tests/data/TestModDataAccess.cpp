#include <gtest/gtest.h>

#include "basic/RuntimeError.h"
#include "data/modDataAccess.h"

namespace lorvane {
namespace {

struct TextCase {
  const char* given;
  const char* text;
};

constexpr TextCase kTexts[] = {
    {"", "Null"},
    {" ", "' '"},
    {"O'Brien", "'O''Brien'"},
    {"'", "''''"},
    {" Bay ", "' Bay '"},
    {"x'; DROP TABLE tblEmployees; --", "'x''; DROP TABLE tblEmployees; --'"}};
constexpr TextCase kNumbers[] = {{"", "Null"},     {"abc", "Null"}, {"5%", "Null"}, {"0", "0"},
                                 {"12.5", "12.5"}, {"-3", "-3"},    {" ", "Null"}};
constexpr TextCase kDates[] = {{"", "Null"},
                               {"none", "Null"},
                               {"2/30/2026", "Null"},
                               {"1/5/2026", "'1/5/2026'"},
                               {"2026-01-05", "'1/5/2026'"},
                               {"25/12/2026", "'12/25/2026'"},
                               {"1/1/1899", "'1/1/1899'"},
                               {"January 5, 2026 15:04", "'1/5/2026 3:04:00 PM'"}};

TEST(ModDataAccess, WritesValuesIntoStatements) {
  for (const TextCase& row : kTexts) {
    EXPECT_EQ(QuoteText(row.given), row.text);
  }
  for (const TextCase& row : kNumbers) {
    EXPECT_EQ(QuoteNumber(row.given), row.text) << row.given;
  }
  for (const TextCase& row : kDates) {
    EXPECT_EQ(QuoteDate(row.given), row.text) << row.given;
  }
  EXPECT_EQ(QuoteNumber(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(BoolToSql(Value()), 0);
  EXPECT_EQ(BoolToSql(Value(-1)), 1);
}

TEST(ModDataAccess, ReadsValuesOutOfRows) {
  EXPECT_EQ(NullToText({}), "");
  EXPECT_EQ(NullToText("  Bay St  "), "Bay St");
  EXPECT_EQ(NullToText(DateTime{2026, 1, 5, 15, 4, 0}), "1/5/2026 3:04:00 PM");
  EXPECT_EQ(NullToLong({}), -1);
  EXPECT_EQ(NullToLong(0), 0);
  EXPECT_EQ(NullToLong(2.5), 2);
  EXPECT_THROW(static_cast<void>(NullToLong("x")), RuntimeError);
  EXPECT_THROW(static_cast<void>(NullToLong(3e9)), RuntimeError);
  EXPECT_FALSE(NullToBool({}));
  EXPECT_TRUE(NullToBool(Currency::FromTenThousandths(-1)));
  EXPECT_TRUE(NullToBool("true"));
  EXPECT_EQ(NullToCurrency({}), Currency());
  EXPECT_EQ(NullToCurrency(1.00005).ToText(), "1");
  EXPECT_EQ(NullToCurrency("1,000.12345").ToText(), "1000.1234");
  EXPECT_EQ(BoolToCheck({}), 0);
  EXPECT_EQ(BoolToCheck(true), 1);
  EXPECT_EQ(CheckToBool(0), 0);
  EXPECT_EQ(CheckToBool(1), 1);
  EXPECT_EQ(CheckToBool(2), 0);
}

}  // namespace
}  // namespace lorvane
