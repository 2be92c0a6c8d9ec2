#pragma once

#include "screen/Buttons.h"
#include "screen/Screen.h"

namespace lorvane {

/// The window that tells the program's name, version and purpose. A front may add to
/// lblBuiltWith what it is built with itself.
class frmAbout : public Screen {
 public:
  explicit frmAbout(ScreenContext context);

  Label lblAppName{*this, "lblAppName"};
  Label lblAppVersion{*this, "lblAppVersion"};
  Label lblDescription{*this, "lblDescription"};
  Label lblBuiltWith{*this, "lblBuiltWith"};
  Command cmdOK{*this, "cmdOK", "&OK"};

  void Load() override;

 protected:
  /// Escape and Enter close the window.
  void KeyPreview(int& key) override;
};

}  // namespace lorvane
