#include "basic/Number.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "basic/RuntimeError.h"

namespace lorvane {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The text without blanks around, sign and thousands separators; empty when it isn't a number.
std::string DigitsOf(std::string_view text) {
  std::string digits;
  bool inFraction = false;
  bool inExponent = false;
  bool anyDigit = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (IsDigit(c)) {
      anyDigit = true;
      digits += c;
    } else if (c == ',' && anyDigit && !inFraction && !inExponent) {
      continue;
    } else if (c == '.' && !inFraction && !inExponent) {
      inFraction = true;
      digits += c;
    } else if ((c == 'e' || c == 'E') && anyDigit && !inExponent && i + 1 < text.size()) {
      inExponent = true;
      digits += 'e';
      if (text[i + 1] == '-' || text[i + 1] == '+') {
        ++i;
        digits += text[i];
      }
      if (i + 1 >= text.size() || !IsDigit(text[i + 1])) {
        return {};
      }
    } else {
      return {};
    }
  }
  return anyDigit ? digits : std::string();
}

template <typename Integer>
Integer ToWhole(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
        rounded <= static_cast<double>(std::numeric_limits<Integer>::max()))) {
    throw RuntimeError(error_number::kOverflow);
  }
  return static_cast<Integer>(rounded);
}

}  // namespace

std::optional<double> ParseNumber(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) {
    return std::nullopt;
  }
  text = text.substr(first, text.find_last_not_of(' ') - first + 1);
  const bool negative = text.front() == '-';
  if (negative || text.front() == '+') {
    text.remove_prefix(1);
  }
  const std::string digits = DigitsOf(text);
  if (digits.empty()) {
    return std::nullopt;
  }
  double value = 0;
  const std::from_chars_result result =
      std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    // Too small reads as zero; too large is an overflow.
    const bool tiny =
        digits.find("e-") != std::string::npos || digits.front() == '.' || digits.front() == '0';
    if (!tiny) {
      throw RuntimeError(error_number::kOverflow);
    }
    value = 0;
  }
  return negative ? -value : value;
}

double ToDouble(std::string_view text) {
  const std::optional<double> value = ParseNumber(text);
  if (!value) {
    throw RuntimeError(error_number::kTypeMismatch);
  }
  return *value;
}

bool IsNumeric(std::string_view text) {
  try {
    return ParseNumber(text).has_value();
  } catch (const RuntimeError&) {
    return false;
  }
}

std::int16_t ToInteger(std::string_view text) { return ToInteger(ToDouble(text)); }

std::int16_t ToInteger(double value) { return ToWhole<std::int16_t>(value); }

std::int32_t ToLong(std::string_view text) { return ToLong(ToDouble(text)); }

std::int32_t ToLong(double value) { return ToWhole<std::int32_t>(value); }

std::int16_t NextInteger(std::int16_t value) { return ToInteger(static_cast<double>(value) + 1); }

std::string ShortestText(double value) {
  if (value == 0) {
    return "0";
  }
  std::array<char, 400> buffer{};
  const double magnitude = std::abs(value);
  const bool ordinary = magnitude >= 1e-7 && magnitude < 1e17;
  const std::to_chars_result result =
      ordinary ? std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                               std::chars_format::fixed)
               : std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return {buffer.data(), result.ptr};
}

double Round(double value, int decimals) {
  if (!std::isfinite(value)) {
    return value;
  }
  std::array<char, 400> buffer{};
  const std::to_chars_result text = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                                  value, std::chars_format::fixed, decimals);
  double rounded = 0;
  std::from_chars(buffer.data(), text.ptr, rounded);
  return rounded == 0 ? 0 : rounded;
}

double CheckedDouble(double value) {
  if (!std::isfinite(value)) {
    throw RuntimeError(error_number::kOverflow);
  }
  return value;
}

}  // namespace lorvane
