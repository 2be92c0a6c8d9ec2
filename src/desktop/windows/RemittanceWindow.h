#pragma once

#include "desktop/binder/ScreenDialog.h"
#include "reports/frmRemittanceCalc.h"

namespace lorvane {

/// What a report is to be of: type, period and options, or the year and what has changed.
class RemittanceWindow : public ScreenDialog {
 public:
  RemittanceWindow(frmRemittanceCalc& screen, ScreenGate& gate, QWidget* parent);

 private:
  QWidget* Type(frmRemittanceCalc& screen);
  QWidget* Period(frmRemittanceCalc& screen);
  QWidget* Options(frmRemittanceCalc& screen);
  QWidget* YearEnd(frmRemittanceCalc& screen);
};

}  // namespace lorvane
