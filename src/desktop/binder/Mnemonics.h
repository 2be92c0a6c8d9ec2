#pragma once

#include <QString>
#include <QWidget>
#include <string_view>

class QAbstractButton;
class QLabel;

namespace lorvane {

/// Shows a caption in which "&" stands before the mnemonic letter. Where the caption has none, the
/// letter that AssignMnemonics found for the widget is marked.
void SetCaptionOf(QAbstractButton& button, std::string_view caption);
void SetCaptionOf(QLabel& label, std::string_view caption);

/// Gives a mnemonic letter to every button and naming label of a window that has none, in the order
/// of the window's widgets; no letter is given twice, and none that a menu of the bar or a caption
/// has by itself.
void AssignMnemonics(QWidget& window);

/// A caption without its marks.
[[nodiscard]] QString WithoutMnemonic(QString caption);

}  // namespace lorvane
