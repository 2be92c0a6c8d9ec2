#pragma once

#include "desktop/binder/ScreenDialog.h"
#include "people/frmSubContractor.h"

namespace lorvane {

/// The names at the left, the sub-contractor at the right.
class SubContractorWindow : public ScreenDialog {
 public:
  SubContractorWindow(frmSubContractor& screen, ScreenGate& gate, QWidget* parent);
};

}  // namespace lorvane
