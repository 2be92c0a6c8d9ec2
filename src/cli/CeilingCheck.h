#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "basic/Money.h"

namespace lorvane {

/// Follows the year's payments to employees in the order of posting, as wages accumulate, and tells
/// which assessable amounts their ceilings don't explain.
///
/// An employee's maximum contribution may have been raised since a payment was posted, so one that
/// was cut below today's maximum is in order, unless a payment posted before it, to anybody with
/// the same maximum, was assessed beyond that point.
class CeilingCheck {
 public:
  /// The maximum contributions by employee.
  explicit CeilingCheck(std::map<std::int32_t, Currency> ceilings);

  /// What is wrong with the assessable part of the next payment of an employee; empty when nothing
  /// is, or when no maximum is known. Raises 6 when the wages grow too large.
  [[nodiscard]] std::string Next(std::int32_t employeeId, Currency amount, Currency assessable);
  /// Adds to an employee's wages what isn't to be judged. Raises 6 like Next.
  void AddWages(std::int32_t employeeId, Currency amount);
  /// What an employee was paid in all.
  [[nodiscard]] Currency WagesOf(std::int32_t employeeId) const;

 private:
  std::map<std::int32_t, Currency> ceilings_;
  std::map<std::int32_t, Currency> wages_;
  /// By today's maximum: how far payments have shown it to reach at the time of posting.
  std::map<Currency, Currency> shown_;
};

}  // namespace lorvane
