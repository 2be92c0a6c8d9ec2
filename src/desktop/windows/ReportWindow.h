#pragma once

#include "desktop/binder/ScreenDialog.h"
#include "reports/ReportScreen.h"

namespace lorvane {

/// The window of every report: its viewer takes all the room.
class ReportWindow : public ScreenDialog {
 public:
  ReportWindow(ReportScreen& screen, ScreenGate& gate, QWidget* parent);
};

}  // namespace lorvane
