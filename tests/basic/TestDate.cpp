#include <gtest/gtest.h>

#include "basic/Date.h"

namespace lorvane {
namespace {

std::string Read(std::string_view text) {
  const std::optional<DateTime> date = ParseDate(text);
  return date ? IsoDate(*date) : "none";
}

TEST(Date, ReadsEveryFormAUserWrites) {
  EXPECT_EQ(Read("1/5/2026"), "2026-01-05");
  EXPECT_EQ(Read("13/5/2026"), "2026-05-13");
  EXPECT_EQ(Read("01/01/29"), "2029-01-01");
  EXPECT_EQ(Read("01/01/30"), "1930-01-01");
  EXPECT_EQ(Read("2026-01-05"), "2026-01-05");
  EXPECT_EQ(Read("January 5, 2026"), "2026-01-05");
  EXPECT_EQ(Read("5 jan 2026"), "2026-01-05");
  EXPECT_EQ(Read("5-Sept-2026"), "2026-09-05");
  EXPECT_EQ(Read("6/1/2030 11:30:00 PM"), "2030-06-01T23:30:00");
  EXPECT_EQ(Read("1/5/2026 12:05 AM"), "2026-01-05T00:05:00");
  EXPECT_EQ(Read("2026-01-05T08:15:00"), "2026-01-05T08:15:00");
}

TEST(Date, RefusesWhatIsNoDate) {
  for (const char* text :
       {"", "none", "2/30/2026", "13/13/2026", "12/31/0", "1/5", "1/5/20266", "5%",
        "1/5/2026 25:00", "1/5/2026 13:00 PM", "01/01/202", "1/5/2026 x"}) {
    EXPECT_EQ(Read(text), "none") << text;
  }
}

TEST(Date, WritesTheShortForm) {
  EXPECT_EQ(ShortDate({2026, 1, 5}), "1/5/2026");
  EXPECT_EQ(ShortDate({2026, 1, 5, 10, 0, 0}), "1/5/2026 10:00:00 AM");
  EXPECT_EQ(ShortDate({2026, 1, 5, 0, 0, 7}), "1/5/2026 12:00:07 AM");
  EXPECT_EQ(LongDate({2026, 3, 5}), "March 05, 2026");
}

TEST(Date, IsoTextReadsBack) {
  const DateTime late{1899, 1, 1, 23, 59, 59};
  EXPECT_EQ(ParseIsoDate(IsoDate(late)), late);
  EXPECT_EQ(ParseIsoDate("2026-01-05 08:15:00"), (DateTime{2026, 1, 5, 8, 15, 0}));
  EXPECT_FALSE(ParseIsoDate("2026-1-05"));
  EXPECT_FALSE(ParseIsoDate("2026-01-05T24:00:00"));
}

TEST(Date, CountsDaysFromTheEndOf1899) {
  EXPECT_EQ(SerialOf({1899, 12, 30}), 0);
  EXPECT_EQ(SerialOf({2026, 1, 5, 12, 0, 0}), 46027.5);
}

}  // namespace
}  // namespace lorvane
