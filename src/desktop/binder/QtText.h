#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace lorvane {

/// A screen's text for a widget. Line breaks become those of the toolkit.
[[nodiscard]] QString ToQt(std::string_view text);
/// A widget's text for a screen.
[[nodiscard]] std::string FromQt(const QString& text);

}  // namespace lorvane
