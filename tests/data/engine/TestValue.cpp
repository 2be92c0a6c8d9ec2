#include <gtest/gtest.h>

#include "data/engine/Value.h"

namespace lorvane {
namespace {

TEST(Value, ListsFlagsAsStoredAndTellsThemAsWords) {
  EXPECT_EQ(ListingTextOf(Value(true)), "-1");
  EXPECT_EQ(TextOf(Value(true)), "True");
  EXPECT_EQ(ListingTextOf(Value()), "");
  EXPECT_EQ(TextOf(Value(DateTime{2026, 1, 5, 10, 0, 0})), "1/5/2026 10:00:00 AM");
  EXPECT_EQ(TextOf(Value(Currency::FromDouble(0.03125))), "0.0312");
}

}  // namespace
}  // namespace lorvane
