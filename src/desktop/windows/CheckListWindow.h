#pragma once

#include "company/frmCheckList.h"
#include "desktop/binder/ScreenDialog.h"

namespace lorvane {

/// The steps of a new company, done ones struck through.
class CheckListWindow : public ScreenDialog {
 public:
  CheckListWindow(frmCheckList& screen, ScreenGate& gate, QWidget* parent);
};

}  // namespace lorvane
