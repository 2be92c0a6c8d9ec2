#pragma once

#include "desktop/binder/ScreenDialog.h"
#include "import/frmImport.h"

namespace lorvane {

/// People from a spreadsheet: where from and where to, the layout, and the first rows.
class ImportWindow : public ScreenDialog {
 public:
  ImportWindow(frmImport& screen, ScreenGate& gate, QWidget* parent);
};

}  // namespace lorvane
