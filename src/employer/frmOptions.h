#pragma once

#include "company/cCompany.h"
#include "employer/ContactFields.h"
#include "employer/PrincipalsPage.h"
#include "employer/cOptions.h"
#include "people/FieldHabits.h"
#include "screen/Buttons.h"
#include "screen/Labelled.h"
#include "screen/Screen.h"
#include "screen/TabStrip.h"

namespace lorvane {

/// The window on the employer update: contacts, payroll, bank and business, and the principals.
///
/// Leaving it saves everything but the principals, unasked. From the first time on the contacts no
/// longer follow the company's address.
class frmOptions : public Screen {
  FieldHabits habits_{*this, [] {}};

 public:
  explicit frmOptions(ScreenContext context);

  TabStrip sstOptions{*this, "sstOptions", {"Contacts", "Business", "Principals"}};
  ContactFields claim;
  ContactFields financial;
  ContactFields location;
  Frame fraPayrollService{*this, "fraPayrollService", "Payroll"};
  OptionButton optInternally{*this, "optInternally", "optPayroll",
                             "Our payroll is prepared internally"};
  OptionButton optExternally{*this, "optExternally", "optPayroll",
                             "Our payroll is prepared externally by:"};
  Label lblNameOfProvider{*this, "lblNameOfProvider", "Name of provider:"};
  TextBox txtPayrollService{*this, "txtPayrollService"};
  Frame fraFinancialInstitution{*this, "fraFinancialInstitution", "Financial Institution"};
  Labelled<TextBox> txtBankName{*this, "txtBankName", "Name:"};
  Labelled<TextBox> txtAcctNo{*this, "txtAcctNo", "Account No.:"};
  Frame fraMainBusiness{*this, "fraMainBusiness", "Main Business"};
  Labelled<TextBox> txtMainBusiness{*this, "txtMainBusiness", "Main business:"};
  PrincipalsPage principalsPage;
  Command cmdOK{*this, "cmdOK", "&OK"};
  Command cmdClose{*this, "cmdClose", "&Close"};

  void Load() override;
  [[nodiscard]] bool QueryUnload() override;
  void Unload() override;

 private:
  void LayOut();
  void Connect();
  void EnableProvider(bool enabled);
  /// False when there is no company to take an address from; the user has been told.
  bool OpenCompany();
  void ShowOptions(bool companyFound);
  void ShowContact(ContactFields& fields, const EmployerContact& stored, bool companyFound) const;
  void CopyFields();
  void SaveOptions();

  cCompany company_;
  cOptions options_;
};

}  // namespace lorvane
