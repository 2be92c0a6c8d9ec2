#include <gtest/gtest.h>

#include "company/frmCompany.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

/// A window that notes which of its operations are called.
class NotingScreen : public Screen {
 public:
  using Screen::Screen;
  bool Call(std::string_view operation) override {
    calls += operation;
    return true;
  }
  std::string calls;
};

class CompanyWindow : public testing::Test {
 protected:
  /// Works in the window, which is then left without saving.
  template <typename Work>
  void InWindow(Work work) {
    frmCompany window(company_.Context());
    company_.Services().InWindow([&](Screen&) {
      work(window);
      if (window.cmdApply.Enabled()) {
        company_.Services().Answer(ScriptAnswer::Kind::kNo);
      }
    });
    company_.Services().ShowModal(window);
  }

  TestCompany company_;
};

TEST_F(CompanyWindow, TheKeyboardRenamesTheIndustryThatHasTheFocus) {
  InWindow([&](frmCompany& window) {
    Control* opened = nullptr;
    window.OnPopUp = [&](Control& menu) { opened = &menu; };
    IndustryRow& row = window.industryPage.Row(IndustrySlot::kE);
    window.MoveFocus(row.txtRate);
    EXPECT_TRUE(window.Call("RenameIndustry"));
    EXPECT_TRUE(window.Call("OpenRenameMenu"));
    EXPECT_FALSE(window.Call("Rename"));
    EXPECT_EQ(opened, nullptr);
    window.MoveFocus(row.chkInd);
    company_.Services().Answer("Net loft");
    EXPECT_TRUE(window.Call("RenameIndustry"));
    EXPECT_EQ(row.chkInd.Caption(), "Net loft");
    EXPECT_TRUE(window.Call("OpenRenameMenu"));
    EXPECT_EQ(opened, &window.industryPage.mnuPopUp);
    company_.Services().Answer("Sail loft");
    window.industryPage.mnuPoRename.UserClick();
    EXPECT_EQ(row.chkInd.Caption(), "Sail loft");
  });
}

TEST_F(CompanyWindow, ClosingRefreshesThePaymentListOnceWhenToldTo) {
  NotingScreen payments(company_.Context(), "frmSelectAssessment", "Payments");
  company_.Services().Show(payments);
  InWindow([](frmCompany&) {});
  EXPECT_EQ(payments.calls, "");
  InWindow(
      [](frmCompany& window) { EXPECT_TRUE(window.SetProperty("refreshassessment", "true")); });
  EXPECT_EQ(payments.calls, "RefreshList");
}

TEST_F(CompanyWindow, TabTurnsToThePageOfTheNextField) {
  InWindow([](frmCompany& window) {
    window.MoveFocus(window.generalPage.txtEmail);
    window.UserKey(window.generalPage.txtEmail, key_code::kEnter);
    EXPECT_EQ(window.Focus()->Name(), "chkIndA");
    EXPECT_EQ(window.sstCompany.Tab(), 1);
    EXPECT_FALSE(window.cmdApply.Enabled());
    window.FocusPrevious();
    EXPECT_EQ(window.Focus()->Name(), "txtEmail");
    EXPECT_EQ(window.sstCompany.Tab(), 0);
  });
}

// The counter gives no key: the company stays new, and the next try asks for one again.
TEST_F(CompanyWindow, AFirstSaveThatFailsIsTriedAgainAsNew) {
  InWindow([&](frmCompany& window) {
    window.generalPage.txtBusNum.SetText("104785236");
    window.generalPage.txtLegalName.SetText("Tern Ltd");
    company_.Execute("UPDATE tblTableIDs SET TableName = 'gone' WHERE TableName = 'tblCompany'");
    window.cmdApply.UserClick();
    EXPECT_TRUE(company_.Services().NextBox().starts_with(
        "\"Company Properties\" \"cCompany.GetNewPrimaryKey()\\n"));
    EXPECT_TRUE(window.cmdApply.Enabled());
    EXPECT_EQ(company_.First("SELECT Count(*) FROM tblCompany"), "0");
    company_.Execute("UPDATE tblTableIDs SET TableName = 'tblCompany' WHERE TableName = 'gone'");
    // The company is stored, its industries aren't: the row isn't added a second time.
    company_.Execute("DELETE FROM tblIndustries");
    window.cmdApply.UserClick();
    EXPECT_TRUE(window.cmdApply.Enabled());
    company_.Execute("INSERT INTO tblIndustries (DescA) VALUES ('x')");
    window.cmdApply.UserClick();
    EXPECT_FALSE(window.cmdApply.Enabled());
    EXPECT_EQ(company_.First("SELECT Count(*) FROM tblCompany"), "1");
  });
}

TEST_F(CompanyWindow, AProvinceThatIsNotOfferedStaysStored) {
  company_.Execute(
      "INSERT INTO tblCompany (CompanyId, BusNum, LegalName, Province) VALUES (3, '1', 'Tern', "
      "'NL')");
  InWindow([&](frmCompany& window) {
    EXPECT_EQ(window.generalPage.cboProvinces.Text(), "");
    window.generalPage.txtCity.SetText("Gander");
    window.cmdApply.UserClick();
    EXPECT_EQ(company_.First("SELECT Province FROM tblCompany WHERE City = 'Gander'"), "NL");
    window.generalPage.cboProvinces.UserSelect(2);
    window.cmdApply.UserClick();
    EXPECT_EQ(company_.First("SELECT Province FROM tblCompany"), "NB");
  });
}

}  // namespace
}  // namespace lorvane
