#pragma once

#include "desktop/binder/ScreenDialog.h"
#include "payments/frmSelectAssessment.h"

namespace lorvane {

/// The payment list: choices at the left, the people of an industry at the right.
class PaymentListWindow : public ScreenDialog {
 public:
  PaymentListWindow(frmSelectAssessment& screen, ScreenGate& gate, QWidget* parent);

 private:
  [[nodiscard]] QWidget* Tools(PaymentMenus& menus);
  [[nodiscard]] QWidget* Choices(frmSelectAssessment& screen);
};

}  // namespace lorvane
