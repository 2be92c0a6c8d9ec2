#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "screen/Buttons.h"
#include "screen/Dates.h"
#include "screen/Screen.h"

namespace lorvane {

/// The date picker of the employee and the sub-contractor window. It writes the picked date, or
/// that there is none, into the window that opened it. Closed without a date it writes that there
/// is none.
class frmBirthDate : public Screen {
 public:
  // Values of SelectDate.
  static constexpr std::int16_t kBirth = 1;
  static constexpr std::int16_t kExpiry = 2;

  explicit frmBirthDate(ScreenContext context);

  /// Which window's date is picked.
  std::int16_t SelectDate = 0;

  Calendar calDate{*this, "calDate"};
  Command cmdNoDate{*this, "cmdNoDate", "&None"};

  void Unload() override;
  /// "SelectDate".
  [[nodiscard]] std::optional<std::string> Property(std::string_view name) const override;

 private:
  void Write(const std::string& date) const;
};

}  // namespace lorvane
