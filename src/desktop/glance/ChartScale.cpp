#include "desktop/glance/ChartScale.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace lorvane {
namespace {

// The round number at or above: 1, 2 or 5 times a power of ten.
double RoundStep(double wanted) {
  const double power = std::pow(10, std::floor(std::log10(wanted)));
  for (const double digit : {1.0, 2.0, 5.0}) {
    if (digit * power >= wanted) {
      return digit * power;
    }
  }
  constexpr double kNext = 10;
  return kNext * power;
}

}  // namespace

ChartScale::ChartScale(double lowest, double highest) {
  constexpr double kSteps = 5;
  constexpr double kEmpty = 1000;
  const double bottom = std::min(lowest, 0.0);
  double top = std::max(highest, 0.0);
  if (top <= bottom) {
    top = kEmpty;
  }
  const double step = RoundStep((top - bottom) / kSteps);
  const double first = std::floor(bottom / step);
  const double last = std::ceil(top / step);
  for (double place = first; place <= last; ++place) {
    marks_.push_back(place * step);
  }
}

double ChartScale::ShareOf(double value) const {
  return (value - Lowest()) / (Highest() - Lowest());
}

}  // namespace lorvane
