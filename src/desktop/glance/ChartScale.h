#pragma once

#include <vector>

namespace lorvane {

/// The axis of a chart: round numbers from at or below the lowest value to at or above the highest,
/// zero among them.
class ChartScale {
 public:
  ChartScale(double lowest, double highest);

  [[nodiscard]] double Lowest() const { return marks_.front(); }
  [[nodiscard]] double Highest() const { return marks_.back(); }
  /// In even distances, four to seven of them as a rule.
  [[nodiscard]] const std::vector<double>& Marks() const { return marks_; }
  /// Where a value stands between the lowest mark, 0, and the highest, 1.
  [[nodiscard]] double ShareOf(double value) const;

 private:
  std::vector<double> marks_;
};

}  // namespace lorvane
