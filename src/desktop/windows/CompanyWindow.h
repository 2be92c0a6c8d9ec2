#pragma once

#include "company/frmCompany.h"
#include "desktop/binder/ScreenDialog.h"

namespace lorvane {

/// The employer on one page, the six industries on the other.
class CompanyWindow : public ScreenDialog {
 public:
  CompanyWindow(frmCompany& screen, ScreenGate& gate, QWidget* parent);
};

}  // namespace lorvane
