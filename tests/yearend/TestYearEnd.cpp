#include <gtest/gtest.h>

#include <filesystem>

#include "support/FaultyVfs.h"
#include "yearend/YearEndTest.h"
#include "yearend/modYearEnd.h"

namespace lorvane {
namespace {

constexpr const char* kComplete =
    "\"Year End\" \"Year End Complete. \\n\\nDon't forget to verify if your industry rate(s)\\n"
    "have changed for the new year. You can change\\nyour industry rates in the company settings "
    "screen.\"";

using Strings = std::vector<std::string>;

TEST(YearEnd, ArchivesWhatWasAndClosesTheYear) {
  YearEndCompany company;
  EXPECT_TRUE(company.MakeYearEnd().PerformYE());
  EXPECT_EQ(company.Services().NextBox(), kComplete);
  EXPECT_EQ(company.Payroll(), YearEndCompany::kClosed);
  EXPECT_EQ(company.Ini("Assessment", "LastEntry"), "01/01/2027");
  EXPECT_EQ(company.Ini("Assessment", "CurrentYear"), "2026");
  EXPECT_EQ(company.Ini("DataBase", "YE"), "");
  // The company was open all the time, so its last entries stood in the log.
  EXPECT_EQ(company.Names("2026"), (Strings{"2026.mdb", "LorvaneConfig.ini"}));
  const auto archive =
      MakeFileEngine()->Open(company.Folder() + "/2026/2026.mdb", kDataFilePassword);
  EXPECT_TRUE(archive->CheckIntegrity().empty());
  EXPECT_EQ(YearEndCompany::Payroll(*archive), YearEndCompany::kOpen);
  company.GetSession().gConfigFile = company.Folder() + "/2026/LorvaneConfig.ini";
  EXPECT_EQ(company.Ini("DataBase", "YE"), "1");
  EXPECT_EQ(company.Ini("Assessment", "LastEntry"), "3/17/2026");
}

TEST(YearEnd, AFailedArchiveLeavesThePayrollAlone) {
  struct Case {
    const char* operation;
    const char* path;
    std::int32_t number;
    const char* box;
    Strings archive;
  };
  const std::string full =
      "\"Disk is Full\" \"Your disk is full.  Please free up some space and try again.\"";
  const std::string space =
      "\"Could Not Copy File(s)\" \"There was a problem copying files to this location.\\n"
      "Please make sure there is enough drive space and try again.\"";
  const Strings dataOnly{"2026.mdb"};
  const Case cases[] = {
      {"folder", "2026", 70, "\"Error\" \"70\\n'2026' failed.\"", {}},
      {"copy", "2026.mdb", 61, full.c_str(), {}},
      {"block", "2026.mdb", 61, full.c_str(), {}},
      {"block", "2026.mdb", error_number::kEngineDiskFull, space.c_str(), {}},
      {"copy",
       "2026.mdb",
       70,
       "\"Error\" \"You encountered the following error: 70\\nDescription: '2026.mdb' failed.\"",
       {}},
      {"copy", "LorvaneConfig.ini", 61, full.c_str(), dataOnly},
      {"block", "LorvaneConfig.ini", 61, full.c_str(), dataOnly},
      {"write", "2026/LorvaneConfig.ini", 61, nullptr, {"2026.mdb", "LorvaneConfig.ini"}}};
  for (const Case& row : cases) {
    SCOPED_TRACE(std::string(row.operation) + " of " + row.path);
    YearEndCompany company;
    company.Disk().Fail(row.operation, row.path, row.number);
    EXPECT_FALSE(company.MakeYearEnd().PerformYE());
    const std::string box = company.Services().NextBox();
    if (row.box != nullptr) {
      EXPECT_EQ(box, row.box);
    } else {
      EXPECT_TRUE(box.ends_with("could not be marked as that of a closed year.\"")) << box;
    }
    EXPECT_EQ(company.Services().NextBox(), "");
    EXPECT_EQ(company.Names("2026"), row.archive);
    // The company is open and as it was.
    EXPECT_EQ(company.Payroll(), YearEndCompany::kOpen);
    EXPECT_EQ(company.Ini("Assessment", "LastEntry"), "3/17/2026");
  }
}

TEST(YearEnd, AFolderOfTheYearIsNeverTouched) {
  YearEndCompany company;
  std::filesystem::create_directory(company.Folder() + "/2026");
  company.Disk().Write(company.Folder() + "/2026/2026.mdb", "last year's");
  EXPECT_FALSE(company.MakeYearEnd().PerformYE());
  EXPECT_EQ(company.Services().NextBox(),
            "\"Year End Folder\" \"A folder with the current year end date already exists.\\n\\n"
            "Please confirm that the year end procedure has not already been \\n"
            "performed.  If the year end has not been performed you will\\n"
            "have to delete this folder before you can continue.\"");
  EXPECT_EQ(company.Disk().Read(company.Folder() + "/2026/2026.mdb"), "last year's");
  EXPECT_EQ(company.Payroll(), YearEndCompany::kOpen);
}

TEST(YearEnd, ADiskThatFillsUpLeavesTheYearOpenOrClosed) {
  constexpr std::int64_t kPage = 1024;
  bool closed = false;
  int failures = 0;
  for (std::int64_t bytes = 0; !closed; bytes += kPage) {
    SCOPED_TRACE(bytes);
    FaultyVfs disk;
    YearEndCompany company;
    company.Connection().Checkpoint();
    disk.FillAfter(bytes);
    const std::int32_t number =
        ErrorOf([&] { static_cast<void>(company.MakeYearEnd().PerformYE()); });
    disk.Heal();
    closed = number == 0;
    if (!closed) {
      ++failures;
      EXPECT_EQ(number, error_number::kEngineDiskFull);
      EXPECT_EQ(company.Services().NextBox(), "");
      EXPECT_EQ(company.Ini("Assessment", "LastEntry"), "3/17/2026");
    }
    company.GetSession().gDataConn->DataOpen();
    EXPECT_EQ(company.Payroll(), closed ? YearEndCompany::kClosed : YearEndCompany::kOpen);
    ASSERT_LT(failures, 1000);
  }
  EXPECT_GT(failures, 2);
}

TEST(YearEnd, ErrorsOfTheClosingAreRaised) {
  YearEndCompany company;
  cYearEnd yearEnd = company.MakeYearEnd();
  yearEnd.Year = "20,6";
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(yearEnd.PerformYE()); }), error_number::kEngineCommand);
  EXPECT_EQ(company.Payroll(), YearEndCompany::kOpen);

  struct Case {
    const char* stored;
    std::int32_t number;
    const char* after;
  };
  constexpr Case cases[] = {{"2003", 0, "2004"},  {"0", 0, "1"},        {" 2026 ", 0, "2027"},
                            {"", 13, ""},         {"20x6", 13, "20x6"}, {"40000", 6, "40000"},
                            {"32767", 6, "32767"}};
  for (const Case& row : cases) {
    SCOPED_TRACE(row.stored);
    company.SetIni("Assessment", "CurrentYear", row.stored);
    EXPECT_EQ(ErrorOf([&] { yearEnd.ResetCurrentYear(); }), row.number);
    EXPECT_EQ(company.Ini("Assessment", "CurrentYear"), row.after);
  }
  company.GetSession().gDataConn->DataClose();
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(yearEnd.DeleteHistory()); }), 3704);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(yearEnd.ResetAccWages()); }), 3704);
}

TEST(YearEnd, TheMaximumIsSetForEveryEmployee) {
  FaultyVfs disk;
  YearEndCompany company;
  EXPECT_TRUE(ResetAllMaxContrib(*company.GetSession().gDataConn, 47250.55555));
  EXPECT_EQ(company.Payroll().substr(0, 36), "4|100.5|47250.5556;7|0.25|47250.5556");
  EXPECT_TRUE(company.MakeYearEnd().ResetMaxContrib(45000));
  EXPECT_EQ(company.First("SELECT Count(*) AS Rows FROM tblEmployees WHERE MaxContrib = 45000"),
            "2");
  disk.FillAfter(0);
  EXPECT_EQ(
      ErrorOf([&] { static_cast<void>(ResetAllMaxContrib(*company.GetSession().gDataConn, 1)); }),
      error_number::kEngineDiskFull);
  disk.Heal();
  EXPECT_EQ(company.First("SELECT Max(MaxContrib) AS M FROM tblEmployees"), "45000");
}

}  // namespace
}  // namespace lorvane
