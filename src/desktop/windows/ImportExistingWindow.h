#pragma once

#include "desktop/binder/ScreenDialog.h"
#include "import/frmImportExisting.h"

namespace lorvane {

/// Sub-contractors of another company.
class ImportExistingWindow : public ScreenDialog {
 public:
  ImportExistingWindow(frmImportExisting& screen, ScreenGate& gate, QWidget* parent);
};

}  // namespace lorvane
