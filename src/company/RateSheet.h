#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "company/RateTables.h"

namespace lorvane {

/// A row of a sheet as texts, whatever kind of file it stood in.
struct SheetRow {
  /// The row's number in the sheet, counted from 1.
  std::size_t number = 0;
  std::vector<std::string> cells;
};

/// What a sheet of published rates holds.
struct RateSheet {
  /// In the sheet's order; to be used only when there are no faults.
  std::vector<PublishedRate> rates;
  /// A sentence for each cell that can't be taken, by its row and column: "row 5, column C: ...".
  std::vector<std::string> faults;
};

/// Takes code, description and rate in dollars per hundred from a sheet. Without a heading row they
/// stand in the first three columns; with one, under "SIC" or "Code", "Description" and "Rate".
/// Empty rows are passed over.
[[nodiscard]] RateSheet ReadRateSheet(const std::vector<SheetRow>& rows);

/// What bringing rates in does to those that a year has, by code.
struct RateChanges {
  std::vector<PublishedRate> added;
  /// Before and after.
  std::vector<std::pair<PublishedRate, PublishedRate>> changed;
  std::vector<PublishedRate> removed;
  std::size_t unchanged = 0;

  [[nodiscard]] bool None() const { return added.empty() && changed.empty() && removed.empty(); }
};

/// Each list in the order in which the codes stand in `before` or `after`.
[[nodiscard]] RateChanges CompareRates(const std::vector<PublishedRate>& before,
                                       const std::vector<PublishedRate>& after);

}  // namespace lorvane
