#pragma once

#include <string>

#include "basic/RuntimeError.h"
#include "screen/Screen.h"
#include "screen/TabStrip.h"

namespace lorvane {

/// Asks whether changed information is to be saved, with the pointer at its default meanwhile; the
/// title is the screen's caption. Yes, No or Cancel (see `answer`).
[[nodiscard]] int AskSave(Screen& screen);
/// Asks with the active screen's caption as title; true for Yes.
[[nodiscard]] bool AskYesNo(ScreenContext context, const std::string& text);
/// Places the screen in the middle of the main window.
void CentreForm(Screen& screen);
/// Puts the focus on the first enabled control bound to the column, and turns its tab page to the
/// front first. Nothing happens when there is none.
void FocusFieldInError(Screen& screen, const std::string& fieldName, TabStrip* tabs = nullptr);
/// A box titled "Error" with the error's number and description.
void ShowError(ScreenContext context, const RuntimeError& error, int flags);

}  // namespace lorvane
