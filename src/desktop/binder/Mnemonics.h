#pragma once

#include <QString>
#include <QWidget>
#include <string_view>

class QAbstractButton;
class QLabel;

namespace lorvane {

/// Shows a caption in which "&" stands before the mnemonic letter. The letter that
/// AssignMnemonics found for the widget comes first.
void SetCaptionOf(QAbstractButton& button, std::string_view caption);
void SetCaptionOf(QLabel& label, std::string_view caption);

/// Gives a mnemonic letter to every button and naming label of a window that has none, or one that
/// another has already, in the order of the window's widgets. No letter leads to two of them, or to
/// one of them and a menu of the bar.
void AssignMnemonics(QWidget& window);

/// A caption without its marks.
[[nodiscard]] QString WithoutMnemonic(QString caption);

}  // namespace lorvane
