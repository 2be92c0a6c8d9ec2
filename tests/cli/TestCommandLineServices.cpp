#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "ScriptTestScreens.h"
#include "basic/RuntimeError.h"
#include "cli/CommandLineServices.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

class CommandLineServicesTest : public testing::Test {
 protected:
  CommandLineServices Make(bool interactive, bool assumeYes, const std::string& typed = {}) {
    in_.clear();
    in_.str(typed);
    return {
        session_, screens_, {in_, out_, err_, interactive}, FixedClock({2026, 1, 5}), assumeYes};
  }

  std::istringstream in_;
  std::ostringstream out_;
  std::ostringstream err_;
  DiskFiles files_;
  std::unique_ptr<Engine> engine_ = MakeFileEngine();
  Session session_{{engine_.get(), "/", FixedClock({2026, 1, 5})}, files_};
  ScreenRegistry screens_ = SmallScreens();
};

TEST_F(CommandLineServicesTest, BoxesStandOnOneLineOfStandardError) {
  CommandLineServices services = Make(false, false);
  EXPECT_EQ(services.MsgBox("First\r\nsecond\nthird", box::kCritical, "Error"), answer::kOk);
  EXPECT_EQ(err_.str(), "[Error] First / second / third\n");
  EXPECT_EQ(out_.str(), "");
}

TEST_F(CommandLineServicesTest, QuestionsAreRefusedUnlessToldOtherwise) {
  struct Case {
    int buttons;
    int refused;
    int agreed;
  };
  for (const Case& question : {Case{box::kYesNo, answer::kNo, answer::kYes},
                               Case{box::kYesNoCancel, answer::kNo, answer::kYes},
                               Case{box::kOkCancel, answer::kCancel, answer::kOk}}) {
    const int flags = question.buttons | box::kQuestion;
    EXPECT_EQ(Make(false, false).MsgBox("?", flags, ""), question.refused);
    EXPECT_EQ(Make(false, true).MsgBox("?", flags, ""), question.agreed);
  }
  EXPECT_EQ(Make(false, true).InputBox("Whom?", "Find", "Doe"), "");
  EXPECT_EQ(Make(false, true).AskForFile({"Open", "*.mdb", "Data.mdb"}), "");
}

TEST_F(CommandLineServicesTest, ATerminalIsAsked) {
  EXPECT_EQ(Make(true, false, "perhaps\n\n Y \n").MsgBox("?", box::kYesNo, ""), answer::kYes);
  EXPECT_EQ(Make(true, false, "yes\ncancel\n").MsgBox("?", box::kOkCancel, ""), answer::kCancel);
  EXPECT_EQ(Make(true, false, "").MsgBox("?", box::kYesNo, ""), answer::kNo);
  EXPECT_EQ(Make(true, false, "Burke\n").InputBox("Whom?", "Find", "Doe"), "Burke");
  EXPECT_EQ(Make(true, false, "\n").InputBox("Whom?", "Find", "Doe"), "Doe");
  EXPECT_EQ(Make(true, false, "").InputBox("Whom?", "Find", "Doe"), "");
}

TEST_F(CommandLineServicesTest, ScreensAreDrivenByHandlersAndLeft) {
  CommandLineServices services = Make(false, false);
  std::string seen;
  services.OnModal("FRMSMALL", [&](Screen& screen) {
    seen = services.ActiveScreen()->Caption();
    dynamic_cast<TextBox&>(*screen.Find("txtName")).SetText("unsaved");
  });
  EXPECT_TRUE(services.OpenScreen("frmSmall", {}));
  EXPECT_EQ(seen, "Small");
  EXPECT_EQ(services.ActiveScreen(), nullptr);
  services.OnModal("frmSmall", nullptr);
  EXPECT_FALSE(services.OpenScreen("frmMissing", {}));
}

TEST_F(CommandLineServicesTest, NothingIsLaunched) {
  CommandLineServices services = Make(true, true);
  const auto numberOf = [](const auto& operation) {
    try {
      operation();
    } catch (const RuntimeError& error) {
      return error.Number();
    }
    return 0;
  };
  EXPECT_EQ(numberOf([&] {
              services.RunShell({"Open", "calc.exe", "", ""});
            }),
            error_number::kFileNotFound);
  EXPECT_EQ(numberOf([&] { services.ShowHelp(); }), error_number::kHelpNotAvailable);
}

}  // namespace
}  // namespace lorvane
