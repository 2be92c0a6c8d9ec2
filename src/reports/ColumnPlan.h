#pragma once

#include <cstddef>
#include <vector>

#include "reports/PageLayout.h"

namespace lorvane {

/// Where the columns of a table stand on a page: those that its group headings tell have no place.
struct ColumnPlan {
  struct Place {
    std::size_t column = 0;
    double x = 0;
    double width = 0;
  };

  std::vector<Place> places;
  /// Below 1 when the amounts need more room than there is.
  double scale = 1;
};

/// Shares out the page's width by what the columns want, with room for the longest amount, number
/// and date of each. Tables of texts are measured times `scale`.
[[nodiscard]] ColumnPlan PlanColumns(const ReportSection& section, double x, double width,
                                     double scale, const TextMeasure& measure);

/// The style of a row's cells.
[[nodiscard]] PageStyle StyleOfRow(const ReportRow& row);

}  // namespace lorvane
