#include "Amounts.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <cstdlib>

namespace lorvane::model {
namespace {

constexpr std::size_t kCentDecimals = 2;
constexpr std::size_t kUnitDecimals = 4;

bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

// The digits of a typed number without its sign, and where the point stands among them.
struct Digits {
  bool negative = false;
  std::string whole;
  std::string fraction;
};

std::optional<Digits> DigitsOf(const std::string& text) {
  Digits digits;
  digits.negative = !text.empty() && text.front() == '-';
  const std::string unsignedText = text.substr(digits.negative ? 1 : 0);
  const std::size_t point = std::min(unsignedText.find('.'), unsignedText.size());
  digits.whole = unsignedText.substr(0, point);
  digits.fraction = point < unsignedText.size() ? unsignedText.substr(point + 1) : "";
  const std::string all = digits.whole + digits.fraction;
  if (all.empty() || !std::all_of(all.begin(), all.end(), IsDigit)) {
    return std::nullopt;
  }
  return digits;
}

// Whole steps of so many decimals; the half of a step goes up, or to the even one.
std::int64_t Rounded(const Digits& digits, std::size_t decimals, bool halfToEven) {
  std::string fraction = digits.fraction;
  fraction.resize(std::max(fraction.size(), decimals + 1), '0');
  std::int64_t steps = std::stoll("0" + digits.whole + fraction.substr(0, decimals));
  const std::string rest = fraction.substr(decimals);
  const std::string half = "5" + std::string(rest.size() - 1, '0');
  if (rest > half || (rest == half && (!halfToEven || steps % 2 != 0))) {
    ++steps;
  }
  return digits.negative ? -steps : steps;
}

}  // namespace

std::optional<double> TypedNumber(const std::string& text) {
  return DigitsOf(text) ? std::optional(std::strtod(text.c_str(), nullptr)) : std::nullopt;
}

Cents TypedCents(const std::string& text) {
  const std::optional<Digits> digits = DigitsOf(text);
  return digits ? Rounded(*digits, kCentDecimals, false) : 0;
}

Units TypedUnits(const std::string& text) {
  const std::optional<Digits> digits = DigitsOf(text);
  return digits ? Rounded(*digits, kUnitDecimals, true) : 0;
}

Cents BinaryCents(double dollars) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%.2f", dollars);
  return TypedCents(text.data());
}

Cents ShownCents(Units units) {
  const Units magnitude = (std::abs(units) + kUnitsOfCent / 2) / kUnitsOfCent;
  return units < 0 ? -magnitude : magnitude;
}

Units ThousandthOf(std::int64_t product) {
  constexpr std::int64_t kThousand = 1000;
  const std::int64_t magnitude = std::abs(product);
  std::int64_t whole = magnitude / kThousand;
  const std::int64_t rest = magnitude % kThousand;
  if (rest > kThousand / 2 || (rest == kThousand / 2 && whole % 2 != 0)) {
    ++whole;
  }
  return product < 0 ? -whole : whole;
}

std::string UnitsText(Units units) {
  constexpr Units kOfDollar = 10000;
  const Units magnitude = std::abs(units);
  std::string text = std::to_string(magnitude / kOfDollar);
  if (magnitude % kOfDollar != 0) {
    text += "." + std::to_string(kOfDollar + magnitude % kOfDollar).substr(1);
    text.erase(text.find_last_not_of('0') + 1);
  }
  return (units < 0 ? "-" : "") + text;
}

}  // namespace lorvane::model
