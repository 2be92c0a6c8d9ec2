#include <gtest/gtest.h>

#include "basic/Text.h"

namespace lorvane {
namespace {

TEST(Text, CountsAndCutsCharacters) {
  EXPECT_EQ(Length("Côté"), 4U);
  EXPECT_EQ(Left("Côté", 2), "Cô");
  EXPECT_EQ(Left("ab", 5), "ab");
  EXPECT_EQ(Mid("Côté", 3), "té");
  EXPECT_EQ(Mid("Côté", 2, 2), "ôt");
  EXPECT_EQ(Mid("ab", 3), "");
  EXPECT_EQ(Trim("  a b "), "a b");
}

TEST(Text, ComparesWithoutRegardToCase) {
  EXPECT_TRUE(EqualsNoCase("CÔTÉ", "côté"));
  EXPECT_FALSE(EqualsNoCase("Cote", "Côté"));
  EXPECT_EQ(ToUpper("žluťoučký ÿ"), "ŽLUŤOUČKÝ Ÿ");
}

TEST(Text, ReadsStrayBytesAsWindows1252) {
  EXPECT_EQ(ToUtf8("C\xF4t\xE9"), "Côté");
  EXPECT_EQ(ToUtf8("\xEF\xBB\xBF"
                   "Côté \x80"),
            "Côté €");
  EXPECT_FALSE(IsUtf8("\xC0\x80"));
  EXPECT_FALSE(IsUtf8("\xED\xA0\x80"));
  EXPECT_TRUE(IsUtf8("😀"));
}

TEST(Text, SplitsPathsAtEitherSeparator) {
  EXPECT_EQ(GetPathPart("/a/b/Data.mdb"), "/a/b/");
  EXPECT_EQ(GetPathPart("c:\\a\\Data.mdb"), "c:\\a\\");
  EXPECT_EQ(GetPathPart("Data.mdb"), "");
  EXPECT_EQ(GetNamePart("/a/b\\Data.mdb"), "Data.mdb");
  EXPECT_EQ(GetNamePart("Data.mdb"), "Data.mdb");
}

}  // namespace
}  // namespace lorvane
