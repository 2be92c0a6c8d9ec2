#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <iterator>

#include "data/engine/Database.h"
#include "data/engine/EngineTest.h"
#include "support/FaultyVfs.h"

namespace lorvane {
namespace {

namespace fs = std::filesystem;

class Files : public EngineTest {
 protected:
  /// What Open says of a file: empty when it opens.
  std::string Refusal(const std::string& path, const std::string& password) {
    try {
      static_cast<void>(engine_.Open(path, password));
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), error_number::kEngineFailure);
      EXPECT_EQ(error.Description().find(password.empty() ? "?" : password), std::string::npos);
      return error.Description();
    }
    return {};
  }

  void Put(const std::string& name, const std::string& bytes) const {
    std::ofstream(folder_ + "/" + name, std::ios::binary) << bytes;
  }

  [[nodiscard]] std::string Bytes() const {
    std::ifstream file(path_, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

  [[nodiscard]] std::vector<std::string> NamesInFolder() const {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder_)) {
      names.push_back(entry.path().filename().string());
    }
    return names;
  }
};

TEST_F(Files, RefusesEachBadFileInASentenceThatNamesIt) {
  connection_.reset();
  const std::string good = Bytes();
  Put("empty.mdb", "");
  Put("short.mdb", "SQLite format 3");
  Put("letter.mdb", std::string(4096, 'x'));
  Put("cut.mdb", good.substr(0, 1024));
  Put("halfpage.mdb", good.substr(0, 700));
  std::string damaged = good;
  damaged[600] = static_cast<char>(damaged[600] + 1);
  Put("damaged.mdb", damaged);
  struct Case {
    const char* name;
    const char* password;
    const char* reason;
  };
  const std::vector<Case> cases{
      {"Data.mdb", "sesame", "could not be opened: the password is wrong"},
      {"Data.mdb", "", "is protected by a password or is not a data file."},
      {"missing.mdb", kPassword, "does not exist."},
      {"missing/Data.mdb", kPassword, "does not exist."},
      {".", kPassword, "is not a file."},
      {"empty.mdb", kPassword, "is not a data file."},
      {"empty.mdb", "", "is not a data file."},
      {"short.mdb", "", "is not a data file."},
      {"letter.mdb", kPassword, "could not be opened: the password is wrong"},
      {"letter.mdb", "", "is protected by a password or is not a data file."},
      {"cut.mdb", kPassword, "is damaged."},
      {"halfpage.mdb", kPassword, "could not be opened: the password is wrong"},
      {"damaged.mdb", kPassword, "could not be opened: the password is wrong"},
  };
  for (const Case& test : cases) {
    const std::string path = folder_ + "/" + test.name;
    const std::string expected = "The file " + path + " " + test.reason;
    EXPECT_EQ(Refusal(path, test.password).substr(0, expected.size()), expected) << test.name;
  }
  EXPECT_EQ(Refusal("", kPassword), "No data file is named.");
  EXPECT_EQ(Refusal(path_, kPassword), "");
  EXPECT_EQ(NamesInFolder().size(), 7U) << "nothing was made, and no side file is left";
}

TEST_F(Files, LeavesNoSideFilesWhenTheLastConnectionCloses) {
  std::unique_ptr<EngineConnection> other = engine_.Open(path_, kPassword);
  Run("INSERT INTO tblEmployees (LastName) VALUES ('Pike')");
  connection_.reset();
  EXPECT_EQ(Rows(*other, "SELECT LastName FROM tblEmployees"), "Pike");
  other.reset();
  EXPECT_EQ(NamesInFolder(), std::vector<std::string>{"Data.mdb"});
  connection_ = engine_.Open(path_, kPassword);
  EXPECT_EQ(Rows("SELECT LastName FROM tblEmployees"), "Pike");
}

