#pragma once

#include <string>

#include "screen/ScreenServices.h"

class QWidget;

namespace lorvane {

// The questions of screens as the toolkit's dialogs, over a window or over none.

/// See ScreenServices::MsgBox. Escape and closing give Cancel, or No where there is no Cancel.
[[nodiscard]] int AskInBox(QWidget* over, const std::string& text, int flags,
                           const std::string& title);
/// See ScreenServices::InputBox.
[[nodiscard]] std::string AskForText(QWidget* over, const std::string& prompt,
                                     const std::string& title, const std::string& proposal);
/// See ScreenServices::AskForFile. Where the folder to start in can't be written, the dialog starts
/// in the user's documents, or in their home when there is no such folder.
[[nodiscard]] std::string AskForFileName(QWidget* over, const FileDialog& dialog);

}  // namespace lorvane
