#include "Desk.h"

#include <algorithm>

#include "basic/RuntimeError.h"

namespace lorvane::model {
namespace {

Units UnitsOf(Cents cents) { return cents * kUnitsOfCent; }

}  // namespace

Desk::Desk(Book& book) : book_(book), kind_(book.kind) {}

void Desk::ChooseIndustry(IndustrySlot slot) {
  slot_ = slot;
  Load();
}

void Desk::Switch(bool save) {
  const bool saves = unsaved_ && save;
  if (saves) {
    SaveRows();
  }
  kind_ = kind_ == Kind::kEmployee ? Kind::kSubContractor : Kind::kEmployee;
  Load();
  if (saves) {
    Toggle();
    listEnabled_ = true;
  }
  saveEnabled_ = false;
  if (kind_ == Kind::kEmployee) {
    undoEnabled_ = false;
  }
}

void Desk::SelectRows(const std::vector<std::size_t>& rows) {
  for (DeskRow& row : rows_) {
    row.selected = false;
  }
  current_.reset();
  for (const std::size_t row : rows) {
    SetSelected(row, true);
  }
}

void Desk::SelectAll() {
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    SetSelected(row, true);
  }
}

void Desk::Enter(std::size_t row, const std::optional<std::string>& typed) {
  SelectRows({row});
  lastEdited_ = row;
  if (typed) {
    if (kind_ == Kind::kEmployee) {
      EnterEmployee(rows_[row], *typed);
    } else {
      EnterSubContractor(rows_[row], *typed);
    }
    SetSelected(row, false);
    if (row + 1 < rows_.size()) {
      SetSelected(row + 1, true);
    }
  }
  if (!unsaved_) {
    Toggle();
  }
  saveEnabled_ = true;
  undoEnabled_ = true;
}

void Desk::Save() {
  SaveRows();
  Toggle();
  unsaved_ = false;
  saveEnabled_ = false;
  undoEnabled_ = false;
}

void Desk::Refresh() {
  unsaved_ = false;
  Load();
  saveEnabled_ = false;
}

void Desk::Undo() {
  Unselect();
  if (lastEdited_ >= rows_.size()) {
    throw ProgramEnds{error_number::kIndexOutOfBounds};
  }
  SetSelected(lastEdited_, true);
  DeskRow& row = rows_[lastEdited_];
  const Entry& entry = book_.PayeeOf(kind_, row.id).entries[*slot_];
  row.payment = ShownCents(entry.amount.value_or(0));
  row.assessable = ShownCents(entry.assessAmt.value_or(0));
  if (kind_ == Kind::kEmployee) {
    row.accWages = ShownCents(book_.employees.at(row.id).accWages.value_or(0));
  }
}

void Desk::GiveUp() {
  Load();
  Toggle();
}

void Desk::Close(bool save) {
  if (!unsaved_) {
    Remember();
  } else if (save) {
    Save();
    Remember();
  }
}

void Desk::Load() {
  if (!slot_) {
    return;
  }
  rows_.clear();
  current_.reset();
  if (kind_ == Kind::kEmployee) {
    LoadEmployees();
  } else {
    LoadSubContractors();
  }
}

void Desk::LoadEmployees() {
  for (const auto& [id, employee] : book_.employees) {
    if (employee.works[*slot_] && !employee.inactive) {
      const Entry& entry = employee.entries[*slot_];
      DeskRow row;
      row.id = id;
      row.accWages = ShownCents(employee.accWages.value_or(0));
      row.maxContrib = ShownCents(employee.maxContrib);
      row.payment = ShownCents(entry.amount.value_or(0));
      row.assessable = ShownCents(entry.assessAmt.value_or(0));
      rows_.push_back(row);
    }
  }
}

// The names, which order the list, rise with the keys.
void Desk::LoadSubContractors() {
  for (const auto& [id, subContractor] : book_.subContractors) {
    if (subContractor.works[*slot_]) {
      DeskRow row;
      row.id = id;
      row.percent = UnitsText(subContractor.percent) + "%";
      row.payment = ShownCents(subContractor.entries[*slot_].amount.value_or(0));
      rows_.push_back(row);
    }
  }
}

// A row that shows an expiry ends it: the rows before it are written.
void Desk::SaveRows() {
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    SetSelected(row, true);
    SaveRow(rows_[row]);
  }
  Load();
}

void Desk::SaveRow(const DeskRow& row) {
  if (!row.assessable) {
    throw ProgramEnds{error_number::kTypeMismatch};
  }
  book_.PayeeOf(kind_, row.id).entries[*slot_] = {UnitsOf(row.payment), UnitsOf(*row.assessable)};
  if (kind_ == Kind::kEmployee) {
    book_.employees.at(row.id).accWages = UnitsOf(row.accWages);
  }
}

void Desk::Toggle() {
  listEnabled_ = !listEnabled_;
  unsaved_ = !unsaved_;
  menusFlipped_ = !menusFlipped_;
}

void Desk::SetSelected(std::size_t row, bool selected) {
  rows_[row].selected = selected;
  if (selected) {
    current_ = row;
  } else if (current_ == row) {
    Unselect();
  }
}

// Takes the current row out of the selection; the first of those left becomes the current one.
void Desk::Unselect() {
  if (!current_) {
    return;
  }
  rows_[*current_].selected = false;
  const auto other =
      std::find_if(rows_.begin(), rows_.end(), [](const DeskRow& row) { return row.selected; });
  current_.reset();
  if (other != rows_.end()) {
    current_ = static_cast<std::size_t>(other - rows_.begin());
  }
}

void Desk::Remember() {
  book_.kind = kind_;
  if (slot_) {
    book_.industry = NumberOf(*slot_);
  }
}

}  // namespace lorvane::model
