#pragma once

#include <vector>

#include "company/ProvinceBox.h"
#include "company/cCompany.h"
#include "screen/Buttons.h"
#include "screen/Screen.h"
#include "screen/TextBox.h"

namespace lorvane {

/// The general page of the company window: what the board knows of the employer.
class GeneralPage {
  Screen& screen_;

 public:
  /// The page's place in the tab strip, counted from 1.
  static constexpr int kTabPage = 1;

  explicit GeneralPage(Screen& screen);

  Label lblBusNum{screen_, "lblBusNum", "Business Identifier:"};
  TextBox txtBusNum{screen_, "txtBusNum"};
  Label lblPrgIdentifier{screen_, "lblPrgIdentifier", "Program Identifier:"};
  TextBox txtPrgIdentifier{screen_, "txtPrgIdentifier"};
  Label lblLegalName{screen_, "lblLegalName", "Legal Name:"};
  TextBox txtLegalName{screen_, "txtLegalName"};
  Label lblOpAs{screen_, "lblOpAs", "Operating As:"};
  TextBox txtOpAs{screen_, "txtOpAs"};
  Label lblAddress{screen_, "lblAddress", "Address:"};
  TextBox txtAddress{screen_, "txtAddress"};
  Label lblCity{screen_, "lblCity", "City:"};
  TextBox txtCity{screen_, "txtCity"};
  Label lblProvinces{screen_, "lblProvinces", "Prov/State:"};
  ProvinceBox cboProvinces{screen_, "cboProvinces"};
  Label lblPostalCode{screen_, "lblPostalCode", "Post/Zip Code:"};
  TextBox txtPostalCode{screen_, "txtPostalCode"};
  Label lblPhone{screen_, "lblPhone", "Phone:"};
  TextBox txtAreaPhone{screen_, "txtAreaPhone"};
  TextBox txtPhone{screen_, "txtPhone"};
  Label lblFax{screen_, "lblFax", "Fax:"};
  TextBox txtAreaFax{screen_, "txtAreaFax"};
  TextBox txtFax{screen_, "txtFax"};
  Label lblEmail{screen_, "lblEmail", "Email:"};
  TextBox txtEmail{screen_, "txtEmail"};

  /// The text fields, in tab order.
  [[nodiscard]] std::vector<TextBox*> Fields();

  /// Shows the record. A province that isn't offered shows as a blank.
  void Show(const cCompany& company);
  /// What the window proposes for a company that isn't on file yet.
  void ShowNew();
  /// Copies what the controls hold into the record.
  void CopyTo(cCompany& company) const;
};

}  // namespace lorvane
