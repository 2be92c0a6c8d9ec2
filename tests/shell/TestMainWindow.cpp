#include <gtest/gtest.h>

#include "basic/RuntimeError.h"
#include "screen/TextBox.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "shell/modLorvane.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

// Stands in for the check list of a new company.
class CheckList : public Screen {
 public:
  static inline int loads = 0;
  static inline int alive = 0;
  static inline std::int32_t fails = 0;

  explicit CheckList(ScreenContext context) : Screen(context, "frmCheckList", "Check List") {
    ++alive;
    cmdOK.OnClick = [this] { Close(); };
  }
  CheckList(const CheckList&) = delete;
  CheckList& operator=(const CheckList&) = delete;
  ~CheckList() override { --alive; }

  Command cmdOK{*this, "cmdOK"};

  void Load() override {
    ++loads;
    if (fails != 0) {
      throw RuntimeError(fails, "as told");
    }
  }
};

const ScreenRegistry& Screens() {
  static const ScreenRegistry kScreens = [] {
    ScreenRegistry screens = AllScreens();
    screens.Add<CheckList>("frmCheckList");
    return screens;
  }();
  return kScreens;
}

/// Notes what a front is told of windows.
class WindowServices : public ScriptedServices {
 public:
  using ScriptedServices::ScriptedServices;

  void ArrangeWindows(WindowArrangement arrangement) override {
    told += std::to_string(static_cast<int>(arrangement)) + ";";
  }

  std::string told;

 protected:
  void ShowModeless(Screen& screen) override { told += "+" + screen.Name() + ";"; }
  void HideModeless(Screen& screen) override { told += "-" + screen.Name() + ";"; }
};

class MainWindow : public testing::Test {
 protected:
  MainWindow() {
    CheckList::loads = CheckList::fails = 0;
    services_.OpenModeless("frmSplash");
  }

  [[nodiscard]] std::string Front() const { return services_.ActiveScreen()->Name(); }
  void ChooseFromMenu(const char* entry) {
    services_.FindScreen("frmMain")->Find(entry)->UserClick();
  }
  void StartUp() {
    dynamic_cast<frmSplash&>(*services_.FindScreen("frmSplash")).Timer1_Timer();
    services_.told.clear();
  }

  TestCompany company_;
  WindowServices services_{company_.GetSession(), Screens()};
};

TEST_F(MainWindow, FollowsTheSplashScreen) {
  EXPECT_EQ(Front(), "frmSplash");
  EXPECT_EQ(services_.Pointer(), pointer::kHourglass);
  EXPECT_EQ(services_.ActiveScreen()->Find("lblAppVersion")->ShownText(), VersionLine());
  dynamic_cast<frmSplash&>(*services_.ActiveScreen()).Timer1_Timer();
  EXPECT_EQ(services_.told, "+frmSplash;+frmMain;-frmSplash;");
  EXPECT_EQ(Front(), "frmMain");
  EXPECT_EQ(services_.Pointer(), pointer::kDefault);
  EXPECT_EQ(services_.FindScreen("frmSplash"), nullptr);
  EXPECT_EQ(services_.ActiveScreen()->Caption(), MainTitle() + " <No Company Selected>");
}

TEST_F(MainWindow, ShowsTheCheckListBesideItself) {
  StartUp();
  ChooseFromMenu("mnuFNewCompany");
  EXPECT_EQ(Front(), "frmCheckList");
  services_.InWindow([&](Screen& about) { EXPECT_EQ(about.Name(), "frmAbout"); });
  ChooseFromMenu("mnuHabout");
  EXPECT_EQ(Front(), "frmCheckList");
  // Asked for again it comes to the front as it is.
  services_.OpenModeless("frmMain");
  EXPECT_EQ(Front(), "frmMain");
  ChooseFromMenu("mnuFNewCompany");
  EXPECT_EQ(Front(), "frmCheckList");
  EXPECT_EQ(CheckList::loads, 1);
  services_.ActiveScreen()->Find("cmdOK")->UserClick();
  EXPECT_EQ(Front(), "frmMain");
  EXPECT_EQ(services_.told, "+frmCheckList;+frmMain;+frmCheckList;-frmCheckList;");
  ChooseFromMenu("mnuFNewCompany");
  EXPECT_EQ(Front(), "frmCheckList");
  EXPECT_EQ(CheckList::loads, 2);
  EXPECT_EQ(CheckList::alive, 1);
}

TEST_F(MainWindow, TellsWhyTheCheckListDoesntOpen) {
  StartUp();
  CheckList::fails = 13;
  ChooseFromMenu("mnuFNewCompany");
  EXPECT_EQ(services_.NextBox(),
            "\"Company\" \"The was a problem setting up this company.\\n\\n"
            "Please close the application and try again.\"");
  CheckList::fails = 70;
  ChooseFromMenu("mnuFNewCompany");
  EXPECT_EQ(services_.NextBox(), "\"Error\" \"70\\nas told\"");
  EXPECT_EQ(Front(), "frmMain");
  EXPECT_EQ(CheckList::alive, 0);
}

TEST_F(MainWindow, ArrangesItsWindows) {
  StartUp();
  for (const char* entry : {"mnuWCascade", "mnuWHorizontal", "mnuWVertical", "mnuWArrange"}) {
    ChooseFromMenu(entry);
  }
  EXPECT_EQ(services_.told, "0;1;2;3;");
}

TEST_F(MainWindow, TellsAboutItself) {
  StartUp();
  for (const int key : {key_code::kEscape, key_code::kEnter, static_cast<int>(' ')}) {
    services_.InWindow([&](Screen& screen) {
      EXPECT_EQ(services_.Pointer(), pointer::kHourglass);
      auto& about = dynamic_cast<frmAbout&>(screen);
      EXPECT_EQ(about.lblAppVersion.ShownText(), VersionLine());
      about.UserKey(about.cmdOK, 'x');
      EXPECT_FALSE(about.IsClosed());
      about.UserKey(*about.Focus(), key);
      EXPECT_TRUE(about.IsClosed());
    });
    ChooseFromMenu("mnuHabout");
    EXPECT_EQ(services_.Pointer(), pointer::kDefault);
  }
}

}  // namespace
}  // namespace lorvane
