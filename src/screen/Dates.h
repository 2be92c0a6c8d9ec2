#pragma once

#include <optional>
#include <string>

#include "basic/Date.h"
#include "screen/Control.h"

namespace lorvane {

/// A field for a date between two limits.
class DatePicker : public Control {
 public:
  DatePicker(Screen& screen, std::string name, const DateTime& date);

  [[nodiscard]] const DateTime& Date() const { return date_; }
  /// Raises 35773 for a date outside the limits.
  void SetDate(const DateTime& date);
  /// The limits; a date outside them stays until it is set anew.
  void SetLimits(std::optional<DateTime> earliest, std::optional<DateTime> latest);
  [[nodiscard]] const std::optional<DateTime>& Earliest() const { return earliest_; }
  [[nodiscard]] const std::optional<DateTime>& Latest() const { return latest_; }

  std::function<void()> OnChange;

  /// A user picks a date; one outside the limits isn't taken.
  void UserPick(const DateTime& date);
  [[nodiscard]] std::string ShownText() const override { return ShortDate(date_); }

 private:
  DateTime date_;
  std::optional<DateTime> earliest_;
  std::optional<DateTime> latest_;
};

/// A month's sheet of which one day may be marked. A user's pick raises OnClick.
class Calendar : public Control {
 public:
  using Control::Control;

  [[nodiscard]] const std::optional<DateTime>& Date() const { return date_; }
  void SetDate(std::optional<DateTime> date);

  void UserPick(const DateTime& date);
  void UserClick() override;
  [[nodiscard]] std::string ShownText() const override;

 private:
  std::optional<DateTime> date_;
};

}  // namespace lorvane
