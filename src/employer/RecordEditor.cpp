#include "employer/RecordEditor.h"

#include <algorithm>
#include <utility>

#include "basic/Text.h"
#include "data/Schema.h"
#include "screen/ScreenServices.h"
#include "screen/modForm.h"
#include "screen/modListBox.h"

namespace lorvane {

RecordEditor::RecordEditor(Screen& screen, const RecordWords& words)
    : list(screen, words.list), screen_(screen), words_(words), habits_(screen, [] {}) {
  list.OnClick = [this] { ShowSelected(); };
}

void RecordEditor::ConnectButtons(Command& add, Command& save, Command& remove) {
  add.OnClick = [this] { New(); };
  save.OnClick = [this] { Save(); };
  remove.OnClick = [this] { Delete(); };
}

void RecordEditor::MakeEntryField(TextBox& box) {
  habits_.MakeEntryField(box);
  box.OnChange = [this] { MarkEdit(); };
}

// 0, which is no limit, for a column without a size.
std::size_t RecordEditor::SizeOf(const char* table, const char* column) {
  for (const TableDefinition& definition : CompanyTables()) {
    if (definition.name != table) {
      continue;
    }
    for (const Column& candidate : definition.columns) {
      if (candidate.name == column) {
        return static_cast<std::size_t>(candidate.size);
      }
    }
  }
  return 0;
}

template <typename Work>
void RecordEditor::Fill(Work work) {
  const bool before = std::exchange(filling_, true);
  work();
  filling_ = before;
}

bool RecordEditor::Open(std::int32_t select, std::int32_t where, std::int32_t orderBy) {
  Record& record = TheRecord();
  record.SelectFilter = select;
  record.WhereFilter = where;
  record.OrderByFilter = orderBy;
  return record.Find();
}

void RecordEditor::Load() {
  bool more = Open(kSelectNames, 0, words_.orderBy);
  while (more) {
    ListAddItem(list, Key(), EntryText());
    more = TheRecord().MoveNext();
  }
  TellInfo();
  TheRecord().CloseRecordset();
  StartEmpty();
}

void RecordEditor::ShowSelected() {
  if (list.ListIndex() < 0) {
    return;
  }
  Key() = list.ItemData(list.ListIndex());
  const bool found = Open(kSelectAll, kWhereKey, 0);
  Fill([&] { found ? ShowRecord() : ClearFields(); });
  adding_ = false;
  changed_ = false;
  if (!found && TheRecord().InfoMsg().empty() && !std::string_view(words_.notFound).empty()) {
    Warn(words_.notFound, "Not Found");
  }
  TellInfo();
  TheRecord().CloseRecordset();
}

void RecordEditor::New() {
  list.SetListIndex(-1);
  StartEmpty();
  screen_.SetFocus(FirstField());
}

void RecordEditor::StartEmpty() {
  Fill([this] { ClearFields(); });
  adding_ = true;
  changed_ = false;
}

bool RecordEditor::Save() {
  if (!IsComplete()) {
    return false;
  }
  ScreenServices& services = screen_.Context().services;
  services.SetPointer(pointer::kHourglass);
  CopyFields();
  const bool saved = adding_ ? AddRecord() : UpdateRecord();
  services.SetPointer(pointer::kDefault);
  if (!saved) {
    TellInfo();
    FocusFieldInError(screen_, TheRecord().FieldInError(), Pages());
    return false;
  }
  changed_ = false;
  if (std::exchange(adding_, false)) {
    ListAddItem(list, Key(), EntryText());
    list.SetListIndex(list.Count() - 1);
  } else {
    list.SetEntryText(ListIndexByData(list, Key()), EntryText());
  }
  return true;
}

void RecordEditor::Delete() {
  const int index = list.ListIndex();
  if (index < 0) {
    Warn("There's nothing to delete.", "Delete");
    return;
  }
  if (screen_.Context().services.MsgBox(words_.askDelete, box::kYesNo | box::kQuestion, "Delete") !=
      answer::kYes) {
    return;
  }
  Key() = list.ItemData(index);
  const bool deleted = DeleteRecord();
  TellInfo();
  TheRecord().CloseRecordset();
  if (deleted) {
    list.Remove(index);
    StartEmpty();
  }
}

bool RecordEditor::MayClose() {
  if (!changed_) {
    return true;
  }
  const int given = screen_.Context().services.MsgBox(
      "There is unsaved information.\r\n\r\nWould you like to save it now?",
      box::kYesNoCancel | box::kQuestion, "Save");
  return given == answer::kNo || (given == answer::kYes && Save());
}

void RecordEditor::Warn(const std::string& text, const char* title) {
  screen_.Context().services.MsgBox(text, box::kExclamation, title);
}

bool RecordEditor::Refuse(Control& field, const char* text, const char* title) {
  Warn(text, title);
  if (TabStrip* pages = Pages()) {
    pages->SetTab(field.TabPage - 1);
  }
  screen_.SetFocus(field);
  return false;
}

void RecordEditor::TellInfo() {
  if (!TheRecord().InfoMsg().empty()) {
    Warn(TheRecord().InfoMsg(), ScreenServices::kProgramName);
  }
}

}  // namespace lorvane
