#pragma once

#include <string>

#include "payments/history/CHistoryEmp.h"
#include "people/PeopleScreenOf.h"
#include "people/cEmployee.h"
#include "screen/Labelled.h"
#include "screen/MaskedText.h"
#include "screen/TabStrip.h"

namespace lorvane {

struct EmployeeKind {
  using Person = cEmployee;
  using History = CHistoryEmp;
  static constexpr auto kKey = &cEmployee::EmployeeId;
  static constexpr auto kHistoryKey = &CHistoryEmp::EmployeeId;
  static constexpr auto kName = &cEmployee::LastName;
  static constexpr auto kWhereNameBegins = cEmployee::kWhereLastNameBegins;
  static constexpr auto kOrderByName = cEmployee::kOrderByLastName;
  static constexpr auto kOrderByNameDescending = cEmployee::kOrderByLastNameDescending;
};

/// The window on the company's employees: names, the person on one page, industries and amounts on
/// the other.
class frmEmployees : public PeopleScreenOf<EmployeeKind> {
 public:
  explicit frmEmployees(ScreenContext context);

  TabStrip sstEmployees{*this, "sstEmployees", {"General", "Industry"}};
  Labelled<TextBox> txtLastName{*this, "txtLastName", "Last name:"};
  Labelled<TextBox> txtInitial{*this, "txtInitial", "Initial:"};
  Labelled<TextBox> txtFirstName{*this, "txtFirstName", "First name:"};
  CheckBox chkInactive{*this, "chkInactive", "Inactive", "Active or inactive employee?"};
  Labelled<TextBox> txtStreet{*this, "txtStreet", "Street:"};
  Labelled<TextBox> txtCity{*this, "txtCity", "City/Town:"};
  Labelled<TextBox> txtProvince{*this, "txtProvince", "Prov/State:"};
  Labelled<TextBox> txtPostalCode{*this, "txtPostalCode", "Postal Code:"};
  Labelled<TextBox> txtHPhone{*this, "txtHPhone", "Home Phone:"};
  Labelled<TextBox> txtWPhone{*this, "txtWPhone", "Work Phone:"};
  Labelled<TextBox> txtCPhone{*this, "txtCPhone", "Cell Phone:"};
  Labelled<TextBox> txtMailing{*this, "txtMailing", "Mailing Address (if different from above):"};
  Frame fraGender{*this, "fraGender", "Gender"};
  OptionButton optGenderMale{*this, "optGender_0", "optGender", "Male"};
  OptionButton optGenderFemale{*this, "optGender_1", "optGender", "Female"};
  Labelled<TextBox> txtOccupation{*this, "txtOccupation", "Occupation:"};
  IndustryBoxes chkInd{*this, "The industry or industries this employee works in"};
  Frame fraReference{*this, "fraReference", "Reference"};
  /// Where a new employee's number is typed; an existing one's stands in txtSin, in the same place.
  MaskedText mtxtSin{*this, "mtxtSin", "###-###-###"};
  Labelled<TextBox> txtSin{*this, "txtSin", "Social Insurance #:"};
  Labelled<TextBox> txtHealth{*this, "txtHealth", "Health Card #:"};
  Labelled<TextBox> txtBirth{*this, "txtBirth", "Date of Birth:"};
  Command cmdBirth{*this, "cmdBirth", "..."};
  Labelled<TextBox> txtMaxContrib{*this, "txtMaxContrib", "Max. contribution:"};
  Labelled<TextBox> txtAccWages{*this, "txtAccWages", "Acc. wages:"};
  PeopleButtons buttons{*this};

 private:
  void LayOut();
  void Connect();

  [[nodiscard]] IndustryBoxes& Industries() override { return chkInd; }
  [[nodiscard]] PeopleButtons& Buttons() override { return buttons; }
  [[nodiscard]] TabStrip* Pages() override { return &sstEmployees; }
  [[nodiscard]] std::string EntryText() const override;
  [[nodiscard]] std::string AddedEntryText() const override;
  bool ShowRecord() override;
  void ShowSaved() override;
  void AfterSelection() override { toolBar.ShowBrowsing(); }
  void ClearFields() override;
  void CopyFields() override;
  [[nodiscard]] Control& FirstField() override { return txtFirstName; }
  void MarkEdit() override;

  void ShowSinField(TextBox& shown, TextBox& hidden);
  void FormatMaxContrib();

  /// Shown again after a save, as are the flags and amounts.
  TextFields<cEmployee> names_;
  TextFields<cEmployee> details_;
  /// Shown, and never copied into the record: the numbers on file stay as they are.
  TextFields<cEmployee> phones_;
};

}  // namespace lorvane
