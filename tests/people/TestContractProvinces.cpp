#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "people/ContractProvinces.h"

namespace lorvane {
namespace {

std::string CodeOfPlace(const std::string& name) {
  const std::vector<const char*>& places = ContractPlaces();
  const auto found = std::find(places.begin(), places.end(), name);
  return found == places.end()
             ? "none"
             : ContractProvinceCode(static_cast<std::int32_t>(found - places.begin()) + 1);
}

TEST(ContractProvinces, EachPlaceHasACodeOfItsOwn) {
  std::set<std::string> names;
  std::set<std::string> codes;
  std::int32_t number = 0;
  for (const char* place : ContractPlaces()) {
    names.insert(place);
    codes.insert(ContractProvinceCode(++number));
  }
  EXPECT_EQ(number, 70);
  EXPECT_EQ(names.size(), 70U);
  EXPECT_EQ(codes.size(), 70U);
  for (const std::int32_t outside : {-1, 0, 71}) {
    EXPECT_EQ(ContractProvinceCode(outside), "");
  }
}

// A company sees the types under the code of the place that stands for it in the list. Where the
// two tables don't fit, that is another province's code, or none.
TEST(ContractProvinces, WhatACompanySees) {
  struct Case {
    const char* province;
    const char* place;
    const char* code;
  };
  constexpr Case cases[] = {{"NF", "Newfoundland and Labrador", "NF"},
                            {"NS", "Nova Scotia", "NS"},
                            {"PE", "Prince Edward Island", "PE"},
                            {"PQ", "Quebec", "PQ"},
                            {"ON", "Ontario", "none"},
                            {"MB", "Manitoba", "ON"},
                            {"AB", "Alberta", "SK"},
                            {"YK", "Yukon Territory", "NWT"},
                            {"NWT", "Northwest Territories", "BC"},
                            {"NUN", "Nunuvut", "YK"},
                            {"AL", "Alabama", "NUN"},
                            {"LA", "Lousiana", "KY"},
                            {"MN", "Minnisota", "none"},
                            {"OK", "Oaklahoma", "OH"},
                            {"PW", "Palau", "none"},
                            {"VI", "Virgin Islands", "VT"},
                            {"VA", "Virginia", "VI"},
                            {"WA", "Washington", "DC"},
                            {"DC", "District of Columbia", "WA"},
                            {"WV", "West Virginia", "WV"},
                            {"WY", "Wyoming", "WY"},
                            {"FM", "", "none"},
                            {"", "", "none"},
                            {"ns", "", "none"}};
  for (const Case& row : cases) {
    SCOPED_TRACE(row.province);
    EXPECT_EQ(PlaceOfProvince(row.province), row.place);
    EXPECT_EQ(CodeOfPlace(row.place), row.code);
  }
}

}  // namespace
}  // namespace lorvane
