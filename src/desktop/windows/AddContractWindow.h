#pragma once

#include "desktop/binder/ScreenDialog.h"
#include "people/frmAddContract.h"

namespace lorvane {

/// The dialog for one contract type.
class AddContractWindow : public ScreenDialog {
 public:
  AddContractWindow(frmAddContract& screen, ScreenGate& gate, QWidget* parent);
};

}  // namespace lorvane
