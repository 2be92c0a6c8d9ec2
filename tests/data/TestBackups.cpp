#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <future>
#include <optional>

#include "data/Backups.h"
#include "data/FolderTurn.h"
#include "support/ErrorOf.h"
#include "support/RowsText.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

namespace fs = std::filesystem;
using Strings = std::vector<std::string>;

const Strings kCompany{"Data.mdb", "LorvaneConfig.ini"};
constexpr DateTime kNow{2026, 1, 5, 9, 8, 7};

class BackupTest : public testing::Test {
 protected:
  BackupTest() {
    company_.Execute("INSERT INTO tblEmployees (EmployeeId, LastName) VALUES (4, 'Archer')");
  }

  Backup Make(const DateTime& now = kNow, std::uintmax_t roomToLeave = 0) {
    return backups_.Make(*company_.GetSession().gDataConn, now, roomToLeave);
  }
  RestoredCompany Restore(const std::string& backup, const std::string& folder) {
    return RestoreBackup(*company_.GetSession().gDataConn, company_.Disk(), backup, folder);
  }
  [[nodiscard]] Strings Names(const std::string& folder = {}) {
    return company_.Disk().Names(company_.Folder() + "/" + folder);
  }
  [[nodiscard]] static std::string LastNames(const std::string& dataFile) {
    return RowsText(*MakeFileEngine()->Open(dataFile, kDataFilePassword),
                    "SELECT LastName FROM tblEmployees");
  }

  TestCompany company_;
  Backups backups_{company_.Disk(), company_.DataFile()};
};

TEST_F(BackupTest, HoldsWhatWasWrittenUntilNow) {
  const Backup made = Make();
  EXPECT_EQ(made.name, "2026-01-05_09-08-07");
  EXPECT_EQ(made.folder, company_.Folder() + "/Backup/2026-01-05_09-08-07");
  EXPECT_EQ(made.size, fs::file_size(company_.DataFile()));
  EXPECT_EQ(Names("Backup"), Strings{made.name});
  EXPECT_EQ(Names("Backup/" + made.name), kCompany);
  EXPECT_EQ(LastNames(made.folder + "/Data.mdb"), "Archer");
  EXPECT_EQ(company_.Disk().Read(made.folder + "/LorvaneConfig.ini"),
            company_.Disk().Read(company_.ConfigFile()));
  // The company goes on.
  company_.Execute("UPDATE tblEmployees SET LastName = 'Burke'");
  EXPECT_EQ(Make().name, "2026-01-05_09-08-07-02");
  fs::remove(company_.ConfigFile());
  EXPECT_EQ(Make().name, "2026-01-05_09-08-07-03");
  EXPECT_EQ(Names("Backup/2026-01-05_09-08-07-03"), Strings{"Data.mdb"});
  EXPECT_EQ(LastNames(made.folder + "/Data.mdb"), "Archer");
  EXPECT_EQ(LastNames(made.folder + "-02/Data.mdb"), "Burke");
}

TEST_F(BackupTest, TheNewestTenAreKept) {
  for (int day = 1; day <= 11; ++day) {
    Make({2026, 1, day});
  }
  const std::vector<Backup> list = backups_.List();
  ASSERT_EQ(list.size(), Backups::kKept);
  EXPECT_EQ(list.front().name, "2026-01-11_00-00-00");
  EXPECT_EQ(list.back().name, "2026-01-02_00-00-00");
  // What somebody works on, or has put there himself, stays and doesn't count.
  company_.Disk().Write(list.back().folder + "/notes.txt", "mine");
  fs::create_directory(company_.Folder() + "/Backup/by hand");
  company_.Disk().Write(company_.Folder() + "/Backup/2026-01-01.txt", "mine");
  Make({2026, 1, 12});
  Make({2026, 1, 13});
  // With a clock that stands wrong the oldest of the others goes.
  Make({1999, 12, 31});
  Strings names;
  for (const Backup& backup : backups_.List()) {
    names.push_back(backup.name.substr(0, 10));
  }
  EXPECT_EQ(names, (Strings{"2026-01-13", "2026-01-12", "2026-01-11", "2026-01-10", "2026-01-09",
                            "2026-01-08", "2026-01-07", "2026-01-06", "2026-01-05", "2026-01-02",
                            "1999-12-31"}));
  EXPECT_EQ(Names("Backup").size(), 13U);
  // Those of another data file in the folder are its own.
  EXPECT_TRUE(Backups(company_.Disk(), company_.Folder() + "/Other.mdb").List().empty());
}

