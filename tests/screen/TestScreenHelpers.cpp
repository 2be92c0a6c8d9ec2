#include <gtest/gtest.h>

#include "basic/RuntimeError.h"
#include "screen/Buttons.h"
#include "screen/Screen.h"
#include "screen/TabStrip.h"
#include "screen/TextBox.h"
#include "screen/modForm.h"
#include "screen/modStatus.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

class ScreenHelpers : public testing::Test {
 protected:
  TestCompany company_;
  ScreenContext context_ = company_.Context();
  Screen screen_{context_, "frmTest", "Test Window"};
};

TEST_F(ScreenHelpers, TheStatusBarComesBackAsItStood) {
  StatusMsg(context_, "Ready");
  StatusAssessment(context_, "Employee");
  StatusForm(context_, "frmMain");
  const std::string saved = StatusPush(context_, "Please wait...");
  EXPECT_EQ(company_.GetSession().status.Msg, "Please wait...");
  EXPECT_EQ(context_.services.Pointer(), pointer::kHourglass);
  StatusAssessment(context_, "Sub-Contractor");
  StatusPop(context_, saved, true);
  EXPECT_EQ(company_.GetSession().status.Msg, "Ready");
  EXPECT_EQ(company_.GetSession().status.Assessment, "Status: Employee");
  EXPECT_EQ(company_.GetSession().status.Form, "frmMain");
  EXPECT_EQ(context_.services.Pointer(), pointer::kDefault);

  context_.services.SetPointer(pointer::kHourglass);
  StatusPop(context_, saved, false);
  EXPECT_EQ(context_.services.Pointer(), pointer::kHourglass);
  EXPECT_THROW(StatusPop(context_, "two\ttabs\tonly", true), RuntimeError);
}

TEST_F(ScreenHelpers, TheSaveQuestionBorrowsTheDefaultPointer) {
  context_.services.SetPointer(pointer::kHourglass);
  company_.Services().Answer(ScriptAnswer::Kind::kCancel);
  EXPECT_EQ(AskSave(screen_), answer::kCancel);
  EXPECT_EQ(context_.services.Pointer(), pointer::kHourglass);
  EXPECT_EQ(company_.Services().NextBox(),
            "\"Test Window\" \"Your information has changed.\\n\\nDo you wish to save the "
            "changes?\"");
}

TEST_F(ScreenHelpers, AFieldInErrorGetsTheFocusOnItsPage) {
  TabStrip tabs(screen_, "sst", {"General", "Industry"});
  TextBox disabled(screen_, "txtOld");
  TextBox field(screen_, "txtBusNum");
  disabled.DataField = field.DataField = "BusNum";
  disabled.SetEnabled(false);
  field.TabPage = 2;
  FocusFieldInError(screen_, " busnum ", &tabs);
  EXPECT_EQ(screen_.Focus(), &field);
  EXPECT_EQ(tabs.Tab(), 1);
  tabs.SetTab(0);
  FocusFieldInError(screen_, "LegalName", &tabs);
  EXPECT_EQ(screen_.Focus(), &field);
  EXPECT_EQ(tabs.Tab(), 0);
}

TEST_F(ScreenHelpers, ValidationKeepsTheFocusAndTabMovesIt) {
  TextBox first(screen_, "txtFirst");
  Label label(screen_, "lbl");
  TextBox second(screen_, "txtSecond");
  std::string events;
  first.OnValidate = [&] {
    events += "v";
    return !first.Text().empty();
  };
  first.OnLostFocus = [&] { events += "l"; };
  second.OnGotFocus = [&] { events += "g"; };
  screen_.SetFocus(first);
  EXPECT_FALSE(screen_.MoveFocus(second));
  EXPECT_EQ(screen_.Focus(), &first);
  first.SetText("x");
  screen_.UserKey(first, key_code::kTab);
  EXPECT_EQ(screen_.Focus(), &second);
  EXPECT_EQ(events, "vvlg");
  screen_.FocusNext();
  EXPECT_EQ(screen_.Focus(), &first);
}

TEST_F(ScreenHelpers, CentringHalvesTheDifference) {
  Screen main(context_, "frmMain", "Main");
  company_.Services().Show(main);
  main.Place = {0, 0, 801, 600};
  screen_.Place = {0, 0, 300, 903};
  CentreForm(screen_);
  EXPECT_EQ(screen_.Place.left, 250);
  EXPECT_EQ(screen_.Place.top, -151);
}

}  // namespace
}  // namespace lorvane
