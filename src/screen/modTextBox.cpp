#include "screen/modTextBox.h"

#include "basic/Text.h"
#include "screen/Screen.h"

namespace lorvane {

int FilterKeyPressNumeric(int key, bool digitsOnly) {
  const bool digit = key >= '0' && key <= '9';
  const bool mark = !digitsOnly && (key == '.' || key == '-');
  return digit || mark || key == key_code::kBackspace ? key : key_code::kNone;
}

int FilterKeyPressAlpha(int key) {
  const bool letter = (key >= 'A' && key <= 'Z') || (key >= 'a' && key <= 'z');
  return letter || key == key_code::kBackspace ? key : key_code::kNone;
}

void SelectText(TextBox& box) { box.Select(0, Length(box.Text())); }

void SetTextBoxCase(TextBox& box, int mode) {
  if (mode == 0) {
    box.SetCase(LetterCase::kLower);
  } else if (mode == 1) {
    box.SetCase(LetterCase::kUpper);
  }
}

bool EnterActsAsTab(Screen& screen, int& key) {
  if (key != key_code::kEnter) {
    return false;
  }
  key = key_code::kNone;
  screen.FocusNext();
  return true;
}

}  // namespace lorvane
