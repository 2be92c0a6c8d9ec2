#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "data/Files.h"
#include "data/engine/Engine.h"
#include "desktop/QtServices.h"
#include "desktop/StartOrder.h"
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

  /// Shows the splash screen, which shows the main window; then does what was ordered.
  void Start(const StartOrder& order = {});
  /// The same with no splash screen before the main window.
  void StartWithMainWindow(const StartOrder& order = {});

  [[nodiscard]] Session& GetSession() { return *session_; }
  [[nodiscard]] ScreenContext Context() { return services_->Context(); }
  [[nodiscard]] ScreenGate& Gate() { return gate_; }
  /// The exit status of a program that has ended.
  [[nodiscard]] const std::optional<int>& ExitStatus() const { return gate_.ExitStatus(); }

 private:
  void DoWhenReady(const StartOrder& order);

  std::unique_ptr<Engine> engine_;
  DiskFiles files_;
  ScreenRegistry screens_;
  std::unique_ptr<Session> session_;
  ScreenGate gate_;
  std::unique_ptr<QtServices> services_;
};

}  // namespace lorvane
