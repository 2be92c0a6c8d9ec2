#pragma once

#include "desktop/binder/ScreenDialog.h"
#include "import/frmImportHlp.h"

namespace lorvane {

/// How a spreadsheet is formatted.
class ImportHelpWindow : public ScreenDialog {
 public:
  ImportHelpWindow(frmImportHlp& screen, ScreenGate& gate, QWidget* parent);
};

}  // namespace lorvane
