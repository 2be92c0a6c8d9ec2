#include <gtest/gtest.h>

#include <memory>

#include "people/frmBirthDate.h"
#include "people/frmContracts.h"
#include "people/frmEmployees.h"
#include "people/frmSubContractor.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

using Kind = ScriptAnswer::Kind;

void AddPeople(TestCompany& company) {
  company.Execute("UPDATE tblIndustries SET IndA = 1, DescA = 'Docks'");
  company.Execute("INSERT INTO tblCompany (CompanyId, Province) VALUES (1, 'NS')");
  for (const char* key : {"1", "2"}) {
    company.Execute(std::string("INSERT INTO tblEmployees (EmployeeId, LastName, FirstName, IndA) "
                                "VALUES (") +
                    key + ", 'Doe', 'Jane', 1)");
    company.Execute(std::string("INSERT INTO tblSubContract (SubContractId, Name, ContractType, "
                                "PercentLabour, IndA) VALUES (") +
                    key + ", 'Alpha', 'Labour Only', 33, 1)");
  }
}

template <typename Window>
class PeopleWindow : public testing::Test {
 protected:
  PeopleWindow() {
    AddPeople(company_);
    window_ = std::make_unique<Window>(company_.Context());
    company_.Services().Show(*window_);
  }

  TestCompany company_;
  std::unique_ptr<Window> window_;
};

using Windows = testing::Types<frmEmployees, frmSubContractor>;
TYPED_TEST_SUITE(PeopleWindow, Windows);

// A data file that can't be read any more, as when its disk was taken away.
TYPED_TEST(PeopleWindow, KeepsItsEntriesWhenTheTablesCantBeRead) {
  ListBox& list = this->window_->list;
  ScriptedServices& services = this->company_.Services();
  ASSERT_EQ(list.Count(), 2);
  this->company_.GetSession().gDataConn->DataClose();

  this->window_->toolBar.cmdTbrRefresh.UserClick();
  EXPECT_NE(services.NextBox().find(".OpenRecordset()"), std::string::npos);
  EXPECT_EQ(list.Count(), 2);

  // Whether there are payments can't be known, so nobody is asked and nothing is deleted.
  this->window_->toolBar.cmdTbrDelete.UserClick();
  EXPECT_NE(services.NextBox().find(".OpenRecordset()"), std::string::npos);
  EXPECT_EQ(list.Count(), 2);

  services.Answer("Do");
  this->window_->DataFind();
  EXPECT_NE(services.NextBox().find(".OpenRecordset()"), std::string::npos);
  EXPECT_EQ(services.NextBox(), "");

  this->window_->buttons.cmdAdd.UserClick();
  services.Answer(Kind::kYes);
  EXPECT_FALSE(this->window_->Close());
  services.Answer(Kind::kNo);
  EXPECT_TRUE(this->window_->Close());
}

TYPED_TEST(PeopleWindow, EnterPassesThroughEveryFieldOfABrowsingUser) {
  Screen& window = *this->window_;
  for (Control* control : window.Controls()) {
    const bool isField = dynamic_cast<TextBox*>(control) != nullptr ||
                         dynamic_cast<CheckBox*>(control) != nullptr ||
                         dynamic_cast<ComboBox*>(control) != nullptr;
    if (!isField || !control->Usable() || control->Name() == "txtDesc") {
      continue;
    }
    SCOPED_TRACE(control->Name());
    window.SetFocus(*control);
    const std::string shown = control->ShownText();
    window.UserKey(*control, key_code::kEnter);
    EXPECT_NE(window.Focus(), control);
    EXPECT_EQ(control->ShownText(), shown);
    EXPECT_EQ(window.Property("Dirty"), "false");
  }
}

using SubContractorWindow = PeopleWindow<frmSubContractor>;

TEST_F(SubContractorWindow, ReadsThePercentageByItsLength) {
  struct Case {
    const char* shown;
    const char* stored;
  };
  constexpr Case cases[] = {{"100%", "100"}, {"12.5%", "100"}, {"50%", "50"}, {"0%", "0"},
                            {"7.5%", "7.5"}, {"", "7.5"},      {"%", "7.5"},  {"-5%", "-5"}};
  for (const Case& row : cases) {
    SCOPED_TRACE(row.shown);
    window_->txtPercent.SetText(row.shown);
    window_->chkInd.Box(IndustrySlot::kA).OnMouseUp(MouseButton::kLeft);
    window_->buttons.cmdApply.UserClick();
    EXPECT_EQ(company_.First("SELECT PercentLabour FROM tblSubContract"), row.stored);
  }
  EXPECT_EQ(company_.Services().NextBox(), "");
}

