#pragma once

#include "desktop/binder/ScreenDialog.h"
#include "people/frmContracts.h"

namespace lorvane {

/// Provinces, and the contract types of the one that is chosen.
class ContractsWindow : public ScreenDialog {
 public:
  ContractsWindow(frmContracts& screen, ScreenGate& gate, QWidget* parent);
};

}  // namespace lorvane
