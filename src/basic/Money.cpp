#include "basic/Money.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

#include "basic/Number.h"
#include "basic/RuntimeError.h"

namespace lorvane {
namespace {

enum class Half { kAwayFromZero, kToEven };

// The magnitude as digits of the decimal text of at most 15 significant digits: 0.digits times ten
// to the power of `point`.
struct Decimal {
  std::string digits;
  int point = 0;
};

Decimal DecimalOf(double magnitude) {
  std::array<char, 40> buffer{};
  const std::to_chars_result text = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                                  magnitude, std::chars_format::scientific, 14);
  const std::string scientific(buffer.data(), text.ptr);
  const std::size_t e = scientific.find('e');
  return {scientific.substr(0, 1) + scientific.substr(2, e - 2),
          std::stoi(scientific.substr(e + 1)) + 1};
}

// The digits of the magnitude times ten to the power of `decimals`, rounded to a whole number.
std::string ScaledDigits(double magnitude, int decimals, Half half) {
  if (magnitude == 0) {
    return "0";
  }
  Decimal decimal = DecimalOf(magnitude);
  const int keep = decimal.point + decimals;
  if (keep < 0) {
    return "0";
  }
  const auto kept = static_cast<std::size_t>(keep);
  if (kept >= decimal.digits.size()) {
    decimal.digits.append(kept - decimal.digits.size(), '0');
    return decimal.digits;
  }
  std::string whole = "0" + decimal.digits.substr(0, kept);
  const char next = decimal.digits[kept];
  const bool beyond = decimal.digits.find_first_not_of('0', kept + 1) != std::string::npos;
  const bool odd = (whole.back() - '0') % 2 == 1;
  const bool up = next > '5' || (next == '5' && (beyond || half == Half::kAwayFromZero || odd));
  if (up) {
    std::size_t i = whole.size() - 1;
    while (whole[i] == '9') {
      whole[i] = '0';
      --i;
    }
    ++whole[i];
  }
  const std::size_t firstDigit = whole.find_first_not_of('0');
  return firstDigit == std::string::npos ? "0" : whole.substr(firstDigit);
}

// The text of whole cents.
std::string TwoDecimals(std::string digits, bool negative, bool separators) {
  if (digits.size() < 3) {
    digits.insert(0, 3 - digits.size(), '0');
  }
  negative = negative && digits.find_first_not_of('0') != std::string::npos;
  digits.insert(digits.size() - 2, ".");
  if (separators) {
    for (std::size_t at = digits.size() - 3; at > 3;) {
      at -= 3;
      digits.insert(at, ",");
    }
  }
  return (negative ? "-" : "") + digits;
}

std::string TwoDecimals(double dollars, bool separators) {
  return TwoDecimals(ScaledDigits(std::abs(CheckedDouble(dollars)), 2, Half::kAwayFromZero),
                     dollars < 0, separators);
}

std::string TwoDecimals(Currency amount, bool separators) {
  constexpr std::uint64_t kOfCent = 100;
  const std::int64_t units = amount.TenThousandths();
  const auto bits = static_cast<std::uint64_t>(units);
  const std::uint64_t magnitude = units < 0 ? 0 - bits : bits;
  return TwoDecimals(std::to_string((magnitude + kOfCent / 2) / kOfCent), units < 0, separators);
}

}  // namespace

std::string Money(double dollars) { return TwoDecimals(dollars, true); }

std::string Money(Currency amount) { return TwoDecimals(amount, true); }

std::string Plain(double dollars) { return TwoDecimals(dollars, false); }

std::string Plain(Currency amount) { return TwoDecimals(amount, false); }

Currency Currency::FromDouble(double dollars) {
  constexpr double limit = 922337203685477.0;
  if (!(std::abs(dollars) <= limit)) {
    throw RuntimeError(error_number::kOverflow);
  }
  const std::string digits = ScaledDigits(std::abs(dollars), 4, Half::kToEven);
  std::int64_t units = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), units);
  return Currency(dollars < 0 ? -units : units);
}

std::string Currency::ToText() const {
  const std::int64_t magnitude = std::abs(units_);
  std::string text = std::to_string(magnitude / 10000);
  if (magnitude % 10000 != 0) {
    std::string fraction = std::to_string(10000 + magnitude % 10000).substr(1);
    fraction.erase(fraction.find_last_not_of('0') + 1);
    text += "." + fraction;
  }
  return (units_ < 0 ? "-" : "") + text;
}

}  // namespace lorvane
