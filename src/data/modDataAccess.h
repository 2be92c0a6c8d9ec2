#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "basic/Money.h"
#include "data/engine/Value.h"

namespace lorvane {

// Values on their way into a statement: each gives the text to splice in.

/// The text in single quotes with its own quotes doubled; Null for the empty text. Not trimmed.
[[nodiscard]] std::string QuoteText(std::string_view text);
/// The text as it stands when it is a number; Null for anything else.
[[nodiscard]] std::string QuoteNumber(std::string_view text);
/// The number's shortest text.
[[nodiscard]] std::string QuoteNumber(double number);
/// The date in its short form, in single quotes; Null for a text that is empty or no date.
[[nodiscard]] std::string QuoteDate(std::string_view text);
[[nodiscard]] std::string EscapeQuotes(std::string_view text);
/// 1 for true, 0 for false. The engine stores any nonzero as true and reads it back as -1.
[[nodiscard]] std::int16_t BoolToSql(bool flag);
/// As above; null gives 0.
[[nodiscard]] std::int16_t BoolToSql(const Value& value);

// Values on their way out of a row.

/// Text without blanks at both ends; null gives the empty text.
[[nodiscard]] std::string NullToText(const Value& value);
/// A key; null gives -1, which no key generator hands out. Raises 13 and 6 like ToLong.
[[nodiscard]] std::int32_t NullToLong(const Value& value);
/// Null gives false.
[[nodiscard]] bool NullToBool(const Value& value);
/// Null gives 0. Raises 13 for a text that is no number.
[[nodiscard]] Currency NullToCurrency(const Value& value);
/// A double; null gives 0. Raises 13 for a text that is no number.
[[nodiscard]] double NullToDouble(const Value& value);
/// The state of a check box: 1 for true, 0 for false and null.
[[nodiscard]] std::int16_t BoolToCheck(const Value& value);
/// 1 for a check box that is checked (1); 0 for unchecked (0) and greyed (2).
[[nodiscard]] std::int16_t CheckToBool(std::int16_t state);

}  // namespace lorvane
