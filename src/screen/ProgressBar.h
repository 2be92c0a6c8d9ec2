#pragma once

#include <string>

#include "screen/Control.h"

namespace lorvane {

/// Shows how far a long operation has come, from 0 to a maximum.
class ProgressBar : public Control {
 public:
  using Control::Control;

  [[nodiscard]] double Maximum() const { return maximum_; }
  /// Raises 380 when the maximum isn't above 0; a value above it is brought down.
  void SetMaximum(double maximum);
  [[nodiscard]] double Value() const { return value_; }
  /// Raises 380 outside 0 to the maximum.
  void SetValue(double value);

  [[nodiscard]] bool TakesFocus() const override { return false; }
  void UserClick() override {}
  [[nodiscard]] std::string ShownText() const override;

 private:
  double maximum_ = 100;
  double value_ = 0;
};

}  // namespace lorvane
