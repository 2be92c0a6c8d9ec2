#pragma once

#include "screen/TextBox.h"

namespace lorvane {

/// The key when it is a digit or Backspace, and unless `digitsOnly` also "." and "-"; else 0.
[[nodiscard]] int FilterKeyPressNumeric(int key, bool digitsOnly);
/// The key when it is a letter from A to Z, small or capital, or Backspace; else 0.
[[nodiscard]] int FilterKeyPressAlpha(int key);
/// Selects the whole text; called on getting the focus.
void SelectText(TextBox& box);
/// Mode 0 switches the box to small letters as they are typed, 1 to capitals; any other leaves it.
void SetTextBoxCase(TextBox& box, int mode);
/// The convention of all entry fields: Enter is swallowed and acts as Tab. True when it was Enter.
bool EnterActsAsTab(Screen& screen, int& key);

}  // namespace lorvane
