#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace lorvane {

/// A screen's text for a widget. Line breaks become those of the toolkit.
[[nodiscard]] QString ToQt(std::string_view text);
/// A widget's text for a screen.
[[nodiscard]] std::string FromQt(const QString& text);

/// A place in characters, as screens count, and in the toolkit's own units of a text.
[[nodiscard]] int UnitsBefore(const QString& text, std::size_t characters);
[[nodiscard]] std::size_t CharactersBefore(const QString& text, qsizetype units);

}  // namespace lorvane
