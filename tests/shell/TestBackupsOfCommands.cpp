#include <gtest/gtest.h>

#include "shell/YearEndCommands.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

using Kind = ScriptAnswer::Kind;

class CommandBackups : public testing::Test {
 protected:
  CommandBackups() {
    company_.SetIni("Assessment", "CurrentYear", "2026");
    company_.SetIni("Assessment", "LastEntry", "3/17/2026");
    company_.GetSession().status.Msg = "as before";
  }

  [[nodiscard]] std::size_t Count() {
    return company_.Disk().Names(company_.Folder() + "/Backup").size();
  }
  [[nodiscard]] const std::string& Status() { return company_.GetSession().status.Msg; }
  void ForgetBoxes() {
    while (!company_.Services().NextBox().empty()) {
    }
  }
  void CloseYear() {
    company_.Services().Answer(Kind::kYes);
    company_.Services().Answer(Kind::kYes);
    PerformYearEnd(company_.Context());
    for (const char* begin : {"\"Year End\" \"You are about", "\"Year End\" \"The year end will",
                              "\"Year End\" \"Year End Complete."}) {
      const std::string box = company_.Services().NextBox();
      EXPECT_TRUE(box.starts_with(begin)) << box;
    }
    EXPECT_EQ(company_.Services().NextBox(), "");
    EXPECT_EQ(company_.Ini("Assessment", "CurrentYear"), "2027");
  }
  [[nodiscard]] CompactionOutcome Compact() {
    company_.Services().Answer(Kind::kYes);
    return CompactDatabase(company_.Context()).value();
  }

  TestCompany company_;
};

TEST_F(CommandBackups, OneIsMadeByEachCommandThatTheUserWants) {
  company_.Services().Answer(Kind::kNo);
  EXPECT_FALSE(CompactDatabase(company_.Context()).has_value());
  company_.Services().Answer(Kind::kNo);
  PerformYearEnd(company_.Context());
  EXPECT_EQ(Count(), 0U);
  ForgetBoxes();
  EXPECT_TRUE(Compact().compaction.done);
  ForgetBoxes();
  EXPECT_TRUE(Status().starts_with("Compacted Data.mdb: ")) << Status();
  EXPECT_TRUE(Status().ends_with(" bytes after")) << Status();
  EXPECT_EQ(Count(), 1U);
  company_.GetSession().status.Msg = "as before";
  CloseYear();
  EXPECT_EQ(Count(), 2U);
  EXPECT_EQ(Status(), "as before");
}

TEST_F(CommandBackups, ThatThereIsNoneStopsNothing) {
  company_.Disk().Fail("folder", "Backup", 70);
  const CompactionOutcome outcome = Compact();
  EXPECT_TRUE(outcome.compaction.done) << outcome.compaction.reason;
  EXPECT_EQ(Status(),
            DescribeCompaction(outcome.compaction) + ". No backup was made. 'Backup' failed.");
  ForgetBoxes();
  CloseYear();
  EXPECT_EQ(Status(), "No backup was made. 'Backup' failed.");
  EXPECT_EQ(company_.Services().Pointer(), pointer::kDefault);
}

}  // namespace
}  // namespace lorvane
