#include "people/frmEmployees.h"

#include <initializer_list>
#include <optional>

#include "basic/Money.h"
#include "basic/Number.h"
#include "people/NoDate.h"
#include "people/frmBirthDate.h"

namespace lorvane {
namespace {

constexpr PeopleWords kWords{
    "frmEmployees",
    "Employees on File",
    "lstEmployees",
    "true",
    "Please enter a full or partial last name.",
    "There is no employee with\r\na last name simliar to ",
    "You cannot delete an employee with entries for the current year.",
    "Are you sure you wish to delete the current employee?",
};

// In the order of the buttons.
constexpr const char* kMale = "Male";
constexpr const char* kFemale = "Female";
// What a new employee begins with, whatever maximum the others have been given.
constexpr const char* kNewMaxContrib = "41,100.00";

constexpr int kGeneralPage = 1;
constexpr int kIndustryPage = 2;

}  // namespace

frmEmployees::frmEmployees(ScreenContext context)
    : PeopleScreenOf(context, kWords),
      names_{{&txtFirstName, "FirstName", &cEmployee::FirstName},
             {&txtInitial, "Initial", &cEmployee::Initial},
             {&txtLastName, "LastName", &cEmployee::LastName},
             {&txtSin, "Sin", &cEmployee::Sin}},
      details_{{&txtStreet, "Street", &cEmployee::Street},
               {&txtCity, "City", &cEmployee::City},
               {&txtOccupation, "Occupation", &cEmployee::Occupation},
               {&txtProvince, "Province", &cEmployee::Province},
               {&txtPostalCode, "PostalCode", &cEmployee::PostalCode},
               {&txtMailing, "Mailing", &cEmployee::Mailing},
               {&txtHealth, "Health", &cEmployee::Health}},
      phones_{{&txtHPhone, "HPhone", &cEmployee::HPhone},
              {&txtCPhone, "CPhone", &cEmployee::CPhone},
              {&txtWPhone, "WPhone", &cEmployee::WPhone}} {
  LayOut();
  Connect();
}

void frmEmployees::LayOut() {
  for (Labelled<TextBox>* field :
       {&txtLastName, &txtInitial, &txtFirstName, &txtStreet, &txtCity, &txtProvince,
        &txtPostalCode, &txtHPhone, &txtWPhone, &txtCPhone, &txtMailing, &txtOccupation}) {
    field->LayOnPage(kGeneralPage);
  }
  for (Control* control : std::initializer_list<Control*>{&chkInactive, &fraGender, &optGenderMale,
                                                          &optGenderFemale}) {
    control->TabPage = kGeneralPage;
  }
  for (Labelled<TextBox>* field : {&txtSin, &txtHealth, &txtBirth, &txtMaxContrib, &txtAccWages}) {
    field->LayOnPage(kIndustryPage);
  }
  chkInd.LayOnPage(kIndustryPage);
  for (Control* control : std::initializer_list<Control*>{&fraReference, &mtxtSin, &cmdBirth}) {
    control->TabPage = kIndustryPage;
  }
  mtxtSin.SetTip("Social Insurance Number");
  txtMaxContrib.SetTip("Maximum contribution set by Lorvane");
  txtAccWages.SetTip("Current year's accumulated wages");
  txtBirth.SetReadOnly(true);
  txtAccWages.SetReadOnly(true);
  ShowSinField(txtSin, mtxtSin);
}

void frmEmployees::Connect() {
  constexpr std::size_t kLongestFirstName = 50;
  constexpr std::size_t kLongestLastName = 75;
  constexpr std::size_t kLongestSin = 15;
  txtFirstName.SetMaxLength(kLongestFirstName);
  txtLastName.SetMaxLength(kLongestLastName);
  txtInitial.SetMaxLength(1);
  txtSin.SetMaxLength(kLongestSin);

  Habits().MakeEntryFields(names_);
  Habits().MakeEntryFields(details_);
  Habits().MakeEntryFields(phones_);
  for (TextBox* field :
       std::initializer_list<TextBox*>{&mtxtSin, &txtBirth, &txtMaxContrib, &txtAccWages}) {
    Habits().MakeEntryField(*field);
  }
  FieldHabits::MakeCapitals(txtInitial);
  for (Control* control :
       std::initializer_list<Control*>{&chkInactive, &optGenderMale, &optGenderFemale}) {
    Habits().MarkEditWithMouse(*control);
  }
  chkInactive.DataField = "Inactive";
  txtBirth.DataField = "Birth";
  txtMaxContrib.DataField = "MaxContrib";
  txtAccWages.DataField = "AccWages";

  mtxtSin.OnChange = [this] { txtSin.SetText(mtxtSin.Text()); };
  txtMaxContrib.OnLostFocus = [this] { FormatMaxContrib(); };
  cmdBirth.OnClick = [this] { PickDate(frmBirthDate::kBirth, "Select a Birth Date"); };
}

std::string frmEmployees::EntryText() const { return AddedEntryText() + " " + record_.Initial; }

std::string frmEmployees::AddedEntryText() const {
  return record_.LastName + ", " + record_.FirstName;
}

bool frmEmployees::ShowRecord() {
  ShowSaved();
  ShowSinField(txtSin, mtxtSin);
  ShowTexts(record_, details_);
  ShowTexts(record_, phones_);
  txtBirth.SetText(ShownDate(record_.Birth));
  optGenderMale.Clear();
  optGenderFemale.Clear();
  if (record_.Gender == kMale) {
    optGenderMale.Choose();
  } else if (record_.Gender == kFemale) {
    optGenderFemale.Choose();
  }
  return true;
}

void frmEmployees::ShowSaved() {
  ShowTexts(record_, names_);
  txtAccWages.SetText(Money(record_.AccWages));
  txtMaxContrib.SetText(Money(record_.MaxContrib));
  chkInactive.SetChecked(record_.Inactive);
  chkInd.Tick(record_.Ind);
}

void frmEmployees::ClearFields() {
  ClearTexts(names_);
  // Emptied of a number that was typed, the masked field's underscores go over into txtSin.
  mtxtSin.SetText(mtxtSin.EmptyText());
  ShowSinField(mtxtSin, txtSin);
  ClearTexts(details_);
  ClearTexts(phones_);
  txtMaxContrib.SetText(kNewMaxContrib);
  txtAccWages.SetText({});
  txtBirth.SetText(kNoDateShown);
  chkInactive.SetChecked(false);
  chkInd.Tick({});
  optGenderMale.Clear();
  optGenderFemale.Clear();
}

void frmEmployees::CopyFields() {
  CopyTexts(names_, record_);
  record_.MaxContrib = ToDouble(txtMaxContrib.Text());
  record_.Inactive = chkInactive.Checked();
  record_.Ind = chkInd.Ticked();
  CopyTexts(details_, record_);
  record_.Birth = StoredDate(txtBirth.Text());
  record_.Gender = optGenderMale.Chosen() ? kMale : optGenderFemale.Chosen() ? kFemale : "";
}

void frmEmployees::MarkEdit() {
  PeopleScreen::MarkEdit();
  toolBar.ShowEditing();
}

void frmEmployees::ShowSinField(TextBox& shown, TextBox& hidden) {
  shown.SetVisible(true);
  shown.SetTabStop(true);
  hidden.SetVisible(false);
  hidden.SetTabStop(false);
}

// A text that is no number stays as it was typed.
void frmEmployees::FormatMaxContrib() {
  if (const std::optional<double> amount = ParseNumber(txtMaxContrib.Text())) {
    txtMaxContrib.SetText(Money(*amount));
  }
}

}  // namespace lorvane
