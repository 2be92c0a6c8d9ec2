#include "employer/frmOptions.h"

#include <initializer_list>

#include "basic/RuntimeError.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"

namespace lorvane {
namespace {

constexpr int kContactsPage = 1;
constexpr int kBusinessPage = 2;
constexpr int kPrincipalsPage = 3;

constexpr ContactDesign kClaim{"fraClaimRelated", "Claim Related", "Claim", "cboProvince_0", true,
                               kContactsPage};
constexpr ContactDesign kFinancial{"fraFinancial",  "Financial", "Finan",
                                   "cboProvince_1", true,        kContactsPage};
constexpr ContactDesign kLocation{
    "fraPhysicalAddress", "Physical Address", "Loc", "cboLocationProvince", false, kBusinessPage};

void CopyContact(EmployerContact& contact, const ContactFields& fields) {
  fields.CopyTo(contact);
  contact.SameAs = cOptions::kNo;
}

}  // namespace

frmOptions::frmOptions(ScreenContext context)
    : Screen(context, "frmOptions", "Employer Update Options"),
      claim(*this, habits_, kClaim),
      financial(*this, habits_, kFinancial),
      location(*this, habits_, kLocation),
      principalsPage(*this, sstOptions, kPrincipalsPage, context.session.gDataConn.get()),
      options_(context) {
  company_.SetDataConnection(context.session.gDataConn.get());
  LayOut();
  Connect();
}

void frmOptions::LayOut() {
  for (Control* control : std::initializer_list<Control*>{
           &fraPayrollService, &optInternally, &optExternally, &lblNameOfProvider,
           &txtPayrollService, &fraFinancialInstitution, &fraMainBusiness}) {
    control->TabPage = kBusinessPage;
  }
  for (Labelled<TextBox>* field : {&txtBankName, &txtAcctNo, &txtMainBusiness}) {
    field->LayOnPage(kBusinessPage);
  }
}

void frmOptions::Connect() {
  for (TextBox* field : std::initializer_list<TextBox*>{&txtPayrollService, &txtBankName,
                                                        &txtAcctNo, &txtMainBusiness}) {
    field->SetMaxLength(cOptions::kLongestValue);
    habits_.MakeEntryField(*field);
  }
  habits_.MarkEditWithKeys(optInternally);
  habits_.MarkEditWithKeys(optExternally);
  optInternally.OnClick = [this] {
    txtPayrollService.SetText({});
    EnableProvider(false);
  };
  optExternally.OnClick = [this] { EnableProvider(true); };
  cmdOK.OnClick = cmdClose.OnClick = [this] { Close(); };
}

void frmOptions::EnableProvider(bool enabled) {
  txtPayrollService.SetEnabled(enabled);
  lblNameOfProvider.SetEnabled(enabled);
}

void frmOptions::Load() {
  const bool companyFound = OpenCompany();
  // What couldn't be read stays empty; the user has been told.
  static_cast<void>(options_.GetOptions(context_.session.gConfigFile));
  ShowOptions(companyFound);
  principalsPage.NewProvince = company_.Province;
  principalsPage.Load();
}

bool frmOptions::OpenCompany() {
  company_.SelectFilter = 0;
  if (company_.OpenRecordset()) {
    return true;
  }
  context_.services.MsgBox("There was a problem opening your company information.",
                           box::kExclamation, "Company");
  return false;
}

void frmOptions::ShowOptions(bool companyFound) {
  ShowContact(claim, options_.Claim, companyFound);
  ShowContact(financial, options_.Finan, companyFound);
  ShowContact(location, options_.Loc, companyFound);
  txtPayrollService.SetText(options_.ServiceProvider);
  if (options_.Internal == cOptions::kYes) {
    optInternally.Choose();
  } else {
    optExternally.Choose();
  }
  txtBankName.SetText(options_.FinancialInstitution);
  txtAcctNo.SetText(options_.AcctNo);
  txtMainBusiness.SetText(options_.MainBusiness);
}

void frmOptions::ShowContact(ContactFields& fields, const EmployerContact& stored,
                             bool companyFound) const {
  if (stored.SameAs == cOptions::kNo) {
    fields.Show(stored);
  } else if (companyFound) {
    fields.Show(ContactOf(company_));
  }
}

bool frmOptions::QueryUnload() {
  SaveOptions();
  return principalsPage.MayClose();
}

void frmOptions::Unload() {
  principalsPage.Unload();
  company_.CloseRecordset();
}

void frmOptions::CopyFields() {
  CopyContact(options_.Claim, claim);
  CopyContact(options_.Finan, financial);
  CopyContact(options_.Loc, location);
  const bool internal = optInternally.Chosen();
  options_.Internal = internal ? cOptions::kYes : cOptions::kNo;
  options_.External = internal ? cOptions::kNo : cOptions::kYes;
  options_.ServiceProvider = internal ? std::string() : txtPayrollService.Text();
  options_.FinancialInstitution = txtBankName.Text();
  options_.AcctNo = txtAcctNo.Text();
  options_.MainBusiness = txtMainBusiness.Text();
}

void frmOptions::SaveOptions() {
  const auto warn = [this](const char* text, const char* title) {
    context_.services.MsgBox(text, box::kExclamation, title);
  };
  try {
    CopyFields();
  } catch (const RuntimeError&) {
    warn("Failed to move controls to properties", "Move");
    return;
  }
  if (!options_.SaveOptions(context_.session.gConfigFile)) {
    warn("There was a problem saving your current settings.", "Options");
  }
}

}  // namespace lorvane
