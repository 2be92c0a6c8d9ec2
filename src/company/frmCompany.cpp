#include "company/frmCompany.h"

#include <utility>

#include "Version.h"
#include "basic/Text.h"
#include "company/frmSIC.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/modForm.h"
#include "screen/modListBox.h"
#include "screen/modStatus.h"
#include "screen/modTextBox.h"

namespace lorvane {
namespace {

int FilterNumber(int key) { return FilterKeyPressNumeric(key, false); }

}  // namespace

frmCompany::frmCompany(ScreenContext context)
    : Screen(context, "frmCompany", "Company Properties") {
  company_.SetDataConnection(context.session.gDataConn.get());
  industries_.SetDataConnection(context.session.gDataConn.get());
  ConnectControls();
}

void frmCompany::ConnectControls() {
  ConnectGeneralPage();
  ConnectIndustryPage();
  ConnectButtons();
}

void frmCompany::ConnectGeneralPage() {
  GeneralPage& page = generalPage;
  for (TextBox* box : page.Fields()) {
    ConnectField(*box);
  }
  ConnectKeys(page.txtBusNum, FilterNumber);
  ConnectKeys(page.txtPrgIdentifier, FilterKeyPressAlpha);
  ConnectKeys(page.cboProvinces);
  page.cboProvinces.OnClick = [this] { MarkChanged(); };
  Require(page.txtBusNum,
          "You must enter the nine digit business number\r\nsupplied to you by workers' "
          "compensation.");
  Require(page.txtPrgIdentifier,
          "You must enter the two letter program identifier\r\nsupplied to you by workers' "
          "compensation.");
  Require(page.txtLegalName, "You must enter the legal name of your company.");
  page.txtLegalName.OnLostFocus = [this, &page] {
    if (page.txtOpAs.Text().empty()) {
      WithoutEditing([&page] { page.txtOpAs.SetText(page.txtLegalName.Text()); });
    }
  };
  lstCompany.OnClick = [this] { ReadCompany(); };
}

void frmCompany::ConnectIndustryPage() {
  for (const IndustrySlot slot : kAllSlots) {
    IndustryRow& row = industryPage.Row(slot);
    for (TextBox* box : {&row.txtSic, &row.txtRate, &row.txtIdentifier}) {
      ConnectField(*box, FilterNumber);
    }
    ConnectKeys(row.chkInd);
    row.chkInd.OnClick = [this] { MarkChanged(); };
    row.chkInd.OnMouseUp = [this, slot](MouseButton button) {
      if (button == MouseButton::kRight) {
        OpenRenameMenu(slot);
      }
    };
    row.cmdRates.OnClick = [this, slot] {
      frmSIC lookUp(context_, *this);
      lookUp.SicIndex = static_cast<std::int16_t>(IndexOf(slot));
      context_.services.ShowModal(lookUp);
    };
  }
  industryPage.OnRenamed = [this] { MarkChanged(); };
}

void frmCompany::ConnectButtons() {
  cmdOK.OnClick = [this] { AcceptAndClose(); };
  cmdApply.OnClick = [this] { Save(); };
  cmdClose.OnClick = [this] { Close(); };
  cmdUpdateRates.TabPage = IndustryPage::kTabPage;
  cmdUpdateRates.OnClick = [this] { UpdateRates(); };
}

void frmCompany::ConnectField(TextBox& box, const KeyFilter& filter) {
  ConnectKeys(box, filter);
  box.OnGotFocus = [&box] { SelectText(box); };
  // What is pasted comes without keys.
  box.OnChange = [this] { MarkChanged(); };
}

void frmCompany::ConnectKeys(Control& control, const KeyFilter& filter) {
  control.OnKeyPress = [this, filter](int& key) {
    if (EnterActsAsTab(*this, key)) {
      return;
    }
    if (filter) {
      key = filter(key);
    }
    // A key that the filter swallows counts as well.
    MarkChanged();
  };
}

void frmCompany::Require(TextBox& box, const char* sentence) {
  box.OnValidate = [this, &box, sentence] {
    if (box.Text().empty()) {
      context_.services.MsgBox(sentence, box::kExclamation, "Required");
      return false;
    }
    return true;
  };
}

void frmCompany::OpenRenameMenu(IndustrySlot slot) {
  industryPage.ChooseForRename(slot);
  PopUp(industryPage.mnuPopUp);
}

void frmCompany::Load() {
  CentreForm(*this);
  WithoutEditing([this] {
    FillCompanies();
    ReadIndustries();
    newRecord_ = lstCompany.Count() == 0;
    if (newRecord_) {
      ShowNewRecord();
    }
  });
  ForgetChanges();
}

void frmCompany::FillCompanies() {
  company_.SelectFilter = 0;
  if (company_.OpenRecordset()) {
    do {
      ListAddItem(lstCompany, company_.CompanyId, company_.LegalName);
    } while (company_.MoveNext());
  } else if (!company_.InfoMsg().empty()) {
    context_.services.MsgBox(company_.InfoMsg());
  }
  company_.CloseRecordset();
  if (lstCompany.Count() > 0) {
    lstCompany.SetListIndex(0);
  }
}

// The record knows no selection: whichever entry is chosen, the table's first row comes.
void frmCompany::ReadCompany() {
  company_.SelectFilter = 0;
  if (lstCompany.ListIndex() >= 0) {
    company_.CompanyId = lstCompany.ItemData(lstCompany.ListIndex());
  }
  if (company_.Find()) {
    WithoutEditing([this] { generalPage.Show(company_); });
  } else if (!company_.InfoMsg().empty()) {
    context_.services.MsgBox(company_.InfoMsg());
  }
  company_.CloseRecordset();
}

void frmCompany::ReadIndustries() {
  industries_.SelectFilter = 0;
  if (industries_.OpenRecordset()) {
    industryPage.Show(industries_);
  }
  industries_.CloseRecordset();
}

void frmCompany::ShowNewRecord() {
  generalPage.ShowNew();
  industryPage.ShowNew();
}

void frmCompany::Restore() {
  WithoutEditing([this] {
    ReadCompany();
    ReadIndustries();
    if (newRecord_) {
      ShowNewRecord();
    }
  });
  ForgetChanges();
}

void frmCompany::Activate() {
  StatusForm(context_, Name());
  StatusMsg(context_, Caption());
}

bool frmCompany::QueryUnload() {
  if (changed_) {
    const int given = AskSave(*this);
    if (given == answer::kCancel || (given == answer::kYes && !Save())) {
      return false;
    }
  }
  StoreName();
  if (std::exchange(RefreshAssessment, false)) {
    if (Screen* payments = context_.services.FindScreen("frmSelectAssessment")) {
      payments->Call("RefreshList");
    }
  }
  return true;
}

void frmCompany::Unload() {
  StatusMsg(context_, std::string("Lorvane Assessment for Windows ") + kVersionText);
  company_.CloseRecordset();
  industries_.CloseRecordset();
}

void frmCompany::AcceptAndClose() {
  if (!industryPage.AnyInUse()) {
    context_.services.MsgBox("You forgot to assign an industry.", box::kExclamation, "Industry");
    return;
  }
  StoreName();
  if (Screen* main = context_.services.FindScreen("frmMain")) {
    // Until the next opening the title has a year in it that no other title has.
    main->SetCaption(std::string("Lorvane Assessment 2000 for Windows ") + kVersionText +
                     " for: " + generalPage.txtLegalName.Text());
  }
  Close();
}

void frmCompany::StoreName() {
  cINI ini = context_.session.Ini();
  // As a property, so that a company may be named as the word that keeps what stands there.
  ini.KeyValue = generalPage.txtLegalName.Text();
  ini.KeySave("NA", "Environment", "Name");
  Setup = false;
}

// Closing years, and the rates of the next, are the main window's.
void frmCompany::UpdateRates() {
  if (Screen* main = context_.services.FindScreen("frmMain")) {
    main->Call("UpdateRates");
    WithoutEditing([this] { ReadIndustries(); });
  }
}

void frmCompany::CopyToRecords() {
  generalPage.CopyTo(company_);
  industryPage.CopyTo(industries_);
}

bool frmCompany::Save() {
  ScreenServices& services = context_.services;
  services.SetPointer(pointer::kHourglass);
  CopyToRecords();
  const bool added = newRecord_;
  const bool companySaved = added ? company_.AddNew() : company_.Update();
  newRecord_ = newRecord_ && !companySaved;
  const bool industriesSaved = industries_.Update();
  if (!added) {
    WithoutEditing([this] {
      generalPage.Show(company_);
      industryPage.ShowUsed(industries_);
    });
  }
  const bool saved = companySaved && industriesSaved;
  if (saved) {
    ForgetChanges();
  }
  services.SetPointer(pointer::kDefault);
  if (!companySaved) {
    services.MsgBox(company_.InfoMsg(), box::kExclamation, Caption());
    FocusFieldInError(*this, company_.FieldInError(), &sstCompany);
  }
  // Industries that can't be stored are passed over in silence; Apply stays on.
  return saved;
}

void frmCompany::TakeRate(IndustrySlot slot, const std::string& code,
                          const std::string& description, const std::string& rate) {
  industryPage.Row(slot).Take(code, description, rate);
  MarkChanged();
}

std::optional<std::string> frmCompany::Property(std::string_view name) const {
  if (EqualsNoCase(name, "RefreshAssessment")) {
    return FlagText(RefreshAssessment);
  }
  if (EqualsNoCase(name, "Setup")) {
    return FlagText(Setup);
  }
  return std::nullopt;
}

bool frmCompany::SetProperty(std::string_view name, std::string_view value) {
  const bool flag = EqualsNoCase(value, FlagText(true));
  if (EqualsNoCase(name, "RefreshAssessment")) {
    RefreshAssessment = flag;
  } else if (EqualsNoCase(name, "Setup")) {
    Setup = flag;
  } else {
    return false;
  }
  return true;
}

bool frmCompany::Call(std::string_view operation) {
  const bool rename = operation == "RenameIndustry";
  if (!rename && operation != "OpenRenameMenu") {
    return false;
  }
  if (const IndustryRow* row = industryPage.FocusedRow()) {
    if (rename) {
      industryPage.ChooseForRename(row->Slot());
      industryPage.Rename();
    } else {
      OpenRenameMenu(row->Slot());
    }
  }
  return true;
}

void frmCompany::KeyPreview(int& key) {
  if (key != key_code::kEscape) {
    return;
  }
  key = key_code::kNone;
  if (changed_) {
    Restore();
  } else {
    Close();
  }
}

template <typename Work>
void frmCompany::WithoutEditing(Work work) {
  const bool before = std::exchange(loading_, true);
  work();
  loading_ = before;
}

void frmCompany::MarkChanged() {
  if (!loading_ && !changed_) {
    changed_ = true;
    cmdApply.SetEnabled(true);
    cmdUpdateRates.SetEnabled(false);
  }
}

void frmCompany::ForgetChanges() {
  changed_ = false;
  cmdApply.SetEnabled(false);
  cmdUpdateRates.SetEnabled(true);
}

}  // namespace lorvane
