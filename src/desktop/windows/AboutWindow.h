#pragma once

#include "desktop/binder/ScreenDialog.h"
#include "shell/frmAbout.h"

namespace lorvane {

/// What the program is, and what it is built with.
class AboutWindow : public ScreenDialog {
 public:
  AboutWindow(frmAbout& screen, ScreenGate& gate, QWidget* parent);
};

}  // namespace lorvane
