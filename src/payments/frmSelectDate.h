#pragma once

#include <cstdint>

#include "screen/Buttons.h"
#include "screen/Dates.h"
#include "screen/Screen.h"

namespace lorvane {

/// The dialog for the posting date, which must lie in the company's current year. A date that is
/// refused, like a dialog that is cancelled or closed, ends the posting: the session's posting date
/// is then Session::kNoPostingDate.
class frmSelectDate : public Screen {
 public:
  explicit frmSelectDate(ScreenContext context);

  Label lblSelectDate{*this, "lblSelectDate",
                      "Select a date for these payments.  The important thing is that the payments "
                      "are in the right month."};
  Calendar calDate{*this, "calDate"};
  Command cmdOK{*this, "cmdOK", "&OK"};
  Command cmdCancel{*this, "cmdCancel", "&Cancel"};

  void Load() override;
  void Unload() override;

 private:
  void ReadLastEntry();
  void ReadCurrentYear();
  /// Asks for the year of the payments until one from 2000 to 2100 is given, while it is 0.
  void AskCurrentYear();
  void TakeDate();
  void Cancel();
  /// Whether the calendar's date lies in the current year; the user is told when not.
  [[nodiscard]] bool ValidatePostingYear();
  [[nodiscard]] bool StoreLastEntry();

  std::int16_t currentYear_ = 0;
  bool chosen_ = false;
};

}  // namespace lorvane
