#include "people/FieldHabits.h"

#include <utility>

#include "screen/modTextBox.h"

namespace lorvane {

FieldHabits::FieldHabits(Screen& screen, std::function<void()> markEdit)
    : screen_(screen), markEdit_(std::move(markEdit)) {}

void FieldHabits::MakeEntryField(TextBox& box) const {
  box.OnGotFocus = [&box] { SelectText(box); };
  MarkEditWithKeys(box);
}

void FieldHabits::MakeTextField(TextBox& box) const {
  box.MultiLine = true;
  box.OnGotFocus = [&box] { SelectText(box); };
  box.OnKeyPress = [this](int&) { markEdit_(); };
}

void FieldHabits::MakeCapitals(TextBox& box) {
  box.OnKeyPress = [&box, handle = box.OnKeyPress](int& key) {
    SetTextBoxCase(box, 1);
    handle(key);
  };
}

void FieldHabits::MarkEditWithKeys(Control& control) const {
  control.OnKeyPress = [this](int& key) {
    if (!EnterActsAsTab(screen_, key)) {
      markEdit_();
    }
  };
}

void FieldHabits::MarkEditWithMouse(Control& control) const {
  control.OnMouseUp = [this](MouseButton) { markEdit_(); };
  control.OnKeyPress = [this](int& key) { EnterActsAsTab(screen_, key); };
}

}  // namespace lorvane
