#include <gtest/gtest.h>

#include <filesystem>

#include "basic/Text.h"
#include "data/Schema.h"
#include "yearend/YearEndTest.h"

namespace lorvane {
namespace {

constexpr const char* kUpdated =
    "\"Rates\" \"We have updated your existing industry rate(s)\\n"
    "according to the information supplied to us by the Lorvane.\\n"
    "You should, however, verify that the rate(s) correspond\\n"
    "to the rate(s) appearing on your remittance form(s).\"";

class Rates : public testing::Test {
 protected:
  Rates() {
    const std::string resource = company_.Folder() + "/Resource";
    std::filesystem::create_directory(resource);
    const auto published = MakeFileEngine()->Create(resource + "/Sic.mdb", "");
    const TableDefinition table = RateTable(2027);
    published->CreateTable(table.name, table.columns);
    published->InsertRow("tbl2027", {{"SIC", std::string("3140")}, {"Rate", 1.84}});
    published->InsertRow("tbl2027", {{"SIC", std::string("3151")}, {"Rate", 2.005}});
    published->InsertRow("tbl2027", {{"SIC", std::string("3140")}, {"Rate", 9.0}});
    published->InsertRow("tbl2027", {{"SIC", std::string("31A'")}, {"Rate", 4.0}});
    published->InsertRow("tbl2027", {{"SIC", std::string("9999")}});
    company_.GetSession().programFolder = company_.Folder();
    company_.Execute(
        "UPDATE tblIndustries SET RateA = 0.01, RateB = 0.02, RateC = 0.03, RateD = 0.04, RateE = "
        "0.05, RateF = 0.06");
  }

  // "A=3140 F=3151"
  void SetCodes(const std::string& codes) {
    company_.Execute(
        "UPDATE tblIndustries SET SicA = Null, SicB = Null, SicC = Null, SicD = Null, SicE = Null, "
        "SicF = Null");
    for (const std::string& code : Split(codes, ' ')) {
      if (!code.empty()) {
        company_.Execute("UPDATE tblIndustries SET Sic" + code.substr(0, 1) + " = '" +
                         Replace(code.substr(2), "'", "''") + "'");
      }
    }
  }
  std::string StoredRates() {
    return RowsText(company_.Connection(),
                    "SELECT RateA, RateB, RateC, RateD, RateE, RateF FROM tblIndustries");
  }

  YearEndCompany company_;
};

constexpr const char* kAsBefore = "0.01|0.02|0.03|0.04|0.05|0.06";

TEST_F(Rates, AreTakenFromTheNextYearsTable) {
  const auto missing = [](const std::string& list) {
    return "\"Rates\" \"Rates for the following SIC codes were not found: \\n\\n" + list +
           "\\n\\nWe would recommend that you contact the Lorvane for the latest rate(s).\"";
  };
  struct Case {
    const char* codes;
    std::string box;
    const char* rates;
  };
  const Case cases[] = {{"", kUpdated, kAsBefore},
                        {"A=3151 C=3140 F=3140", kUpdated, "0.02005|0.02|0.0184|0.04|0.05|0.0184"},
                        {"B=31a'", kUpdated, "0.01|0.04|0.03|0.04|0.05|0.06"},
                        {"A=1 C=3140 E=2", missing("1\\n2\\n"), "0.01|0.02|0.0184|0.04|0.05|0.06"},
                        {"B=1 F=2", missing("1\\n2"), kAsBefore}};
  for (const Case& row : cases) {
    SCOPED_TRACE(row.codes);
    company_.Execute(
        "UPDATE tblIndustries SET RateA = 0.01, RateB = 0.02, RateC = 0.03, RateF = 0.06");
    SetCodes(row.codes);
    EXPECT_TRUE(company_.MakeYearEnd().UpdateRates());
    EXPECT_EQ(company_.Services().NextBox(), row.box);
    EXPECT_EQ(StoredRates(), row.rates);
  }
}

TEST_F(Rates, AFailureStoresNone) {
  SetCodes("A=3140 F=9999");
  cYearEnd yearEnd = company_.MakeYearEnd();
  EXPECT_FALSE(yearEnd.UpdateRates());
  EXPECT_EQ(company_.Services().NextBox(), "\"Error\" \"13\\nType mismatch\"");
  yearEnd.Year = "2027";
  EXPECT_FALSE(yearEnd.UpdateRates());
  EXPECT_EQ(company_.Services().NextBox(),
            "\"Rates\" \"Could not locate rates for the upcoming year.\\n\\nPlease contact us for "
            "an update or call the \\nLorvane for your revised rates.\"");
  yearEnd.Year = "soon";
  EXPECT_FALSE(yearEnd.UpdateRates());
  EXPECT_EQ(company_.Services().NextBox(), "\"Error\" \"13\\nType mismatch\"");
  company_.GetSession().programFolder = "/nowhere";
  yearEnd.Year = "2026";
  EXPECT_FALSE(yearEnd.UpdateRates());
  EXPECT_EQ(company_.Services().NextBox(),
            "\"Error\" \"-2147467259\\nThe file /nowhere/Resource/Sic.mdb does not exist.\"");
  EXPECT_EQ(StoredRates(), kAsBefore);
}

}  // namespace
}  // namespace lorvane