TEST_F(SubContractorWindow, TakesTheTermsOfTheContractType) {
  struct Case {
    const char* type;
    const char* percent;
    bool hasExpiry;
  };
  constexpr Case cases[] = {
      {"Labour and Materials", "50%", false}, {"Clearance Letter Supplied", "0%", true},
      {"Logging (Chain Saw)", "75%", false},  {"Trucking and Leased Equipment", "25%", false},
      {"Not Assigned", "0%", false},          {"Courier Service", "50%", false},
      {"Exempt Industry", "0%", false},       {"Labour Only", "100%", false}};
  for (const Case& row : cases) {
    SCOPED_TRACE(row.type);
    window_->cboContract.SetText(row.type);
    EXPECT_EQ(window_->txtPercent.Text(), row.percent);
    EXPECT_EQ(window_->cmdDateSelect.Enabled(), row.hasExpiry);
  }
}

TEST_F(SubContractorWindow, AsksForTheIndustryBeforeTheContract) {
  window_->chkInd.Box(IndustrySlot::kA).UserClick();
  window_->cboContract.SetText("Not Assigned");
  window_->buttons.cmdOK.UserClick();
  EXPECT_EQ(company_.Services().NextBox(), R"("Assign Industry" "Please assign an industry.")");
  window_->chkInd.Box(IndustrySlot::kA).UserClick();
  window_->buttons.cmdOK.UserClick();
  EXPECT_EQ(company_.Services().NextBox(), R"("Assign Contract" "Please assign a contract type.")");
  EXPECT_FALSE(window_->IsClosed());
}

// The clock stands at 5 January 2026.
TEST_F(SubContractorWindow, RemarksOnClearanceLettersThatExpire) {
  const struct {
    const char* type;
    const char* expiry;
    const char* remark;
    Urgency urgency;
  } letters[] = {
      {"Clearance Letter Supplied", "#1/4/2026#", "expired 1/4/2026", Urgency::kOverdue},
      {"Clearance Letter Supplied", "#1/5/2026#", "expires 1/5/2026", Urgency::kSoon},
      {"Clearance Letter Supplied", "#2/4/2026#", "expires 2/4/2026", Urgency::kSoon},
      {"Clearance Letter Supplied", "#2/5/2026#", "", Urgency::kNone},
      {"Clearance Letter Supplied", "#1/1/1899#", "", Urgency::kNone},
      {"Labour Only", "#1/4/2026#", "", Urgency::kNone},
  };
  for (const auto& letter : letters) {
    SCOPED_TRACE(std::string(letter.type) + letter.expiry);
    company_.Execute(std::string("UPDATE tblSubContract SET ContractType = '") + letter.type +
                     "', Expiry = " + letter.expiry +
                     " WHERE SubContractId = " + std::to_string(window_->list.ItemData(0)));
    window_->toolBar.cmdTbrRefresh.UserClick();
    EXPECT_EQ(window_->list.Entries()[0].remark, letter.remark);
    EXPECT_EQ(window_->list.Entries()[0].urgency, letter.urgency);
  }
}

using EmployeeWindow = PeopleWindow<frmEmployees>;

TEST_F(EmployeeWindow, SwapsTheTwoFieldsOfTheNumber) {
  const auto stands = [&](const TextBox& box) { return box.Visible() && box.TabStop(); };
  EXPECT_TRUE(stands(window_->txtSin));
  EXPECT_FALSE(stands(window_->mtxtSin));
  window_->sstEmployees.SetTab(1);
  window_->buttons.cmdAdd.UserClick();
  EXPECT_FALSE(stands(window_->txtSin));
  EXPECT_TRUE(stands(window_->mtxtSin));
  // The cursor goes to a field that must be seen.
  EXPECT_EQ(window_->sstEmployees.Tab(), 0);
  EXPECT_EQ(window_->Focus(), &window_->txtFirstName);
}

TEST(DatePickerOfPeople, WritesNowhereWithoutItsWindow) {
  TestCompany company;
  for (const std::int16_t select : {frmBirthDate::kBirth, frmBirthDate::kExpiry}) {
    frmBirthDate picker(company.Context());
    picker.SelectDate = select;
    company.Services().InWindow([](Screen& screen) { screen.Find("cmdNoDate")->UserClick(); });
    company.Services().ShowModal(picker);
    EXPECT_TRUE(picker.IsClosed());
  }
}

TEST(ContractTypes, TellThatTheTableCantBeRead) {
  TestCompany company;
  frmContracts window(company.Context());
  company.Services().Show(window);
  company.GetSession().gDataConn->DataClose();
  window.lstProvinces.UserSelect(1);
  EXPECT_TRUE(company.Services().NextBox().starts_with(
      R"("LoadContracts" "cAssessable.OpenRecordset()\n)"));
  EXPECT_EQ(window.lvwContracts.Count(), 0);
}

}  // namespace
}  // namespace lorvane
