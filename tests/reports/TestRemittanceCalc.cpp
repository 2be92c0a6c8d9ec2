#include <gtest/gtest.h>

#include "ReportCompany.h"
#include "basic/Text.h"
#include "reports/frmRemittanceCalc.h"

namespace lorvane {
namespace {

constexpr const char* kUsual =
    "[Assessment]\r\nLastEntry=1/5/2026\r\nDefault=0\r\nIndustry=1\r\nCurrentYear=2026\r\n"
    "[Remittance]\r\nPreview=-1\r\nCopies=1\r\nExport=-1\r\nNav=-1\r\nProgress=-1\r\nRefresh=-1\r\n"
    "Search=-1\r\nZoom=-1\r\nFrom=2/1/2026\r\nTo=2/28/2026\r\n";

std::string Ticks(const frmRemittanceCalc& window) {
  std::string ticks;
  for (const CheckBox* box : {&window.chkExport, &window.chkNav, &window.chkProgress,
                              &window.chkRefresh, &window.chkSearch, &window.chkZoom}) {
    ticks += box->Checked() ? '1' : '0';
  }
  return ticks;
}

/// A configuration file, with what the window makes of it.
struct Settings {
  const char* what;
  std::string file;
  std::string ticks;
  std::string dates;
  std::string box;
};

TEST(RemittanceWindow, TakesItsSettingsByTheirPlaces) {
  const std::string usual(kUsual);
  const std::string export_("Export=-1\r\n");
  const std::string missing = "\"Error\" \"9\\nSubscript out of range\"";
  const std::vector<Settings> cases{
      {"as written", usual, "111111", "2/1/2026 2/28/2026", ""},
      {"a line too many", Replace(usual, export_, "Extra=1\r\n" + export_), "000000",
       "1/5/2026 1/5/2026", "\"Error\" \"13\\nType mismatch\""},
      {"two lines changed about",
       Replace(Replace(usual, export_, ""), "Nav=-1\r\n", "Nav=-1\r\n" + export_), "001111",
       "2/1/2026 2/28/2026", ""},
      {"no section", usual.substr(0, usual.find("[Remittance]")), "000000", "1/5/2026 1/5/2026",
       missing},
      {"no file", "", "000000", "1/5/2026 1/5/2026", missing},
      {"a kind that is none", Replace(usual, "Default=0", "Default=no"), "111111",
       "2/1/2026 2/28/2026", "\"Error\" \"13\\nType mismatch\""},
      {"one date of another year", Replace(usual, "To=2/28/2026", "To=3/7/2031"), "111111",
       "2/1/2026 3/7/2026", ""},
  };
  ReportCompany company;
  for (const Settings& settings : cases) {
    company.Disk().Write(company.ConfigFile(), settings.file);
    frmRemittanceCalc window(company.Context());
    window.Load();
    EXPECT_EQ(Ticks(window), settings.ticks) << settings.what;
    EXPECT_EQ(window.dtpStarting.ShownText() + " " + window.dtpEnding.ShownText(), settings.dates)
        << settings.what;
    EXPECT_EQ(company.Services().NextBox(), settings.box) << settings.what;
    EXPECT_EQ(company.Services().NextBox(), "") << settings.what;
  }
}

TEST(RemittanceWindow, AsksForTheYearOnceEvenWhereItCantBeKept) {
  ReportCompany company;
  company.Disk().Write(company.ConfigFile(), Replace(kUsual, "CurrentYear=2026", "CurrentYear="));
  company.Disk().Fail("write", "LorvaneConfig.ini", 61);
  company.Services().Answer("2030");
  frmRemittanceCalc window(company.Context());
  window.Load();
  EXPECT_EQ(window.dtpStarting.ShownText(), "2/1/2030");
  EXPECT_EQ(window.Property("CurrentYear"), "2030");
}

TEST(RemittanceWindow, HandsItsValuesToTheViewerAndHidesTheProgress) {
  ReportCompany company;
  company.Disk().Write(company.ConfigFile(), Replace(kUsual, "Nav=-1", "Nav=0"));
  frmRemittanceCalc window(company.Context());
  window.Load();
  company.Services().InWindow([&](Screen& viewer) {
    EXPECT_EQ(viewer.Name(), "frmrptEmp");
    EXPECT_EQ(viewer.Property("NavButtons"), "false");
    EXPECT_EQ(viewer.Property("zoom"), "true");
    EXPECT_EQ(viewer.Property("EndDate"), "February 28, 2026");
    EXPECT_TRUE(window.prgReport.Visible());
  });
  window.cmdOK.UserClick();
  EXPECT_FALSE(window.prgReport.Visible());
  // The summaries take no notice of what is chosen.
  window.optEmployee.Choose();
  company.Services().InWindow([](Screen& viewer) {
    EXPECT_EQ(viewer.Property("Identifier"), "123456789NW0001 | 0002");
    EXPECT_EQ(viewer.Property("IndustryDesc"), "Roofing");
  });
  window.cmdSummary.UserClick();
  EXPECT_EQ(company.Services().NextBox(), "");
}

}  // namespace
}  // namespace lorvane