// Whether another process sees a lock on the file.
bool IsLocked(const std::string& path) {
  const pid_t child = fork();
  if (child == 0) {
    struct flock lock {};
    lock.l_type = F_WRLCK;
    const int handle = open(path.c_str(), O_RDWR);
    _exit(fcntl(handle, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK ? 1 : 0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WEXITSTATUS(status) == 1;
}

TEST_F(Files, AnOpenFileIsReadWholeAndStaysLocked) {
  Run("INSERT INTO tblEmployees (LastName) VALUES ('Pike')");
  ASSERT_TRUE(IsLocked(path_));
  std::string bytes;
  const auto read = [&] {
    return Try([&] {
      connection_->ReadDataFile([&](std::string_view block) { bytes += block; });
      return std::string();
    });
  };
  EXPECT_EQ(read(), "");
  EXPECT_TRUE(IsLocked(path_));
  EXPECT_EQ(bytes, Bytes());
  Put("Copy.mdb", bytes);
  EXPECT_EQ(
      Rows(*engine_.Open(folder_ + "/Copy.mdb", kPassword), "SELECT LastName FROM tblEmployees"),
      "Pike");
  EXPECT_EQ(Try([&]() -> std::string {
              connection_->ReadDataFile([](std::string_view) { throw RuntimeError(61); });
              return {};
            }),
            "3d");
  EXPECT_EQ(Run("INSERT INTO tblEmployees (LastName) VALUES ('Rowe')"), "1");
  connection_->BeginBatch();
  EXPECT_EQ(read(), "80004005");
  connection_->EndBatch();
}

TEST_F(Files, WritesACompactCopyOfTheSameProtection) {
  for (int i = 0; i < 300; ++i) {
    connection_->InsertRow("tblEmployees", {{"Notes", std::string(500, 'n')}, {"Visits", i}});
  }
  Run("DELETE FROM tblEmployees WHERE Visits > 1");
  connection_->Checkpoint();
  const std::string copyPath = folder_ + "/Copy.mdb";
  const auto write = [&] {
    return Try([&] {
      connection_->WriteCompactCopy(copyPath);
      return std::string();
    });
  };
  EXPECT_EQ(write(), "");
  EXPECT_LT(fs::file_size(copyPath), fs::file_size(path_) / 10);
  EXPECT_EQ(Refusal(copyPath, ""),
            "The file " + copyPath + " is protected by a password or is not a data file.");
  const std::unique_ptr<EngineConnection> copy = engine_.Open(copyPath, kPassword);
  EXPECT_EQ(Rows(*copy, "SELECT EmployeeId, Visits FROM tblEmployees"), "1|0;2|1");
  EXPECT_TRUE(copy->CheckIntegrity().empty());
  EXPECT_TRUE(copy->ColumnsOf("tblEmployees")[0].isKey);
  EXPECT_EQ(write(), "3a");
  EXPECT_EQ(Run("INSERT INTO tblEmployees (Visits) VALUES (5)"), "1");
}

TEST_F(Files, ACompactCopyThatDoesNotFitLeavesNothingBehind) {
  for (const std::int64_t bytes : {0, 2000, 6000, 8000}) {
    SCOPED_TRACE(bytes);
    connection_.reset();
    FaultyVfs disk;
    connection_ = engine_.Open(path_, kPassword);
    disk.FillAfter(bytes);
    EXPECT_EQ(Try([&] {
                connection_->WriteCompactCopy(folder_ + "/Copy.mdb");
                return std::string();
              }),
              "80070070");
    disk.Heal();
    EXPECT_FALSE(fs::exists(folder_ + "/Copy.mdb"));
    EXPECT_EQ(Run("INSERT INTO tblEmployees (Visits) VALUES (5)"), "1");
    connection_.reset();
    EXPECT_EQ(NamesInFolder(), std::vector<std::string>{"Data.mdb"});
  }
}

TEST_F(Files, DerivesTheKeyOfAnOpenFileOnce) {
  EXPECT_EQ(engine_.Keys().Derivations(), 1);
  EXPECT_EQ(Refusal(path_, "sesame").empty(), false);
  EXPECT_EQ(engine_.Keys().Derivations(), 2);
  EXPECT_EQ(Refusal(path_, kPassword), "");
  EXPECT_EQ(engine_.Keys().Derivations(), 2);
  connection_.reset();
  EXPECT_EQ(Refusal(path_, kPassword), "");
  EXPECT_EQ(engine_.Keys().Derivations(), 3);
}

TEST_F(Files, ConnectionsOutliveTheEngine) {
  std::unique_ptr<Engine> engine = MakeFileEngine();
  const std::unique_ptr<EngineConnection> other = engine->Open(path_, kPassword);
  engine.reset();
  EXPECT_EQ(other->Execute("INSERT INTO tblEmployees (LastName) VALUES ('Pike')"), 1);
}

TEST_F(Files, CreatesOnlyWhereNoFileIs) {
  const auto create = [&](const std::string& path) {
    return Try([&] {
      static_cast<void>(engine_.Create(path, kPassword));
      return std::string();
    });
  };
  EXPECT_EQ(create(path_), "3a");
  EXPECT_EQ(create(folder_ + "/nowhere/Data.mdb"), "80004005");
  FaultyVfs disk;
  disk.FillAfter(100);
  EXPECT_EQ(create(folder_ + "/Full.mdb"), "80070070");
  disk.Heal();
  EXPECT_FALSE(fs::exists(folder_ + "/Full.mdb"));
  EXPECT_EQ(create(folder_ + "/Full.mdb"), "");
  EXPECT_EQ(Refusal(folder_ + "/Full.mdb", kPassword), "");
}

TEST_F(Files, UnprotectedFilesOpenWithoutAPassword) {
  const std::string path = folder_ + "/Sic.mdb";
  engine_.Create(path, "")->CreateTable("tbl2026", {{"SIC", ColumnType::kText, 6}});
  EXPECT_EQ(Refusal(path, ""), "");
  EXPECT_EQ(Refusal(path, kPassword),
            "The file " + path + " is not protected by a password and can't be opened with one.");
  EXPECT_EQ(engine_.Open(path, "")->TableNames(), std::vector<std::string>{"tbl2026"});
}

TEST_F(Files, TakesWhatAnotherToolMadeWithThePassword) {
  const std::string path = folder_ + "/Other.mdb";
  Put("Other.mdb", "");
  {
    sql::Database file(path);
    file.Run("PRAGMA key = 'quay 9'");
    file.Run("PRAGMA cipher_compatibility = 3");
    file.Run("CREATE TABLE t (a INTEGER, b TEXT, c CURRENCY, d DATE, e BLOB)");
    file.Run(
        "INSERT INTO t VALUES (3000000000, 12, '7.5', 37991, 'x'), (1.5, 'b', 0.00001, "
        "'soon', 2), (1, Null, 2, '2004-01-05 08:15:00', Null)");
  }
  const std::unique_ptr<EngineConnection> other = engine_.Open(path, kPassword);
  EXPECT_EQ(Rows(*other, "SELECT * FROM t"),
            "3000000000|12|7.5|1/5/2004|x;1.5|b|0|soon|2;1||2|1/5/2004 8:15:00 AM|");
}

TEST_F(Files, RefusesAFileThatCantBeWritten) {
  connection_.reset();
  FaultyVfs disk;
  disk.ProtectFiles(true);
  EXPECT_EQ(Refusal(path_, kPassword),
            "The file " + path_ + " can't be written. Is it or its folder write-protected?");
}

TEST_F(Files, AWriteProtectedFileCanStillBeRead) {
  connection_->InsertRow("tblEmployees", {{"LastName", "Pike"}});
  connection_.reset();
  const std::string odd = folder_ + "/100%41 #1?.mdb";
  std::filesystem::copy_file(path_, odd);
  FaultyVfs disk;
  disk.ProtectFiles(true);
  for (const std::string& path : {path_, odd}) {
    connection_ = engine_.OpenToRead(path, kPassword);
    EXPECT_EQ(Rows("SELECT LastName FROM tblEmployees WHERE LastName = 'pike'"), "Pike");
    EXPECT_EQ(Run("DELETE FROM tblEmployees"), "80004005");
    connection_.reset();
  }
  EXPECT_EQ(Try([&] { return engine_.OpenToRead(path_, "wrong") ? "opened" : ""; }), "80004005");
  disk.Heal();
  // A file that can be written is read with what another connection has just written to it.
  connection_ = engine_.Open(path_, kPassword);
  connection_->InsertRow("tblEmployees", {{"LastName", "Perch"}});
  const std::unique_ptr<EngineConnection> reader = engine_.OpenToRead(path_, kPassword);
  EXPECT_EQ(Rows(*reader, "SELECT Count(*) FROM tblEmployees"), "2");
  connection_.reset();
}

TEST_F(Files, FindsDamageInsideAFile) {
  EXPECT_TRUE(connection_->CheckIntegrity().empty());
  for (int i = 0; i < 200; ++i) {
    connection_->InsertRow("tblEmployees", {{"Notes", std::string(60, 'n')}});
  }
  connection_.reset();
  std::string damaged = Bytes();
  const std::size_t middle = damaged.size() / 2;
  damaged[middle] = static_cast<char>(damaged[middle] + 1);
  Put("Data.mdb", damaged);
  connection_ = engine_.Open(path_, kPassword);
  EXPECT_FALSE(connection_->CheckIntegrity().empty());
  EXPECT_EQ(Rows("SELECT Count(Notes) FROM tblEmployees"), "80004005");
}

}  // namespace
}  // namespace lorvane
