#pragma once

#include "desktop/binder/ScreenDialog.h"
#include "people/frmEmployees.h"

namespace lorvane {

/// The names at the left, the employee on two pages at the right.
class EmployeesWindow : public ScreenDialog {
 public:
  EmployeesWindow(frmEmployees& screen, ScreenGate& gate, QWidget* parent);
};

}  // namespace lorvane
