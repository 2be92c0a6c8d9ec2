#pragma once

#include <QWidget>

#include "desktop/binder/WindowBinder.h"
#include "shell/frmSplash.h"

namespace lorvane {

/// The picture that is shown while the program starts.
class SplashWindow : public QWidget {
 public:
  SplashWindow(frmSplash& screen, ScreenGate& gate);

  [[nodiscard]] WindowBinder& Binder() { return binder_; }

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  frmSplash& screen_;
  WindowBinder binder_;
};

}  // namespace lorvane
