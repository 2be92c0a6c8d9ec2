#pragma once

#include <optional>
#include <string_view>

#include "data/engine/Value.h"

namespace lorvane::sql {

// How values stand in the file: null, whole numbers, doubles and texts. Flags are -1 and 0, amounts
// the double nearest to the four-decimal value, dates IsoDate's text.

/// The value as the column stores it. Raises 0x80040E07 for a text that isn't what the column
/// takes, and 0x80040E57 for a text or number that is too large for it.
[[nodiscard]] Value ToStored(const Value& value, const Column& column);

/// The amount of a stored number; nothing when it is too large to be one.
[[nodiscard]] std::optional<Currency> AmountOf(double stored);
/// The date of a stored text.
[[nodiscard]] std::optional<DateTime> DateOf(std::string_view stored);

/// What a text means where a number, a flag or a date is compared with it. Each raises 0x80040E07
/// when it is none.
[[nodiscard]] double NumberInText(std::string_view text);
[[nodiscard]] double FlagInText(std::string_view text);
[[nodiscard]] DateTime DateInText(std::string_view text);

}  // namespace lorvane::sql
