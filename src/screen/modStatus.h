#pragma once

#include <string>

#include "screen/ScreenContext.h"

namespace lorvane {

// The status bar: what each panel shows, and saving and restoring all of it round a long operation.

void StatusMsg(ScreenContext context, const std::string& text);
/// Puts "Status: " in front of the text.
void StatusAssessment(ScreenContext context, const std::string& text);
void StatusForm(ScreenContext context, const std::string& text);

/// The three panels and the pointer as one text, with tabs between them.
[[nodiscard]] std::string StatusSave(ScreenContext context);
/// Saves, shows the message and the hourglass, and gives what was saved.
[[nodiscard]] std::string StatusPush(ScreenContext context, const std::string& text);
/// Restores the panels as they stood, and the pointer too when told so. Raises 6 for a text that
/// StatusSave didn't give.
void StatusPop(ScreenContext context, const std::string& saved, bool restorePointer);

}  // namespace lorvane
