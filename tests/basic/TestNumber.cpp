#include <gtest/gtest.h>

#include "basic/Money.h"
#include "basic/Number.h"
#include "basic/RuntimeError.h"

namespace lorvane {
namespace {

std::int32_t ErrorOf(std::string_view text) {
  try {
    static_cast<void>(ToDouble(text));
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(Number, ReadsWhatABookKeeperTypes) {
  EXPECT_EQ(ToDouble("1,234.50"), 1234.5);
  EXPECT_EQ(ToDouble(" -1,000 "), -1000);
  EXPECT_EQ(ToDouble(".5"), 0.5);
  EXPECT_EQ(ToDouble("12."), 12);
  EXPECT_EQ(ToDouble("1e3"), 1000);
}

TEST(Number, RefusesWhatIsNone) {
  for (const char* text :
       {"", " ", "-", ".", "5%", "abc", "1.2.3", "12-", "--1", "1e", ",", "$5"}) {
    EXPECT_EQ(ErrorOf(text), error_number::kTypeMismatch) << text;
    EXPECT_FALSE(IsNumeric(text)) << text;
  }
  EXPECT_EQ(ErrorOf("1e999"), error_number::kOverflow);
  EXPECT_EQ(ErrorOf(std::string(400, '9')), error_number::kOverflow);
}

TEST(Number, WholeNumbersRoundHalfToEvenAndOverflow) {
  EXPECT_EQ(ToInteger("2.5"), 2);
  EXPECT_EQ(ToInteger("3.5"), 4);
  EXPECT_EQ(ToLong("-2147483648"), -2147483647 - 1);
  EXPECT_THROW(static_cast<void>(ToInteger("32768")), RuntimeError);
  EXPECT_EQ(NextInteger(32766), 32767);
  EXPECT_THROW(static_cast<void>(NextInteger(32767)), RuntimeError);
}

TEST(Number, RoundsHalfToEvenOnTheBinaryValue) {
  EXPECT_EQ(Round(512.5, 0), 512);
  EXPECT_EQ(Round(517.5, 0), 518);
  EXPECT_EQ(Round(1.005, 2), 1.00);
  EXPECT_EQ(Round(0.125, 2), 0.12);
  EXPECT_EQ(Round(-2.675, 2), -2.67);
}

TEST(Number, ShortestTextHasNoExponentForOrdinaryAmounts) {
  EXPECT_EQ(ShortestText(1.1), "1.1");
  EXPECT_EQ(ShortestText(100), "100");
  EXPECT_EQ(ShortestText(-0.0), "0");
  EXPECT_EQ(ShortestText(123456789012.25), "123456789012.25");
  EXPECT_EQ(ShortestText(0.00002), "0.00002");
}

TEST(Money, RoundsHalfAwayFromZeroOnTheDecimalText) {
  EXPECT_EQ(Money(1.005), "1.01");
  EXPECT_EQ(Money(2.675), "2.68");
  EXPECT_EQ(Money(-1.005), "-1.01");
  EXPECT_EQ(Money(1.00499), "1.00");
  EXPECT_EQ(Money(0.005), "0.01");
  EXPECT_EQ(Money(999.995), "1,000.00");
  EXPECT_EQ(Money(0.0004), "0.00");
}

TEST(Money, ShowsSeparatorsAndSign) {
  EXPECT_EQ(Money(0), "0.00");
  EXPECT_EQ(Money(-0.001), "0.00");
  EXPECT_EQ(Money(1234567.891), "1,234,567.89");
  EXPECT_EQ(Money(-123456), "-123,456.00");
  EXPECT_EQ(Money(100), "100.00");
  EXPECT_EQ(Money(123456789012345678.0), "123,456,789,012,346,000.00");
  EXPECT_EQ(Plain(1234567.895), "1234567.90");
}

TEST(Currency, KeepsFourDecimalsHalfToEven) {
  EXPECT_EQ(Currency::FromDouble(0.03125).ToText(), "0.0312");
  EXPECT_EQ(Currency::FromDouble(0.09375).ToText(), "0.0938");
  EXPECT_EQ(Currency::FromDouble(-0.03125).ToText(), "-0.0312");
  EXPECT_EQ(Currency::FromDouble(2.71828).ToDouble(), 2.7183);
  EXPECT_EQ(Currency::FromDouble(0.00005).ToText(), "0");
  EXPECT_EQ(Currency::FromDouble(0.00015).ToText(), "0.0002");
  EXPECT_EQ(Currency::FromDouble(-1000.5).ToText(), "-1000.5");
  EXPECT_THROW(static_cast<void>(Currency::FromDouble(1e16)), RuntimeError);
}

}  // namespace
}  // namespace lorvane
