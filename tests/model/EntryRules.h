#pragma once

#include <optional>
#include <string>

#include "Amounts.h"

namespace lorvane::model {

/// A row of the payment list.
struct DeskRow {
  int id = 0;
  // An employee's.
  Cents accWages = 0;
  Cents maxContrib = 0;
  /// A sub-contractor's, as the list shows it: 12.5%.
  std::string percent;
  Cents payment = 0;
  /// Nothing while the place shows an expiry.
  std::optional<Cents> assessable;
  bool selected = false;
};

/// The number that the first characters of a percentage make, in units; nothing when they make
/// none.
[[nodiscard]] std::optional<Units> LeadingPercent(const std::string& percent, std::size_t length);

/// Puts a typed amount into an employee's row: assessable up to the ceiling, or whole when the
/// ceiling has been reached.
void EnterEmployee(DeskRow& row, const std::string& typed);
/// Puts a typed amount into a sub-contractor's row: the labour part of it is assessable.
void EnterSubContractor(DeskRow& row, const std::string& typed);
/// Settles an employee's row against the ceiling just before it is posted.
void Settle(DeskRow& row);

}  // namespace lorvane::model
