#pragma once

#include "desktop/binder/ScreenDialog.h"
#include "employer/frmOptions.h"

namespace lorvane {

/// The employer update: contacts, business and principals, a page each.
class OptionsWindow : public ScreenDialog {
 public:
  OptionsWindow(frmOptions& screen, ScreenGate& gate, QWidget* parent);
};

}  // namespace lorvane
