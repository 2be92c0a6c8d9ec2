#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace lorvane::model {

/// A hundredth of a dollar: what the payment list shows.
using Cents = std::int64_t;
/// A ten-thousandth of a dollar: what a currency column keeps.
using Units = std::int64_t;

inline constexpr Units kUnitsOfCent = 100;

/// The number that was typed: a sign, digits, one point. Nothing for any other text.
[[nodiscard]] std::optional<double> TypedNumber(const std::string& text);

/// A typed number in cents, half a cent away from zero; 0 for a text that is none.
[[nodiscard]] Cents TypedCents(const std::string& text);
/// A typed number in units, half a unit to the even one.
[[nodiscard]] Units TypedUnits(const std::string& text);
/// A double in cents, half to even on the binary value as it stands.
[[nodiscard]] Cents BinaryCents(double dollars);
/// What a column shows where two decimals are shown, half a cent away from zero.
[[nodiscard]] Cents ShownCents(Units units);
/// `product` units times a thousand in whole units, half to even.
[[nodiscard]] Units ThousandthOf(std::int64_t product);

/// The shortest text: 1000.5, -0.0312.
[[nodiscard]] std::string UnitsText(Units units);

}  // namespace lorvane::model
