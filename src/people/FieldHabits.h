#pragma once

#include <functional>

#include "people/TextFields.h"
#include "screen/Screen.h"
#include "screen/TextBox.h"

namespace lorvane {

/// Gives the fields of a window their habits: how keys and mouse move on, and what counts as an
/// edit.
class FieldHabits {
 public:
  /// `markEdit` is called for every edit. The habits last as long as the fields do.
  FieldHabits(Screen& screen, std::function<void()> markEdit);

  /// An entry field's text is selected on getting the focus, and its keys are edits.
  void MakeEntryField(TextBox& box) const;
  /// The same for many, each bound to its column.
  template <typename Person>
  void MakeEntryFields(const TextFields<Person>& fields) const {
    for (const TextField<Person>& field : fields) {
      field.box->DataField = field.column;
      MakeEntryField(*field.box);
    }
  }
  /// An entry field in which Enter begins a new line.
  void MakeTextField(TextBox& box) const;
  /// Letters typed in the entry field become capitals.
  static void MakeCapitals(TextBox& box);
  /// Enter on the control moves on; any other key is an edit.
  void MarkEditWithKeys(Control& control) const;
  /// The mouse on the control is an edit, its keys aren't; Enter moves on.
  void MarkEditWithMouse(Control& control) const;

 private:
  Screen& screen_;
  std::function<void()> markEdit_;
};

}  // namespace lorvane
