#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lorvane {

/// The number in a text: blanks around, a sign in front, thousands separators and a decimal point
/// are understood. Raises 13 when the text is empty or no number ("5%" is none), 6 when it is too
/// large.
[[nodiscard]] double ToDouble(std::string_view text);
/// As ToDouble, with nothing for a text that isn't a number.
[[nodiscard]] std::optional<double> ParseNumber(std::string_view text);
[[nodiscard]] bool IsNumeric(std::string_view text);

/// A whole number of 16 or 32 bits, rounded half to even. Raises 13 and 6 like ToDouble, and 6 when
/// the number doesn't fit.
[[nodiscard]] std::int16_t ToInteger(std::string_view text);
[[nodiscard]] std::int16_t ToInteger(double value);
[[nodiscard]] std::int32_t ToLong(std::string_view text);
[[nodiscard]] std::int32_t ToLong(double value);
/// `value` plus 1; raises 6 past 32,767.
[[nodiscard]] std::int16_t NextInteger(std::int16_t value);

/// The shortest text that reads back as the same double; no exponent for ordinary amounts.
[[nodiscard]] std::string ShortestText(double value);

/// Rounded half to even on the exact binary value: Round(1.005, 2) is 1, Round(512.5, 0) is 512.
[[nodiscard]] double Round(double value, int decimals);

/// Raises 6 when a sum or product left the range of a double, else hands the value on.
[[nodiscard]] double CheckedDouble(double value);

}  // namespace lorvane
