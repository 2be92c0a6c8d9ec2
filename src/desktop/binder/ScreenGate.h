#pragma once

#include <QEventLoop>
#include <functional>
#include <optional>
#include <vector>

namespace lorvane {

class RuntimeError;
class WindowBinder;

/// The gate through which every event of a widget reaches a screen. No exception passes back into
/// the toolkit: an error that the screen left unhandled goes to the program's one handler, and when
/// the program has ended, every window's loop ends too. Behind each event the windows are brought
/// up to date with their screens.
class ScreenGate {
 public:
  /// Tells the user and ends the program by throwing ProgramEnded.
  using ErrorHandler = std::function<void(const RuntimeError&)>;
  /// Called once when the program has ended.
  using EndHandler = std::function<void(int exitStatus)>;

  ScreenGate(ErrorHandler onError, EndHandler onEnd);

  void Run(const std::function<void()>& work);
  /// Runs a window's loop until it is left; throws ProgramEnded when the program ended meanwhile.
  void RunLoop(QEventLoop& loop);
  /// Brings every window up to date with its screen.
  void Flush();
  /// Throws ProgramEnded when the program has ended.
  void ThrowIfEnded() const;
  [[nodiscard]] const std::optional<int>& ExitStatus() const { return exitStatus_; }

  void Add(WindowBinder& window) { windows_.push_back(&window); }
  void Remove(WindowBinder& window) { std::erase(windows_, &window); }

 private:
  void End(int exitStatus);
  void RunCatching(const std::function<void()>& work);

  ErrorHandler onError_;
  EndHandler onEnd_;
  std::vector<WindowBinder*> windows_;
  std::vector<QEventLoop*> loops_;
  std::optional<int> exitStatus_;
};

}  // namespace lorvane
