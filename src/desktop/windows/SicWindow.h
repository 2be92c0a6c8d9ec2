#pragma once

#include "company/frmSIC.h"
#include "desktop/binder/ScreenDialog.h"

namespace lorvane {

/// The look-up of codes and rates.
class SicWindow : public ScreenDialog {
 public:
  SicWindow(frmSIC& screen, ScreenGate& gate, QWidget* parent);
};

}  // namespace lorvane
