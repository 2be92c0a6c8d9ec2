#pragma once

#include <string>

#include "company/ProvinceBox.h"
#include "employer/RecordEditor.h"
#include "employer/cPrincipals.h"
#include "screen/Labelled.h"

namespace lorvane {

/// The page of the employer update on the company's owners, partners and officers.
class PrincipalsPage : public RecordEditorOf<cPrincipals, &cPrincipals::PrincipalId> {
 public:
  /// The page lies on `tabs` at `page`, counted from 1.
  PrincipalsPage(Screen& screen, TabStrip& tabs, int page, DataConnection* connection);

  Labelled<TextBox> txtPrincipalLastName{screen_, "txtPrincipalLastName", "Last name:"};
  Labelled<TextBox> txtPrincipalFirstName{screen_, "txtPrincipalFirstName", "First name:"};
  Labelled<TextBox> txtTitle{screen_, "txtTitle", "Title:"};
  Labelled<TextBox> txtPrincipalAddress{screen_, "txtPrincipalAddress", "Address:"};
  Labelled<TextBox> txtPrincipalCity{screen_, "txtPrincipalCity", "City:"};
  Labelled<ProvinceBox> cboPrincipalProvince{screen_, "cboPrincipalProvince", "Prov/State:"};
  Labelled<TextBox> txtPrincipalPostalCode{screen_, "txtPrincipalPostalCode", "Post/Zip Code:"};
  Labelled<TextBox> txtSin{screen_, "txtSin", "Social Insurance #:"};
  Labelled<TextBox> txtDob{screen_, "txtDob", "Date of birth:"};
  Labelled<TextBox> txtWork{screen_, "txtWork", "Work phone:"};
  Labelled<TextBox> txtCell{screen_, "txtCell", "Cell phone:"};
  Labelled<TextBox> txtHome{screen_, "txtHome", "Home phone:"};
  Labelled<TextBox> txtFax{screen_, "txtFax", "Fax:"};
  Command cmdAdd{screen_, "cmdAdd", "&Add"};
  Command cmdSave{screen_, "cmdSave", "&Save"};
  Command cmdDelete{screen_, "cmdDelete", "&Delete"};

  /// The province with which a new person begins.
  std::string NewProvince;

 private:
  void LayOut(int page);
  [[nodiscard]] std::string EntryText() const override;
  void ShowRecord() override;
  void ClearFields() override;
  void CopyFields() override;
  [[nodiscard]] Control& FirstField() override { return txtPrincipalLastName; }
  [[nodiscard]] bool IsComplete() override;
  [[nodiscard]] TabStrip* Pages() override { return &tabs_; }

  /// Whether the date of birth is a date, or none.
  [[nodiscard]] bool HasGoodDate() const;

  TabStrip& tabs_;
  TextFields<cPrincipals> texts_;
};

}  // namespace lorvane
