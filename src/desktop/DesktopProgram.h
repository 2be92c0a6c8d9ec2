#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "data/Files.h"
#include "data/engine/Engine.h"
#include "desktop/QtServices.h"
#include "desktop/binder/ScreenGate.h"
#include "screen/Session.h"
#include "screen/SystemClock.h"

namespace lorvane {

/// The program on the desktop, from its start to its end.
class DesktopProgram {
 public:
  /// `onEnd` is called once, when the program has ended by itself.
  DesktopProgram(Clock clock, ScreenGate::EndHandler onEnd);
  DesktopProgram(const DesktopProgram&) = delete;
  DesktopProgram& operator=(const DesktopProgram&) = delete;
  ~DesktopProgram();

  /// Shows the splash screen, which shows the main window.
  void Start();
  /// Shows the main window with no splash screen before it.
  void StartWithMainWindow();

  [[nodiscard]] Session& GetSession() { return *session_; }
  [[nodiscard]] ScreenContext Context() { return services_->Context(); }
  [[nodiscard]] ScreenGate& Gate() { return gate_; }
  /// The exit status of a program that has ended.
  [[nodiscard]] const std::optional<int>& ExitStatus() const { return gate_.ExitStatus(); }

 private:
  std::unique_ptr<Engine> engine_;
  DiskFiles files_;
  ScreenRegistry screens_;
  std::unique_ptr<Session> session_;
  ScreenGate gate_;
  std::unique_ptr<QtServices> services_;
};

}  // namespace lorvane