TEST_F(BackupTest, AFailureLeavesNothingBehind) {
  struct Case {
    const char* operation;
    const char* path;
    std::int32_t number;
  };
  constexpr Case cases[] = {{"folder", "Backup", 70},           {"folder", "unfinished", 61},
                            {"copy", "Data.mdb", 61},           {"block", "Data.mdb", 61},
                            {"block", "Data.mdb", -2147024784}, {"copy", "LorvaneConfig.ini", 61},
                            {"block", "LorvaneConfig.ini", 61}, {"rename", "09-08-07", 75}};
  for (const Case& row : cases) {
    SCOPED_TRACE(std::string(row.operation) + " of " + row.path);
    company_.Disk().Fail(row.operation, row.path, row.number);
    EXPECT_EQ(ErrorOf([&] { Make(); }), row.number);
    company_.Disk().Before = nullptr;
    EXPECT_FALSE(fs::exists(company_.Folder() + "/Backup"));
    EXPECT_EQ(company_.First("SELECT LastName FROM tblEmployees"), "Archer");
  }
  // A backup before it is untouched, and what a killed one has left is in nobody's way.
  Make();
  fs::create_directory(company_.Folder() + "/Backup/unfinished");
  company_.Disk().Write(company_.Folder() + "/Backup/unfinished/Data.mdb.new17", "half");
  company_.Disk().Fail("block", "Data.mdb", 61);
  EXPECT_EQ(ErrorOf([&] { Make(); }), 61);
  company_.Disk().Before = nullptr;
  EXPECT_EQ(Names("Backup"), Strings{"2026-01-05_09-08-07"});
  // An old backup that can't be removed is no reason to lose the new one.
  for (int day = 6; day <= 15; ++day) {
    company_.Disk().Fail("remove", "09-08-07/Data.mdb", 70);
    Make({2026, 1, day});
  }
  EXPECT_EQ(backups_.List().size(), 11U);
}

TEST_F(BackupTest, ACopyThatIsntAsTheFileIsNoBackup) {
  company_.Disk().Before = [&](std::string_view operation, const std::string& path) {
    if (operation == "copy" && path.ends_with("LorvaneConfig.ini")) {
      const std::string copy = company_.Folder() + "/Backup/unfinished/Data.mdb";
      std::string bytes = *company_.Disk().Read(copy);
      bytes[bytes.size() / 2] = static_cast<char>(~bytes[bytes.size() / 2]);
      company_.Disk().Before = nullptr;
      company_.Disk().Write(copy, bytes);
    }
  };
  EXPECT_EQ(ErrorOf([&] { Make(); }), error_number::kEngineFailure);
  EXPECT_EQ(Names(), (Strings{"Data.mdb", "Data.mdb-shm", "Data.mdb-wal", "LorvaneConfig.ini"}));
}

TEST_F(BackupTest, TheDiskMustHaveRoom) {
  company_.Connection().Checkpoint();
  const std::uintmax_t size = fs::file_size(company_.DataFile());
  company_.Disk().Room = size + 999;
  EXPECT_EQ(ErrorOf([&] { Make(kNow, 1000); }), error_number::kDiskFull);
  company_.Disk().Room = size + 1000;
  EXPECT_EQ(ErrorOf([&] { Make(kNow, 1000); }), 0);
  company_.GetSession().gDataConn->DataClose();
  EXPECT_EQ(ErrorOf([&] { Make(); }), error_number::kObjectClosed);
}

