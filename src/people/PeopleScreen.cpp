#include "people/PeopleScreen.h"

#include "basic/Number.h"
#include "basic/Text.h"
#include "people/frmBirthDate.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/modForm.h"
#include "screen/modListBox.h"
#include "screen/modStatus.h"

namespace lorvane {
namespace {

// Fields that the program fills aren't edited meanwhile.
class FillingFields {
 public:
  explicit FillingFields(bool& loading) : loading_(loading) { loading_ = true; }
  FillingFields(const FillingFields&) = delete;
  FillingFields& operator=(const FillingFields&) = delete;
  ~FillingFields() { loading_ = false; }

 private:
  bool& loading_;
};

}  // namespace

PeopleScreen::PeopleScreen(ScreenContext context, const PeopleWords& words)
    : Screen(context, words.screen, words.caption), list(*this, words.list), words_(words) {
  list.SetTip("Right-click to sort");
}

void PeopleScreen::Load() {
  ConnectCommands();
  CentreForm(*this);
  status_ = StatusSave(context_);
  LoadChoices();
  RefreshList(Selection::kNames);
  Industries().ShowIndustries(*context_.session.gDataConn);
}

void PeopleScreen::ConnectCommands() {
  list.OnClick = [this] { SelectEntry(); };
  list.OnMouseUp = [this](MouseButton button) {
    if (button == MouseButton::kRight) {
      PopUp(toolBar.mnuPopUp);
    }
  };
  const auto sorted = [this] { RefreshList(Selection::kNames); };
  toolBar.mnuPoSortAsc.OnClick = toolBar.cmdTbrRefresh.OnClick = sorted;
  toolBar.mnuPoSortDesc.OnClick = [this] { RefreshList(Selection::kNamesDescending); };
  toolBar.cmdTbrImport.OnClick = [this] { Import(); };
  toolBar.cmdTbrSave.OnClick = [this] { Save(); };
  toolBar.cmdTbrFind.OnClick = [this] { DataFind(); };
  toolBar.cmdTbrDelete.OnClick = [this] { Delete(); };
  PeopleButtons& buttons = Buttons();
  toolBar.cmdTbrNew.OnClick = buttons.cmdAdd.OnClick = [this] { New(); };
  buttons.cmdApply.OnClick = [this] {
    Save();
    // Also after a refused save, with the fields still being edited.
    toolBar.ShowBrowsing();
  };
  buttons.cmdOK.OnClick = [this] {
    if (IsComplete()) {
      Close();
    }
  };
  buttons.cmdClose.OnClick = [this] { Close(); };
  for (const IndustrySlot slot : kAllSlots) {
    habits_.MarkEditWithMouse(Industries().Box(slot));
  }
}

void PeopleScreen::Activate() {
  if (datePicked_) {
    return;
  }
  StatusForm(context_, Name());
  StatusMsg(context_, Caption());
  if (list.Count() == 0) {
    New();
  } else {
    adding_ = false;
  }
}

bool PeopleScreen::QueryUnload() {
  if (dirty_) {
    const int given = AskSave(*this);
    if (given == answer::kCancel || (given == answer::kYes && !Save())) {
      return false;
    }
  }
  if (RefreshAssessment) {
    if (Screen* payments = context_.services.FindScreen("frmSelectAssessment")) {
      payments->Call("RefreshList");
    }
  }
  return true;
}

void PeopleScreen::Unload() {
  StatusPop(context_, status_, false);
  TheRecord().CloseRecordset();
}

std::optional<std::string> PeopleScreen::Property(std::string_view name) const {
  const struct {
    const char* name;
    bool value;
  } states[] = {{"Adding", adding_},
                {"Loading", loading_},
                {"Dirty", dirty_},
                {"DatePicked", datePicked_},
                {"RefreshAssessment", RefreshAssessment}};
  for (const auto& state : states) {
    if (EqualsNoCase(name, state.name)) {
      return FlagText(state.value);
    }
  }
  return std::nullopt;
}

bool PeopleScreen::SetProperty(std::string_view name, std::string_view value) {
  if (!EqualsNoCase(name, "RefreshAssessment")) {
    return false;
  }
  RefreshAssessment = EqualsNoCase(value, "true");
  return true;
}

bool PeopleScreen::Call(std::string_view operation) {
  if (operation != "DataFind") {
    return false;
  }
  DataFind();
  return true;
}

void PeopleScreen::RefreshList(Selection selection) {
  // The old entries stay when there is no row to show.
  if (Open(selection)) {
    list.Clear();
    do {
      ListAddItem(list, Key(), EntryText());
    } while (TheRecord().MoveNext());
    RemarkOnPeople();
  } else {
    TellInfo();
  }
  TheRecord().CloseRecordset();
  if (list.Count() > 0) {
    list.SetListIndex(0);
  }
}

void PeopleScreen::SelectEntry() {
  if (list.ListIndex() < 0) {
    return;
  }
  Key() = list.ItemData(list.ListIndex());
  if (!Open(Selection::kByKey)) {
    TellInfo();
  } else if (!ShowRecord()) {
    return;
  }
  TheRecord().CloseRecordset();
  AfterSelection();
}

void PeopleScreen::New() {
  adding_ = true;
  ToggleEditState();
  StartEmpty();
  if (TabStrip* pages = Pages()) {
    pages->SetTab(0);
  }
  SetFocus(FirstField());
}

void PeopleScreen::StartEmpty() {
  const FillingFields filling(loading_);
  ClearFields();
  toolBar.ShowEditing();
}

bool PeopleScreen::Save() {
  context_.services.SetPointer(pointer::kHourglass);
  CopyFields();
  const bool saved = adding_ ? SaveNew() : SaveChanges();
  context_.services.SetPointer(pointer::kDefault);
  if (saved) {
    RemarkOnPeople();
  }
  return saved;
}

bool PeopleScreen::SaveNew() {
  if (!AddRecord()) {
    return TellRefusal();
  }
  ListAddItem(list, Key(), AddedEntryText());
  ListReselect(list, ToInteger(static_cast<double>(list.Count() - 1)));
  adding_ = false;
  ToggleEditState();
  return true;
}

bool PeopleScreen::SaveChanges() {
  if (!UpdateRecord()) {
    return TellRefusal();
  }
  list.SetEntryText(list.ListIndex(), EntryText());
  RefillFields();
  ToggleEditState();
  return true;
}

bool PeopleScreen::TellRefusal() {
  context_.services.MsgBox(TheRecord().InfoMsg(), box::kExclamation, Caption());
  FocusFieldInError(*this, TheRecord().FieldInError(), Pages());
  return false;
}

void PeopleScreen::RefillFields() {
  const FillingFields filling(loading_);
  ShowSaved();
}

void PeopleScreen::Delete() {
  const int index = list.ListIndex();
  if (index < 0) {
    return;
  }
  const std::int32_t key = list.ItemData(index);
  // The history holds the current year alone: what the archives hold doesn't count.
  const std::unique_ptr<Record> payments = PaymentsOf(key);
  if (payments->OpenRecordset()) {
    Warn(words_.hasPayments, "Delete");
    return;
  }
  // Payments that can't be read may be there all the same.
  if (!payments->InfoMsg().empty()) {
    context_.services.MsgBox(payments->InfoMsg());
    return;
  }
  if (!AskYesNo(context_, words_.askDelete)) {
    return;
  }
  Key() = key;
  if (DeleteRecord()) {
    RemoveEntry(index);
  } else {
    TellInfo();
  }
}

void PeopleScreen::RemoveEntry(int index) {
  list.Remove(index);
  if (ListReselect(list, ToInteger(static_cast<double>(index))) < 0) {
    StartEmpty();
    Activate();
  }
}

void PeopleScreen::DataFind() {
  const std::string given = context_.services.InputBox(words_.findPrompt, "Find");
  const std::string wanted = Trim(given);
  if (wanted.empty()) {
    return;
  }
  WantedName() = wanted;
  if (Open(Selection::kByName)) {
    SelectByKey(Key());
  } else if (!TheRecord().InfoMsg().empty()) {
    TellInfo();
  } else {
    context_.services.MsgBox(words_.notFound + ("'" + given + "'."), box::kInformation,
                             "Not Found");
  }
  TheRecord().CloseRecordset();
}

void PeopleScreen::SelectByKey(std::int32_t key) {
  int index = ListIndexByData(list, key);
  if (index < 0) {
    // Someone who was added elsewhere since the list was read.
    RefreshList(Selection::kNames);
    index = ListIndexByData(list, key);
  }
  if (index >= 0) {
    list.SetListIndex(index);
  }
}

void PeopleScreen::Import() {
  context_.services.OpenScreen("frmImport",
                               {{"Employee", words_.importsEmployees}, {"Excel", "true"}});
  RefreshList(Selection::kNames);
  Activate();
}

void PeopleScreen::UndoEdit() {
  adding_ = false;
  ToggleEditState();
  if (list.ListIndex() < 0) {
    Activate();
    return;
  }
  Key() = list.ItemData(list.ListIndex());
  if (!Open(Selection::kByKey)) {
    TellInfo();
  }
  RefillFields();
  TheRecord().CloseRecordset();
}

void PeopleScreen::ToggleEditState() {
  dirty_ = !dirty_;
  list.SetEnabled(!dirty_);
  Buttons().cmdApply.SetEnabled(dirty_);
  Buttons().cmdAdd.SetEnabled(!dirty_);
}

void PeopleScreen::MarkEdit() {
  if (!dirty_ && !loading_) {
    ToggleEditState();
  }
}

bool PeopleScreen::IsComplete() {
  if (Industries().AnyTicked()) {
    return true;
  }
  Warn("Please assign an industry.", "Assign Industry");
  return false;
}

void PeopleScreen::PickDate(std::int16_t selectDate, const char* caption) {
  datePicked_ = true;
  if (!dirty_ && !loading_) {
    MarkEdit();
  }
  frmBirthDate picker(context_);
  picker.SelectDate = selectDate;
  picker.SetCaption(caption);
  context_.services.ShowModal(picker);
  Buttons().cmdApply.SetEnabled(true);
}

void PeopleScreen::Warn(const char* text, const char* title) const {
  context_.services.MsgBox(text, box::kExclamation, title);
}

void PeopleScreen::TellInfo() {
  if (!TheRecord().InfoMsg().empty()) {
    context_.services.MsgBox(TheRecord().InfoMsg());
  }
}

}  // namespace lorvane
