#pragma once

#include "desktop/binder/ScreenDialog.h"
#include "payments/frmPayment.h"

namespace lorvane {

/// The amount dialog.
class PaymentWindow : public ScreenDialog {
 public:
  PaymentWindow(frmPayment& screen, ScreenGate& gate, QWidget* parent);
};

}  // namespace lorvane
