#pragma once

#include "desktop/binder/ScreenDialog.h"
#include "employer/frmAssets.h"

namespace lorvane {

/// The assets at the left, the one selected at the right.
class AssetsWindow : public ScreenDialog {
 public:
  AssetsWindow(frmAssets& screen, ScreenGate& gate, QWidget* parent);
};

}  // namespace lorvane
