#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "data/Record.h"
#include "people/FieldHabits.h"
#include "people/TextFields.h"
#include "screen/Buttons.h"
#include "screen/Lists.h"
#include "screen/Screen.h"
#include "screen/TabStrip.h"

namespace lorvane {

/// What the lists of principals and of assets call themselves and say about their entries.
struct RecordWords {
  const char* list;
  /// The order of the list, as the record numbers it.
  std::int32_t orderBy;
  const char* askDelete;
  /// Said of an entry whose row isn't there any more; empty for nothing.
  const char* notFound;
};

/// A list of records and the fields of the one selected, with the ways of adding, saving and
/// deleting. With nothing selected the fields are those of a new record.
///
/// Selecting another entry, or beginning a new one, drops what wasn't saved; only the way out asks.
class RecordEditor {
 public:
  RecordEditor(const RecordEditor&) = delete;
  RecordEditor& operator=(const RecordEditor&) = delete;
  virtual ~RecordEditor() = default;

  /// The entries; an entry's number is its record's key.
  ListBox list;

  /// Reads the list. Nothing is selected.
  void Load();
  /// Asks what is to become of unsaved changes; false when the window stays open.
  [[nodiscard]] bool MayClose();
  void Unload() { TheRecord().CloseRecordset(); }

 protected:
  RecordEditor(Screen& screen, const RecordWords& words);

  // The record, as its kind has it.
  [[nodiscard]] virtual Record& TheRecord() = 0;
  [[nodiscard]] virtual std::int32_t& Key() = 0;
  virtual bool AddRecord() = 0;
  virtual bool UpdateRecord() = 0;
  /// Deletes the row of Key().
  virtual bool DeleteRecord() = 0;

  // The page, as its kind has it.
  [[nodiscard]] virtual std::string EntryText() const = 0;
  virtual void ShowRecord() = 0;
  virtual void ClearFields() = 0;
  virtual void CopyFields() = 0;
  [[nodiscard]] virtual Control& FirstField() = 0;
  /// What saving asks for; the user has been told when false.
  [[nodiscard]] virtual bool IsComplete() = 0;
  /// The tab strip that shows a field's page; null when there are no pages.
  [[nodiscard]] virtual TabStrip* Pages() { return nullptr; }

  void ConnectButtons(Command& add, Command& save, Command& remove);
  /// A text field, by key or otherwise, is edited by every change of its text.
  void MakeEntryField(TextBox& box);
  /// Binds text fields to columns of a table, whose sizes limit what can be typed.
  template <typename RecordClass>
  void MakeEntryFields(const char* table, const TextFields<RecordClass>& fields) {
    for (const TextField<RecordClass>& field : fields) {
      field.box->DataField = field.column;
      field.box->SetMaxLength(SizeOf(table, field.column));
      MakeEntryField(*field.box);
    }
  }
  void MarkEdit() { changed_ = changed_ || !filling_; }
  /// Whether the program fills the fields at the moment.
  [[nodiscard]] bool IsFilling() const { return filling_; }
  [[nodiscard]] const FieldHabits& Habits() const { return habits_; }
  void Warn(const std::string& text, const char* title);
  /// Refuses what stands in a field.
  [[nodiscard]] bool Refuse(Control& field, const char* text, const char* title);

  Screen& screen_;

 private:
  static constexpr std::int32_t kSelectAll = 0;
  static constexpr std::int32_t kSelectNames = 1;
  static constexpr std::int32_t kWhereKey = 1;

  [[nodiscard]] static std::size_t SizeOf(const char* table, const char* column);
  bool Open(std::int32_t select, std::int32_t where, std::int32_t orderBy);
  void ShowSelected();
  void New();
  void StartEmpty();
  bool Save();
  void Delete();
  void TellInfo();
  /// Runs something whose effects on the fields are no edits.
  template <typename Work>
  void Fill(Work work);

  const RecordWords& words_;
  FieldHabits habits_;
  bool adding_ = true;
  bool changed_ = false;
  bool filling_ = false;
};

/// An editor of one class of records.
template <typename RecordClass, std::int32_t RecordClass::*key>
class RecordEditorOf : public RecordEditor {
 protected:
  RecordEditorOf(Screen& screen, const RecordWords& words, DataConnection* connection)
      : RecordEditor(screen, words) {
    record_.SetDataConnection(connection);
  }

  RecordClass record_;

 private:
  [[nodiscard]] Record& TheRecord() final { return record_; }
  [[nodiscard]] std::int32_t& Key() final { return record_.*key; }
  bool AddRecord() final { return record_.AddNew(); }
  bool UpdateRecord() final { return record_.Update(); }
  bool DeleteRecord() final {
    record_.WhereFilter = RecordClass::kWhereKey;
    return record_.Delete();
  }
};

}  // namespace lorvane
