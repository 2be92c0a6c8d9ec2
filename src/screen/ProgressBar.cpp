#include "screen/ProgressBar.h"

#include <algorithm>

#include "basic/Number.h"
#include "basic/RuntimeError.h"

namespace lorvane {

void ProgressBar::SetMaximum(double maximum) {
  if (!(maximum > 0)) {
    throw RuntimeError(error_number::kInvalidPropertyValue);
  }
  maximum_ = maximum;
  value_ = std::min(value_, maximum_);
  Changed();
}

void ProgressBar::SetValue(double value) {
  if (!(value >= 0 && value <= maximum_)) {
    throw RuntimeError(error_number::kInvalidPropertyValue);
  }
  value_ = value;
  Changed();
}

std::string ProgressBar::ShownText() const { return ShortestText(value_); }

}  // namespace lorvane
