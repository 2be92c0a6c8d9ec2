#pragma once

#include "desktop/binder/ScreenDialog.h"
#include "people/frmBirthDate.h"

namespace lorvane {

/// The date picker of the windows of people.
class BirthDateWindow : public ScreenDialog {
 public:
  BirthDateWindow(frmBirthDate& screen, ScreenGate& gate, QWidget* parent);
};

}  // namespace lorvane
