#include "payments/frmSelectAssessment.h"

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "company/IndustryCaption.h"
#include "company/cIndustry.h"
#include "payments/Posting.h"
#include "payments/frmPayment.h"
#include "payments/frmSelectDate.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/cShellExecute.h"
#include "screen/modForm.h"
#include "screen/modHelp.h"
#include "screen/modListBox.h"
#include "screen/modStatus.h"

namespace lorvane {
namespace {

constexpr const char* kSection = "Assessment";

template <typename T>
const T& At(const std::vector<T>& values, int index) {
  if (index < 0 || index >= static_cast<int>(values.size())) {
    throw RuntimeError(error_number::kSubscriptOutOfRange);
  }
  return values[static_cast<std::size_t>(index)];
}

}  // namespace

frmSelectAssessment::frmSelectAssessment(ScreenContext context)
    : Screen(context, "frmSelectAssessment", "Select Type Of Assessment"),
      employees_(*context.session.gDataConn),
      subContractors_(*context.session.gDataConn),
      industryRates_(kAllSlots.size()) {
  ConnectControls();
}

void frmSelectAssessment::ConnectControls() {
  lvwPayments.SetTip("Click a column header to sort");
  optEmployee.OnClick = [this] { ChangePayees(employees_, subContractors_, true); };
  optSubContractor.OnClick = [this] { ChangePayees(subContractors_, employees_, false); };
  lstIndustries.OnClick = [this] { LoadRows(Payees()); };
  lvwPayments.OnDoubleClick = [this] { OpenEntry(); };
  lvwPayments.OnKeyPress = [this](int& key) {
    if (key == key_code::kEnter) {
      key = key_code::kNone;
      OpenEntry();
    }
  };
  lvwPayments.OnColumnClick = [this](std::size_t column) { lvwPayments.SortBy(column); };
  lvwPayments.OnMouseUp = [this](MouseButton button) {
    if (button == MouseButton::kRight) {
      PopUp(menus.mnuPopUp);
    }
  };

  const auto save = [this] { DataSave(); };
  const auto refresh = [this] { RefreshList(); };
  const auto post = [this] { Post(); };
  const auto undo = [this] { UndoLast(); };
  const auto find = [this] { FindInList(); };
  const auto selectAll = [this] { SelectAll(); };
  const auto help = [this] { ShowManual(context_); };
  const auto remittance = [this] { context_.services.OpenScreen("frmRemittanceCalc"); };
  menus.cmdTbrSave.OnClick = menus.mnuFSave.OnClick = menus.mnuPoSave.OnClick = save;
  menus.cmdTbrRefresh.OnClick = menus.mnuERefresh.OnClick = menus.mnuPoRefresh.OnClick = refresh;
  menus.cmdTbrPost.OnClick = menus.mnuPOPostPayments.OnClick = post;
  menus.cmdTbrUndo.OnClick = menus.mnuEUndo.OnClick = menus.mnuPoUndo.OnClick = undo;
  menus.cmdTbrFind.OnClick = menus.mnuEFind.OnClick = menus.mnuPoFind.OnClick = find;
  menus.mnuESelectAll.OnClick = menus.mnuPoSelectAll.OnClick = selectAll;
  menus.mnuHContents.OnClick = menus.mnuPoHelp.OnClick = help;
  menus.mnuFRemittanceCalc.OnClick = menus.mnuPoRemittanceCalc.OnClick = remittance;
  menus.cmdTbrCalculator.OnClick = [this] { OpenCalculator(); };
  menus.cmdTbrCancel.OnClick = [this] { CancelOrClose(); };
  menus.mnuFEmployees.OnClick = [this] { OpenPeople("frmEmployees"); };
  menus.mnuFSubContractors.OnClick = [this] { OpenPeople("frmSubContractor"); };
  menus.mnuFCompanyInfo.OnClick = [this] { context_.services.OpenScreen("frmCompany"); };
  menus.mnuFClose.OnClick = [this] { Close(); };
  menus.mnuHabout.OnClick = [this] { ShowAbout(context_); };
  menus.mnuVToolbar.OnClick = [this] {
    menus.mnuVToolbar.SetChecked(!menus.mnuVToolbar.Checked());
    menus.picTbrMain.SetVisible(!menus.picTbrMain.Visible());
  };
}

void frmSelectAssessment::Load() {
  CentreForm(*this);
  LoadIndustryList();
  ApplyScreenDefaults();
}

void frmSelectAssessment::LoadIndustryList() {
  cIndustry industries;
  industries.SetDataConnection(context_.session.gDataConn.get());
  if (!industries.OpenRecordset()) {
    return;
  }
  for (const IndustrySlot slot : kAllSlots) {
    std::string& rate = industryRates_[IndexOf(slot)];
    if (industries.Ind[slot]) {
      ListAddItem(lstIndustries, NumberOf(slot), IndustryCaption(industries.Desc[slot]));
      rate = ShortestText(industries.Rate[slot]);
    } else {
      rate = "0";
    }
  }
}

// The kind of payee stands in the section's second line, behind the key and its equals sign. When
// it can't be read the user is told and chooses on the screen.
void frmSelectAssessment::ApplyScreenDefaults() {
  constexpr int kDefaultLine = 1;
  constexpr std::size_t kValueFrom = 9;
  const std::vector<std::string> settings = context_.session.Ini().SectionGet(kSection);
  try {
    if (ToInteger(Mid(At(settings, kDefaultLine), kValueFrom)) == 0) {
      optEmployee.Choose();
    } else {
      optSubContractor.Choose();
    }
  } catch (const RuntimeError& error) {
    ShowError(context_, error, box::kCritical);
  }
}

void frmSelectAssessment::SaveScreenDefaults() {
  cINI ini = context_.session.Ini();
  ini.KeySave(optEmployee.Chosen() ? "0" : "1", kSection, "Default");
  if (lstIndustries.ListIndex() >= 0) {
    ini.KeySave(std::to_string(NumberOf(SelectedSlot())), kSection, "Industry");
  }
}

bool frmSelectAssessment::QueryUnload() {
  constexpr const char* kGoodbye = "Lorvane Assessment for Windows";
  if (!unsavedEntries_) {
    menus.ToggleEditMenus();
    SaveScreenDefaults();
    StatusMsg(context_, kGoodbye);
  } else if (context_.services.MsgBox(
                 "There is unsaved information.\r\n\r\nDo you wish to save it?",
                 box::kYesNoCancel | box::kQuestion, "Save") == answer::kYes) {
    DataSave();
    SaveScreenDefaults();
    StatusMsg(context_, kGoodbye);
  }
  // No and Cancel alike: the window closes and nothing is saved.
  return true;
}

void frmSelectAssessment::Unload() {
  employees_.Close();
  subContractors_.Close();
}

std::optional<std::string> frmSelectAssessment::Property(std::string_view name) const {
  if (EqualsNoCase(name, "UnsavedEntries")) {
    return FlagText(unsavedEntries_);
  }
  if (EqualsNoCase(name, "LastEditedRow")) {
    return std::to_string(lastEditedRow_);
  }
  return std::nullopt;
}

bool frmSelectAssessment::Call(std::string_view operation) {
  if (operation == "UndoLast") {
    UndoLast();
  } else if (operation == "RefreshList") {
    RefreshList();
  } else if (operation == "DataSave") {
    DataSave();
  } else {
    return false;
  }
  return true;
}

PayeeList& frmSelectAssessment::Payees() {
  if (optEmployee.Chosen()) {
    return employees_;
  }
  return subContractors_;
}

IndustrySlot frmSelectAssessment::SelectedSlot() const {
  return *SlotOfNumber(lstIndustries.ItemData(lstIndustries.ListIndex()));
}

void frmSelectAssessment::SetListColumns(const PayeeList& payees) {
  lvwPayments.SetColumns(payees.Columns());
  lvwPayments.SetTextColour(payees.TextColour());
}

void frmSelectAssessment::LoadRows(PayeeList& payees) {
  if (lstIndustries.ListIndex() < 0) {
    return;
  }
  context_.services.SetPointer(pointer::kHourglass);
  const std::string status = StatusPush(context_, payees.Texts().loading);
  lvwPayments.Clear();
  SetListColumns(payees);
  lvwPayments.AddRows(payees.ReadRows(SelectedSlot()));
  lblListCount.SetCaption(payees.Texts().count + std::to_string(lvwPayments.Count()));
  context_.services.SetPointer(pointer::kDefault);
  StatusPop(context_, status, false);
}

void frmSelectAssessment::SaveRows(PayeeList& payees) {
  const auto batch = context_.session.gDataConn->MakeBatch();
  const IndustrySlot slot = SelectedSlot();
  for (int row = 0; row < lvwPayments.Count(); ++row) {
    lvwPayments.SetSelected(row, true);
    payees.SaveRow(lvwPayments, row, slot);
  }
  LoadRows(payees);
  Commit(batch);
}

void frmSelectAssessment::ChangePayees(PayeeList& chosen, PayeeList& other, bool disableUndo) {
  const bool save =
      unsavedEntries_ && context_.services.MsgBox(
                             "There is unsaved information.\r\n\r\nWould you like to save it now?",
                             box::kYesNo | box::kQuestion, "Save") == answer::kYes;
  if (save) {
    SaveRows(other);
  }
  StatusAssessment(context_, chosen.Texts().status);
  LoadRows(chosen);
  if (save) {
    ToggleEditState();
    lstIndustries.SetEnabled(true);
  }
  menus.cmdTbrSave.SetEnabled(false);
  // Going over to the sub-contractors leaves the undo button as it was.
  if (disableUndo) {
    menus.cmdTbrUndo.SetEnabled(false);
  }
}

void frmSelectAssessment::OpenEntry() {
  const int row = lvwPayments.SelectedIndex();
  if (row < 0) {
    return;
  }
  lastEditedRow_ = ToInteger(static_cast<double>(row));
  frmPayment payment(context_, *this);
  payment.SetCaption(lvwPayments.Cell(row, 1));
  payment.txtAmount.SetText(lvwPayments.Cell(row, Payees().PaymentPlace()));
  context_.services.ShowModal(payment);
  MarkDirty();
  SetSaveAndUndo(true);
}

void frmSelectAssessment::RecordAmount(const std::string& amountText) {
  if (Payees().Enter(lvwPayments, lvwPayments.SelectedIndex(), amountText)) {
    context_.services.Beep();
  }
}

void frmSelectAssessment::AdvanceSelection() {
  const int row = lvwPayments.SelectedIndex();
  try {
    lvwPayments.SetSelected(row, false);
    lvwPayments.SetSelected(row + 1, true);
  } catch (const RuntimeError& error) {
    if (error.Number() != error_number::kIndexOutOfBounds) {
      ShowError(context_, error, box::kCritical);
    }
  }
}

void frmSelectAssessment::DataSave() {
  SaveRows(Payees());
  ToggleEditState();
  unsavedEntries_ = false;
  SetSaveAndUndo(false);
}

// The list box and the menu entries keep their state, so that the next entry flips them the other
// way.
void frmSelectAssessment::RefreshList() {
  unsavedEntries_ = false;
  LoadRows(Payees());
  menus.cmdTbrSave.SetEnabled(false);
}

void frmSelectAssessment::UndoLast() {
  const IndustrySlot slot = SelectedSlot();
  if (lvwPayments.SelectedIndex() >= 0) {
    lvwPayments.SetSelected(lvwPayments.SelectedIndex(), false);
  }
  lvwPayments.SetSelected(lastEditedRow_, true);
  Payees().ReadBack(lvwPayments, lastEditedRow_, slot);
}

void frmSelectAssessment::FindInList() {
  const std::string wanted =
      ToLower(context_.services.InputBox(Payees().Texts().findPrompt, "Find"));
  if (wanted.empty()) {
    return;
  }
  for (int row = 0; row < lvwPayments.Count(); ++row) {
    const std::vector<std::string>& texts = At(lvwPayments.Rows(), row).texts;
    for (std::size_t place = 1; place < texts.size(); ++place) {
      if (!ToLower(texts[place]).starts_with(wanted)) {
        continue;
      }
      if (lvwPayments.SelectedIndex() >= 0) {
        lvwPayments.SetSelected(lvwPayments.SelectedIndex(), false);
      }
      lvwPayments.SetSelected(row, true);
      lvwPayments.EnsureVisible(row);
      SetFocus(lvwPayments);
      return;
    }
  }
  context_.services.MsgBox("No match found", box::kInformation, "Not found");
}

void frmSelectAssessment::SelectAll() {
  for (int row = 0; row < lvwPayments.Count(); ++row) {
    lvwPayments.SetSelected(row, true);
  }
}

void frmSelectAssessment::Post() {
  // The rate is looked up by the list's position here, not by the slot.
  if (At(industryRates_, lstIndustries.ListIndex()).empty()) {
    context_.services.MsgBox(
        "You have not assigned an industry rate.\r\nPlease make the appropriate changes to your\r\n"
        "company information.",
        box::kExclamation, "Rate");
    return;
  }
  ToggleEditState();
  ConfirmAndPost();
}

void frmSelectAssessment::ConfirmAndPost() {
  ScreenServices& services = context_.services;
  services.SetPointer(pointer::kHourglass);
  if (services.MsgBox("You are about to post the selected payments.\r\n"
                      "Please note that this function cannot be undone.\r\n\r\n"
                      "Are you sure you want to continue?",
                      box::kYesNoCancel | box::kQuestion, "Post") != answer::kYes) {
    // The hourglass and the flipped state of editing stay.
    return;
  }
  frmSelectDate selectDate(context_);
  services.ShowModal(selectDate);
  services.SetPointer(pointer::kDefault);
  if (context_.session.PostingDate == Session::kNoPostingDate) {
    return;
  }
  const IndustrySlot slot = SelectedSlot();
  PayeeList& payees = Payees();
  const PostingRun run{context_, lvwPayments, slot, industryRates_[IndexOf(slot)],
                       [&] { SaveRows(payees); }};
  if (optEmployee.Chosen()) {
    lstIndustries.SetEnabled(false);
    PostEmployeePayments(run);
  } else {
    PostSubContractorPayments(run);
  }
  ToggleEditState();
  menus.cmdTbrSave.SetEnabled(false);
  lstIndustries.SetEnabled(true);
  services.SetPointer(pointer::kDefault);
}

void frmSelectAssessment::CancelOrClose() {
  if (!unsavedEntries_) {
    Close();
  } else if (context_.services.MsgBox(
                 "Are you sure you want to cancel\r\neverything you just entered?",
                 box::kYesNoCancel | box::kQuestion, "Cancel") == answer::kYes) {
    LoadRows(Payees());
    ToggleEditState();
  }
}

void frmSelectAssessment::OpenCalculator() {
  cShellExecute shell(context_.services);
  if (shell.LaunchProgram("calc.exe", "", "", 1)) {
    return;
  }
  if (shell.ErrorCode() < 0) {
    context_.services.MsgBox("Error on LaunchProgram: " + std::to_string(shell.ErrorCode()));
  } else {
    context_.services.MsgBox("The location of CALC.EXE is unknown.", box::kExclamation, "Calc.exe");
  }
}

void frmSelectAssessment::OpenPeople(const char* screen) {
  context_.services.OpenScreen(screen, {{"RefreshAssessment", "true"}});
}

// Flips, not assignments: list box and menu entries follow the number of calls.
void frmSelectAssessment::ToggleEditState() {
  lstIndustries.SetEnabled(!lstIndustries.Enabled());
  unsavedEntries_ = !unsavedEntries_;
  menus.ToggleEditMenus();
}

void frmSelectAssessment::MarkDirty() {
  if (!unsavedEntries_) {
    ToggleEditState();
  }
  unsavedEntries_ = true;
}

void frmSelectAssessment::SetSaveAndUndo(bool enabled) {
  menus.cmdTbrSave.SetEnabled(enabled);
  menus.cmdTbrUndo.SetEnabled(enabled);
}

}  // namespace lorvane
