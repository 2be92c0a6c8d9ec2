#include <gtest/gtest.h>

#include "import/NormaliseProvince.h"

namespace lorvane {
namespace {

TEST(NormaliseProvince, GivesTheSystemsOwnCodes) {
  struct Case {
    const char* text;
    const char* code;
  };
  constexpr Case cases[] = {
      {"NEWFOUNDLAND", "NF"},
      {"NFLD.", "NF"},
      {"NFLD", "NS"},
      {"NL", "NS"},
      {"N.S.", "NS"},
      {"NB.", "NB"},
      {"PRINCE EDWARD ISLAND", "PE"},
      {"PEI", "PE"},
      {"QUEBEC", "PQ"},
      {"Q.U.E.", "PQ"},
      {"QC", "NS"},
      {"ONT", "ON"},
      {"O.N.T.", "ON"},
      {"ONTARIO ", "NS"},
      {"MN", "MB"},
      {"MAN", "NS"},
      {"M.A.N.", "MB"},
      {"SASK", "SK"},
      {"ALB", "AB"},
      {"ALTA.", "NS"},
      {"B.C.", "BC"},
      {"NORTHWEST TERRITORIES", "NWT"},
      {"NT", "NWT"},
      {"N.W.T.", "NWT"},
      {"YK", "YK"},
      {"YT", "NS"},
      {"YUKON", "YK"},
      {"NU", "NS"},
      {"NU.", "NUN"},
      {"NUNAVUT", "NUN"},
      {"", "NS"},
      {"on", "NS"},
      {"QUÉBEC", "NS"},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(NormaliseProvince(one.text), one.code) << one.text;
  }
  EXPECT_FALSE(FindProvince("QC"));
  EXPECT_EQ(FindProvince("NS"), "NS");
}

}  // namespace
}  // namespace lorvane
