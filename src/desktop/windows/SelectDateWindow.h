#pragma once

#include "desktop/binder/ScreenDialog.h"
#include "payments/frmSelectDate.h"

namespace lorvane {

/// The dialog for the posting date.
class SelectDateWindow : public ScreenDialog {
 public:
  SelectDateWindow(frmSelectDate& screen, ScreenGate& gate, QWidget* parent);
};

}  // namespace lorvane
