#include "desktop/binder/ScreenGate.h"

#include <exception>
#include <utility>

#include "basic/RuntimeError.h"
#include "desktop/binder/WindowBinder.h"
#include "screen/ScreenServices.h"

namespace lorvane {

ScreenGate::ScreenGate(ErrorHandler onError, EndHandler onEnd)
    : onError_(std::move(onError)), onEnd_(std::move(onEnd)) {}

void ScreenGate::Run(const std::function<void()>& work) {
  if (exitStatus_) {
    return;
  }
  RunCatching([&] {
    try {
      work();
    } catch (const RuntimeError& error) {
      onError_(error);
    } catch (const ProgramEnded&) {
      throw;
    } catch (const std::exception& error) {
      onError_(RuntimeError(error_number::kInternalError, error.what()));
    }
  });
  Flush();
}

void ScreenGate::RunCatching(const std::function<void()>& work) {
  try {
    work();
  } catch (const ProgramEnded& ended) {
    End(ended.exitStatus);
  }
}

void ScreenGate::RunLoop(QEventLoop& loop) {
  Flush();
  loops_.push_back(&loop);
  loop.exec();
  std::erase(loops_, &loop);
  ThrowIfEnded();
}

void ScreenGate::Flush() {
  if (exitStatus_) {
    return;
  }
  // A window that is brought up to date may go.
  const std::vector<WindowBinder*> windows = windows_;
  for (WindowBinder* window : windows) {
    if (std::find(windows_.begin(), windows_.end(), window) != windows_.end()) {
      window->Flush();
    }
  }
}

void ScreenGate::ThrowIfEnded() const {
  if (exitStatus_) {
    throw ProgramEnded{*exitStatus_};
  }
}

void ScreenGate::End(int exitStatus) {
  if (exitStatus_) {
    return;
  }
  exitStatus_ = exitStatus;
  for (QEventLoop* loop : loops_) {
    loop->quit();
  }
  onEnd_(exitStatus);
}

}  // namespace lorvane
