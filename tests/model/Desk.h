#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "Book.h"
#include "EntryRules.h"

namespace lorvane::model {

/// The program ends with an error that nobody handles.
struct ProgramEnds {
  int error = 0;
};

/// The payment window beside the book: its list is the working memory, and what is saved goes into
/// the book. Every operation may end the program.
class Desk {
 public:
  /// Opens on the kind of payee that the book remembers, with no industry.
  explicit Desk(Book& book);

  [[nodiscard]] Kind KindOfPayee() const { return kind_; }
  [[nodiscard]] const std::optional<IndustrySlot>& Slot() const { return slot_; }
  [[nodiscard]] const std::vector<DeskRow>& Rows() const { return rows_; }
  [[nodiscard]] bool Unsaved() const { return unsaved_; }
  [[nodiscard]] bool ListEnabled() const { return listEnabled_; }
  [[nodiscard]] bool SaveEnabled() const { return saveEnabled_; }
  [[nodiscard]] bool UndoEnabled() const { return undoEnabled_; }
  /// The menu's Save and Undo; its Refresh is enabled when they aren't.
  [[nodiscard]] bool MenuSaveEnabled() const { return menusFlipped_; }

  void ChooseIndustry(IndustrySlot slot);
  /// Goes over to the other kind; `save` answers the question, which is asked when Unsaved().
  void Switch(bool save);
  void SelectRows(const std::vector<std::size_t>& rows);
  void SelectAll();
  /// Double-clicks the row and types the amount; nothing is Escape.
  void Enter(std::size_t row, const std::optional<std::string>& typed);
  void Save();
  void Refresh();
  void Undo();
  /// The Yes of giving up what was entered.
  void GiveUp();
  /// What the window does when nothing holds it: `save` answers the question on unsaved entries.
  void Close(bool save);

  /// Posts what is selected: refused without `agreed`, ended without a date. The date is that of
  /// the book's last entry unless another was picked.
  void Post(bool agreed, const std::optional<DateTime>& date);

 private:
  void Load();
  void LoadEmployees();
  void LoadSubContractors();
  void SaveRows();
  void SaveRow(const DeskRow& row);
  void Toggle();
  void SetSelected(std::size_t row, bool selected);
  void Unselect();
  void Remember();
  void PostEmployees(const DateTime& date);
  void PostSubContractors(const DateTime& date);

  Book& book_;
  Kind kind_;
  std::optional<IndustrySlot> slot_;
  std::vector<DeskRow> rows_;
  std::optional<std::size_t> current_;
  std::size_t lastEdited_ = 0;
  bool unsaved_ = false;
  bool listEnabled_ = true;
  bool saveEnabled_ = false;
  bool undoEnabled_ = false;
  bool menusFlipped_ = false;
};

}  // namespace lorvane::model
