#include <gtest/gtest.h>

#include <filesystem>

#include "yearend/BackUpFirst.h"
#include "yearend/YearEndTest.h"

namespace lorvane {
namespace {

using Strings = std::vector<std::string>;

TEST(BackUpFirst, KeepsWhatWasBefore) {
  YearEndCompany company;
  EXPECT_EQ(BackUpFirst(company.Context()), "");
  EXPECT_EQ(company.Names("Backup"), Strings{"2026-01-05_10-00-00"});
  EXPECT_TRUE(company.MakeYearEnd().PerformYE());
  const auto backup = MakeFileEngine()->Open(
      company.Folder() + "/Backup/2026-01-05_10-00-00/Data.mdb", kDataFilePassword);
  EXPECT_EQ(YearEndCompany::Payroll(*backup), YearEndCompany::kOpen);
}

TEST(BackUpFirst, AnArchiveGetsNone) {
  YearEndCompany company;
  company.SetIni("Database", "YE", "1");
  EXPECT_EQ(BackUpFirst(company.Context()), "");
  EXPECT_FALSE(std::filesystem::exists(company.Folder() + "/Backup"));
}

TEST(BackUpFirst, TellsWhyThereIsNone) {
  YearEndCompany company;
  company.Disk().Fail("folder", "Backup", 70);
  EXPECT_EQ(BackUpFirst(company.Context()), "No backup was made. 'Backup' failed.");
  company.Disk().Before = nullptr;
  // Room for the backup alone would be taken from the command.
  company.Connection().Checkpoint();
  const std::uintmax_t size = company.Disk().Size(company.DataFile());
  company.Disk().Room = 4 * size - 1;
  EXPECT_EQ(BackUpFirst(company.Context()), "No backup was made. The disk has no room for it: " +
                                                std::to_string(4 * size) + " bytes must be free.");
  company.GetSession().gDataConn->DataSource.clear();
  EXPECT_TRUE(BackUpFirst(company.Context()).starts_with("No backup was made. "));
  EXPECT_EQ(company.Services().NextBox(), "");
  EXPECT_EQ(company.Names(),
            (Strings{"Data.mdb", "Data.mdb-shm", "Data.mdb-wal", "LorvaneConfig.ini"}));
}

}  // namespace
}  // namespace lorvane
