#pragma once

#include "screen/Buttons.h"
#include "screen/Screen.h"

namespace lorvane {

/// What the program shows while it starts. A front lets Timer1_Timer run once, so many milliseconds
/// after it was shown.
class frmSplash : public Screen {
 public:
  static constexpr int kMilliseconds = 2000;

  explicit frmSplash(ScreenContext context);

  Label lblAppVersion{*this, "lblAppVersion"};

  void Load() override;
  void Unload() override;

  /// Shows the main window and closes the splash screen.
  void Timer1_Timer();
};

}  // namespace lorvane
