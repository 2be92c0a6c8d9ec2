#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>

#include "basic/RuntimeError.h"
#include "data/Files.h"
#include "support/TemporaryFolder.h"

namespace lorvane {
namespace {

/// Lets no file of this process grow beyond some bytes.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : signalWas_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &was_);
    const rlimit limit{bytes, was_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &was_);
    static_cast<void>(std::signal(SIGXFSZ, signalWas_));
  }

 private:
  rlimit was_{};
  void (*signalWas_)(int);
};

class FilesOnDisk : public testing::Test {
 protected:
  /// The number of the operation's error, 0 when there was none; the text must name the file.
  template <typename Operation>
  std::int32_t ErrorOf(const std::string& file, Operation operation) {
    try {
      operation();
      return 0;
    } catch (const RuntimeError& error) {
      EXPECT_NE(error.Description().find("'" + file), std::string::npos) << error.Description();
      return error.Number();
    }
  }
  [[nodiscard]] std::vector<std::string> Names() { return files_.Names(folder_.Path()); }

  TemporaryFolder folder_;
  DiskFiles files_;
  std::string old_ = folder_.File("old");
  std::string new_ = folder_.File("new");
};

TEST_F(FilesOnDisk, FoldersAreNamedAnewAndRemovedWhenEmpty) {
  using Strings = std::vector<std::string>;
  files_.MakeFolder(new_);
  files_.Write(new_ + "/b", "2");
  files_.Write(new_ + "/a", "1");
  files_.Write(old_, "here");
  EXPECT_EQ(ErrorOf(old_, [&] { files_.Rename(new_, old_); }), 58);
  EXPECT_EQ(ErrorOf(new_, [&] { files_.RemoveFolder(new_); }), 75);
  files_.Rename(new_, folder_.File("moved"));
  EXPECT_EQ(files_.Names(folder_.File("moved")), (Strings{"a", "b"}));
  EXPECT_EQ(files_.Names(new_), Strings());
  files_.Remove(folder_.File("moved/a"));
  files_.Remove(folder_.File("moved/b"));
  files_.RemoveFolder(folder_.File("moved"));
  EXPECT_EQ(Names(), Strings{"old"});
  EXPECT_EQ(ErrorOf(folder_.File("x"), [&] { files_.Rename(new_, folder_.File("x")); }), 53);
  EXPECT_GT(files_.FreeSpace(folder_.Path()), 0U);
  EXPECT_EQ(ErrorOf(new_, [&] { static_cast<void>(files_.FreeSpace(new_)); }), 53);
}

TEST_F(FilesOnDisk, WhatIsWrittenOverKeepsItsPermissions) {
  namespace fs = std::filesystem;
  files_.Write(old_, "alone");
  fs::permissions(old_, fs::perms(0660));
  files_.Write(old_, "shared");
  EXPECT_EQ(files_.Read(old_), "shared");
  EXPECT_EQ(fs::status(old_).permissions(), fs::perms(0660));
}

TEST_F(FilesOnDisk, CopyWholeAndNeverOverAFile) {
  std::string content(200000, 'x');
  content[70000] = '\0';
  files_.Write(old_, content);
  files_.Copy(old_, new_);
  EXPECT_EQ(files_.Read(new_), content);
  files_.Write(old_, "other");
  EXPECT_EQ(ErrorOf(new_, [&] { files_.Copy(old_, new_); }), 58);
  EXPECT_EQ(files_.Read(new_), content);
  files_.Copy(old_, folder_.File("small"));
  EXPECT_EQ(files_.Read(folder_.File("small")), "other");
}

TEST_F(FilesOnDisk, AFailedCopyLeavesNothing) {
  const std::string missing = folder_.File("missing");
  EXPECT_EQ(ErrorOf(missing, [&] { files_.Copy(missing, new_); }), 53);
  const std::string inMissing = missing + "/new";
  files_.Write(old_, std::string(200000, 'x'));
  EXPECT_EQ(ErrorOf(inMissing, [&] { files_.Copy(old_, inMissing); }), 53);
  EXPECT_EQ(ErrorOf(folder_.Path(), [&] { files_.Copy(folder_.Path(), new_); }), 75);
  {
    const FileSizeLimit limit(100000);
    EXPECT_EQ(ErrorOf(new_, [&] { files_.Copy(old_, new_); }), 75);
  }
  EXPECT_EQ(Names(), std::vector<std::string>{"old"});
}

TEST_F(FilesOnDisk, ACopyHasItsNameOnlyWhenItIsWhole) {
  EXPECT_EQ(ErrorOf(new_,
                    [&] {
                      files_.WriteNew(new_, [&](const TakeBytes& take) {
                        take("half");
                        EXPECT_FALSE(files_.Exists(new_));
                        std::ofstream(new_) << "somebody else's";
                      });
                    }),
            58);
  EXPECT_EQ(files_.Read(new_), "somebody else's");
  EXPECT_EQ(Names(), std::vector<std::string>{"new"});
}

TEST_F(FilesOnDisk, FoldersAndReplacements) {
  const std::string folder = folder_.File("2026");
  files_.MakeFolder(folder);
  EXPECT_EQ(ErrorOf(folder, [&] { files_.MakeFolder(folder); }), 58);
  const std::string deep = folder_.File("no/2026");
  EXPECT_EQ(ErrorOf(deep, [&] { files_.MakeFolder(deep); }), 53);
  files_.Write(old_, "12345");
  EXPECT_EQ(ErrorOf(new_, [&] { files_.Replace(old_, new_); }), 53);
  EXPECT_EQ(ErrorOf(new_, [&] { static_cast<void>(files_.Size(new_)); }), 53);
  EXPECT_EQ(files_.Size(old_), 5U);
  EXPECT_EQ(ErrorOf(folder, [&] { files_.Replace(old_, folder); }), 75);
  EXPECT_EQ(Names(), (std::vector<std::string>{"2026", "old"}));
}

TEST_F(FilesOnDisk, AFailedWriteKeepsTheOldContent) {
  files_.Write(old_, "kept");
  {
    const FileSizeLimit limit(100000);
    EXPECT_EQ(ErrorOf(old_, [&] { files_.Write(old_, std::string(200000, 'x')); }), 75);
  }
  std::filesystem::create_directory(new_);
  EXPECT_EQ(ErrorOf(new_, [&] { files_.Write(new_, "x"); }), 75);
  EXPECT_EQ(files_.Read(old_), "kept");
  EXPECT_EQ(files_.Read(new_), std::nullopt);
  EXPECT_EQ(Names(), (std::vector<std::string>{"new", "old"}));
  // What a crash left of an earlier write is in nobody's way.
  files_.Copy(old_, old_ + ".new" + std::to_string(getpid()));
  files_.Write(old_, "newer");
  EXPECT_EQ(files_.Read(old_), "newer");
  EXPECT_EQ(Names().size(), 2U);
}

TEST_F(FilesOnDisk, FindsANameInAnySpelling) {
  files_.Write(folder_.File("DATA.mdb"), "");
  EXPECT_EQ(FindWithoutCase(folder_.File("Data.MDB")), folder_.File("DATA.mdb"));
  files_.Write(folder_.File("data.mdb"), "");
  EXPECT_EQ(FindWithoutCase(folder_.File("data.mdb")), folder_.File("data.mdb"));
  EXPECT_EQ(FindWithoutCase(folder_.File("none")), folder_.File("none"));
  EXPECT_EQ(FindWithoutCase("/nowhere/Data.mdb"), "/nowhere/Data.mdb");
  EXPECT_NO_THROW(files_.Remove(folder_.File("none")));
}

}  // namespace
}  // namespace lorvane