TEST_F(BackupTest, IsRestoredIntoAFolderOfItsOwn) {
  const Backup made = Make();
  company_.Execute("DELETE FROM tblEmployees");
  const std::string folder = company_.Folder() + "/again";
  const RestoredCompany restored = Restore(made.folder, folder);
  EXPECT_EQ(restored.dataFile, folder + "/Data.mdb");
  EXPECT_EQ(restored.size, made.size);
  EXPECT_EQ(Names("again"), kCompany);
  EXPECT_EQ(LastNames(restored.dataFile), "Archer");
  EXPECT_EQ(Names("Backup/" + made.name), kCompany);
  // By its data file, into a folder that is there, with separators at the ends.
  fs::create_directory(company_.Folder() + "/third");
  EXPECT_EQ(Restore(made.folder + "/Data.mdb", company_.Folder() + "/third/").dataFile,
            company_.Folder() + "/third/Data.mdb");
  EXPECT_EQ(Restore(made.folder + "/", company_.Folder() + "/fourth").size, made.size);
}

TEST_F(BackupTest, NothingIsRestoredOverACompany) {
  const Backup made = Make();
  const std::string folder = company_.Folder() + "/taken";
  for (const char* name : {"Data.mdb", "Data.mdb-wal", "Data.mdb-journal", "LORVANECONFIG.INI"}) {
    SCOPED_TRACE(name);
    fs::create_directory(folder);
    company_.Disk().Write(folder + "/" + name, "mine");
    EXPECT_EQ(ErrorOf([&] { Restore(made.folder, folder); }), error_number::kFileAlreadyExists);
    EXPECT_EQ(Names("taken"), Strings{name});
    EXPECT_EQ(company_.Disk().Read(folder + "/" + name), "mine");
    fs::remove_all(folder);
  }
}

TEST_F(BackupTest, AFailedRestoringLeavesNothingBehind) {
  const Backup made = Make();
  const std::string folder = company_.Folder() + "/again";
  for (const char* name : {"LorvaneConfig.ini", "Data.mdb"}) {
    SCOPED_TRACE(name);
    company_.Disk().Fail("block", std::string("again/") + name, error_number::kDiskFull);
    EXPECT_EQ(ErrorOf([&] { Restore(made.folder, folder); }), error_number::kDiskFull);
    EXPECT_FALSE(fs::exists(folder));
  }
  company_.Disk().Before = nullptr;
  EXPECT_EQ(ErrorOf([&] { Restore(company_.Folder() + "/nowhere", folder); }),
            error_number::kFileNotFound);
  EXPECT_EQ(ErrorOf([&] { Restore(company_.Folder(), folder); }), error_number::kFileNotFound);
  EXPECT_EQ(ErrorOf([&] { Restore(company_.ConfigFile(), folder); }), error_number::kEngineFailure);
  company_.Disk().Write(made.folder + "/Data.mdb", "no data file at all");
  EXPECT_EQ(ErrorOf([&] { Restore(made.folder, folder); }), error_number::kEngineFailure);
  EXPECT_FALSE(fs::exists(folder));
}

TEST_F(BackupTest, NothingIsRestoredIntoABackup) {
  const Backup made = Make();
  EXPECT_EQ(ErrorOf([&] { Restore(made.folder, made.folder + "/in"); }),
            error_number::kFileAlreadyExists);
  EXPECT_EQ(Names("Backup/" + made.name), (Strings{"Data.mdb", "LorvaneConfig.ini"}));
}

// As two programs would: one waits for the other.
TEST_F(BackupTest, AreMadeInTurns) {
  std::optional<FolderTurn> other(std::in_place, company_.Folder());
  std::future<void> waiting =
      std::async(std::launch::async, [&] { const FolderTurn turn(company_.Folder()); });
  EXPECT_EQ(waiting.wait_for(std::chrono::milliseconds(120)), std::future_status::timeout);
  other.reset();
  waiting.get();
}

// Copies go block after block, whatever the size.
TEST_F(BackupTest, LargeFilesAreCopiedToo) {
  constexpr int kRows = 210;
  constexpr std::size_t kMegabyte = 1U << 20U;
  company_.Execute("ALTER TABLE tblSubHistory ADD Notes MEMO");
  {
    const WriteBatch batch(company_.Connection());
    const std::string notes(kMegabyte, 'n');
    for (int row = 0; row < kRows; ++row) {
      company_.Connection().InsertRow("tblSubHistory", {{"Notes", notes}});
    }
  }
  EXPECT_GT(Make().size, 200 * kMegabyte);
}

}  // namespace
}  // namespace lorvane
