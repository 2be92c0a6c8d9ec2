#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "data/Record.h"
#include "people/FieldHabits.h"
#include "people/IndustryBoxes.h"
#include "people/PeopleCommands.h"
#include "screen/Lists.h"
#include "screen/Screen.h"
#include "screen/TabStrip.h"

namespace lorvane {

/// What a window of people calls itself and says about its kind of people.
struct PeopleWords {
  const char* screen;
  const char* caption;
  const char* list;
  /// "true" or "false": what the import window is to import.
  const char* importsEmployees;
  const char* findPrompt;
  /// Up to the name that wasn't found.
  const char* notFound;
  const char* hasPayments;
  const char* askDelete;
};

/// What the windows of employees and of sub-contractors share: a list of names, the fields of the
/// selected one, a tool bar, and the ways of adding, saving, deleting, finding and leaving. One
/// record serves all of it for as long as the window is open.
class PeopleScreen : public Screen {
 public:
  /// The names; an entry's number is the person's key.
  ListBox list;
  PeopleToolBar toolBar{*this};

  /// Set by a caller whose payment list is to be read again when this window closes.
  bool RefreshAssessment = false;

  void Load() override;
  void Activate() override;
  [[nodiscard]] bool QueryUnload() override;
  void Unload() override;
  /// "Adding", "Loading", "Dirty", "DatePicked", "RefreshAssessment".
  [[nodiscard]] std::optional<std::string> Property(std::string_view name) const override;
  bool SetProperty(std::string_view name, std::string_view value) override;
  /// "DataFind".
  bool Call(std::string_view operation) override;

  /// Asks for the beginning of a name and selects the first person who has it.
  void DataFind();

 protected:
  /// What the record is opened on.
  enum class Selection { kNames, kNamesDescending, kByKey, kByName };

  PeopleScreen(ScreenContext context, const PeopleWords& words);

  // The record, as its kind has it.
  [[nodiscard]] virtual Record& TheRecord() = 0;
  [[nodiscard]] virtual std::int32_t& Key() = 0;
  /// The name that Selection::kByName looks for.
  [[nodiscard]] virtual std::string& WantedName() = 0;
  virtual bool Open(Selection selection) = 0;
  virtual bool AddRecord() = 0;
  virtual bool UpdateRecord() = 0;
  /// Deletes the row of Key().
  virtual bool DeleteRecord() = 0;
  /// The posted payments of the current year, not opened yet.
  [[nodiscard]] virtual std::unique_ptr<Record> PaymentsOf(std::int32_t key) const = 0;

  // The window, as its kind has it.
  [[nodiscard]] virtual IndustryBoxes& Industries() = 0;
  [[nodiscard]] virtual PeopleButtons& Buttons() = 0;
  /// The tab strip that shows a field's page; null when there are no pages.
  [[nodiscard]] virtual TabStrip* Pages() { return nullptr; }
  /// The record's entry in the list, and that of one just added.
  [[nodiscard]] virtual std::string EntryText() const = 0;
  [[nodiscard]] virtual std::string AddedEntryText() const = 0;
  /// Fills what a user chooses from, before the list is read.
  virtual void LoadChoices() {}
  /// Fills the fields from the record; false when it had to stop on the way.
  virtual bool ShowRecord() = 0;
  /// Fills the fields that show a record after it was saved, or after an edit was undone.
  virtual void ShowSaved() = 0;
  /// The list was read, or one of its people saved.
  virtual void RemarkOnPeople() {}
  /// An entry was selected, and its record found or not.
  virtual void AfterSelection() {}
  /// Empties the fields for a new person.
  virtual void ClearFields() = 0;
  /// Copies the fields into the record. May raise what a conversion raises.
  virtual void CopyFields() = 0;
  [[nodiscard]] virtual Control& FirstField() = 0;
  /// Notes that the user changes something.
  virtual void MarkEdit();
  /// What OK asks for before it closes the window; the user has been told when false.
  [[nodiscard]] virtual bool IsComplete();

  /// Lets the user pick a date for this window, or none; see frmBirthDate::SelectDate.
  void PickDate(std::int16_t selectDate, const char* caption);
  /// Back to the selected person as stored.
  void UndoEdit();
  [[nodiscard]] const FieldHabits& Habits() const { return habits_; }
  [[nodiscard]] bool IsAdding() const { return adding_; }
  [[nodiscard]] bool IsDirty() const { return dirty_; }
  void Warn(const char* text, const char* title) const;

 private:
  void ConnectCommands();
  void RefreshList(Selection selection);
  void SelectEntry();
  void New();
  void StartEmpty();
  bool Save();
  [[nodiscard]] bool SaveNew();
  [[nodiscard]] bool SaveChanges();
  bool TellRefusal();
  void Delete();
  void RemoveEntry(int index);
  void SelectByKey(std::int32_t key);
  void Import();
  void ToggleEditState();
  void RefillFields();
  void TellInfo();

  const PeopleWords& words_;
  FieldHabits habits_{*this, [this] { MarkEdit(); }};
  bool adding_ = false;
  bool loading_ = false;
  bool dirty_ = false;
  /// Set by the first use of the date picker and never again cleared: coming back from the picker
  /// must not end an add in progress.
  bool datePicked_ = false;
  std::string status_;
};

}  // namespace lorvane
