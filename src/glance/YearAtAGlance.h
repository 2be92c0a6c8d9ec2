#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "basic/Date.h"
#include "basic/IndustrySlot.h"
#include "basic/Money.h"
#include "screen/Session.h"

namespace lorvane {

/// What posted payments come to, in dollars.
struct YearSums {
  Currency assessable;
  Currency assessment;

  YearSums& operator+=(const YearSums& other);
};

/// An employee whose wages of the year have reached nine tenths of the maximum contribution.
struct NearCeiling {
  std::string name;
  Currency wages;
  Currency ceiling;

  /// Nothing more that the employee earns this year is assessable.
  [[nodiscard]] bool IsReached() const { return wages >= ceiling; }
};

/// A sub-contractor whose clearance letter has expired, or does so within thirty days.
struct ClearanceDue {
  std::string name;
  DateTime expiry;
  bool expired = false;
};

/// Saved entries of an industry that wait to be posted.
struct WaitingEntries {
  /// "employee" or "sub-contractor".
  std::string payee;
  IndustrySlot slot = IndustrySlot::kA;
  std::size_t count = 0;
  Currency amount;
};

/// How a company's year stands: what was posted, and what wants to be done next.
struct YearAtAGlance {
  static constexpr std::size_t kMonths = 12;
  using Month = PerSlot<YearSums>;

  int year = 0;
  /// Which industries are ticked or have payments in the year, and their descriptions.
  PerSlot<bool> used;
  PerSlot<std::string> descriptions;
  std::array<Month, kMonths> months;
  /// The highest share of the ceiling first.
  std::vector<NearCeiling> nearCeiling;
  /// The earliest expiry first.
  std::vector<ClearanceDue> clearances;
  std::vector<WaitingEntries> waiting;

  [[nodiscard]] YearSums TotalOf(IndustrySlot slot) const;
  [[nodiscard]] YearSums Total() const;
};

/// Reads the open company's tables over a connection of its own and changes nothing. The year is
/// the company's current one, or today's when none is set. Raises what the engine raises.
[[nodiscard]] YearAtAGlance ReadYearAtAGlance(const Session& session, const DateTime& today);

}  // namespace lorvane
