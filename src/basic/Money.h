#pragma once

#include <compare>
#include <cstdint>
#include <string>

namespace lorvane {

/// Text of dollars in the format "##,0.00": two decimals, thousands separators, a minus sign in
/// front of a negative. Rounds half away from zero on the decimal text of at most 15 significant
/// digits, so that 1.005 gives 1.01 and 2.675 gives 2.68, as a book-keeper would round them.
[[nodiscard]] std::string Money(double dollars);
/// As Money without thousands separators ("##0.00").
[[nodiscard]] std::string Plain(double dollars);

/// A currency column's value: a 64-bit fixed-point number of dollars with four decimals.
class Currency {
 public:
  constexpr Currency() = default;
  /// Rounded half to even on the decimal text; raises 6 when the amount is too large.
  static Currency FromDouble(double dollars);
  static constexpr Currency FromTenThousandths(std::int64_t units) { return Currency(units); }

  [[nodiscard]] constexpr std::int64_t TenThousandths() const { return units_; }
  /// The double nearest to the four-decimal value.
  [[nodiscard]] double ToDouble() const { return static_cast<double>(units_) / 10000.0; }
  /// The shortest decimal text: 1000.5, -0.0312.
  [[nodiscard]] std::string ToText() const;

  friend constexpr auto operator<=>(Currency, Currency) = default;
  friend constexpr Currency operator+(Currency left, Currency right) {
    return Currency(left.units_ + right.units_);
  }
  constexpr Currency& operator+=(Currency other) {
    units_ += other.units_;
    return *this;
  }

 private:
  explicit constexpr Currency(std::int64_t units) : units_(units) {}

  std::int64_t units_ = 0;
};

/// The same texts of a fixed-point amount, exact whatever its size.
[[nodiscard]] std::string Money(Currency amount);
[[nodiscard]] std::string Plain(Currency amount);

}  // namespace lorvane
