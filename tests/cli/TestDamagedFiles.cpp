#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "cli/BooksCheck.h"
#include "cli/CompanyCheck.h"
#include "shell/TableUpgrades.h"
#include "shell/modLorvane.h"
#include "support/RowsText.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

constexpr std::size_t kPage = 1024;

std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string AllRows(EngineConnection& connection) {
  std::string rows;
  for (const std::string& table : connection.TableNames()) {
    rows += RowsText(connection, "SELECT * FROM " + table) + '\n';
  }
  return rows;
}

// The sample company, in a copy that is damaged.
class DamagedFile : public ::testing::Test {
 protected:
  DamagedFile() {
    const std::string sample = ProgramFolder() + "/Resource/Sample Data/";
    fs::copy_file(sample + "LorvaneConfig.ini", company_.ConfigFile(),
                  fs::copy_options::overwrite_existing);
    fs::copy_file(sample + "Data.mdb", company_.Folder() + "/Whole.mdb");
    // Stays open, so that the key is derived once.
    whole_ = company_.GetSession().gDataConn->MakeTwin();
    whole_->DataSource = company_.Folder() + "/Whole.mdb";
    whole_->OpenOrRaise();
    rows_ = AllRows(whole_->Connection());
    bytes_ = BytesOf(whole_->DataSource);
  }

  /// What is said of a data file with these bytes as it is opened and checked; empty when it is in
  /// order, and then its rows are those of the whole file.
  std::string Look(const std::string& bytes) {
    Session& session = company_.GetSession();
    session.gDataConn = whole_->MakeTwin();
    session.gDataConn->DataSource = path_;
    std::ofstream(path_, std::ios::binary) << bytes;
    std::string said = OpenAndCheck(session);
    session.gDataConn->DataClose();
    EXPECT_EQ(BytesOf(path_), bytes) << "it was changed";
    EXPECT_FALSE(fs::exists(path_ + "-wal"));
    return said;
  }

  std::string OpenAndCheck(const Session& session) {
    try {
      session.gDataConn->OpenOrRaise();
      static_cast<void>(VerifyCompanyTables(company_.Context()));
      const CompanyFindings company = CheckCompany(session);
      std::string said = Join(company.sentences, "\n");
      if (company.tablesAreWhole) {
        said += Join(CheckBooks(session), "\n");
      }
      if (said.empty()) {
        EXPECT_EQ(AllRows(session.gDataConn->Connection()), rows_);
      }
      return said;
    } catch (const RuntimeError& error) {
      return error.Description();
    }
  }

  TestCompany company_;
  std::string path_ = company_.Folder() + "/Damaged.mdb";
  std::unique_ptr<DataConnection> whole_;
  std::string bytes_;
  std::string rows_;
};

TEST_F(DamagedFile, AByteOfAnyPageIsToldOrDoesNotMatter) {
  EXPECT_EQ(Look(bytes_), "");
  const std::size_t pages = bytes_.size() / kPage;
  ASSERT_GT(pages, 50U);
  std::size_t told = 0;
  for (std::size_t page = 0; page < pages; ++page) {
    const std::size_t place = page * kPage + page * 131 % kPage;
    SCOPED_TRACE(place);
    std::string damaged = bytes_;
    damaged[place] = static_cast<char>(damaged[place] ^ 0x10);
    const std::string said = Look(damaged);
    if (!said.empty()) {
      ++told;
      // With another first page the password doesn't fit.
      EXPECT_THAT(said, HasSubstr(path_ + (page == 0 ? " could not be opened" : " is damaged")));
    }
  }
  // A page ends in some bytes that hold nothing.
  EXPECT_GE(told, pages - pages / 20);
}

TEST_F(DamagedFile, AFileThatIsCutOffIsTold) {
  for (std::size_t size = 0; size < bytes_.size(); size += size < 8 * kPage ? kPage : 9 * kPage) {
    for (const std::size_t length : {size, size + kPage / 2}) {
      SCOPED_TRACE(length);
      EXPECT_THAT(Look(bytes_.substr(0, length)), HasSubstr(path_));
    }
  }
}

TEST_F(DamagedFile, PagesInEachOthersPlaceAreTold) {
  const std::size_t pages = bytes_.size() / kPage;
  for (std::size_t page = 1; page + 1 < pages; page += 7) {
    SCOPED_TRACE(page);
    std::string swapped = bytes_;
    std::swap_ranges(swapped.begin() + static_cast<std::ptrdiff_t>(page * kPage),
                     swapped.begin() + static_cast<std::ptrdiff_t>((page + 1) * kPage),
                     swapped.begin() + static_cast<std::ptrdiff_t>((page + 1) * kPage));
    EXPECT_THAT(Look(swapped), HasSubstr(path_));
  }
}

}  // namespace
}  // namespace lorvane
