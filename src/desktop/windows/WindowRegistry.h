#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "desktop/binder/ScreenDialog.h"

namespace lorvane {

/// The windows of the screens, by the screens' names.
class WindowRegistry {
 public:
  template <typename ScreenType, typename WindowType>
  void Add(const std::string& name) {
    makers_[name] = [](Screen& screen, ScreenGate& gate, QWidget* parent) {
      return std::make_unique<WindowType>(static_cast<ScreenType&>(screen), gate, parent);
    };
  }
  /// A new window, complete and not yet shown. Raises 51 when the screen has none.
  [[nodiscard]] std::unique_ptr<ScreenDialog> Make(Screen& screen, ScreenGate& gate,
                                                   QWidget* parent) const;
  /// The screens that have a window.
  [[nodiscard]] std::vector<std::string> Names() const;

 private:
  using Maker = std::function<std::unique_ptr<ScreenDialog>(Screen&, ScreenGate&, QWidget*)>;
  std::map<std::string, Maker, std::less<>> makers_;
};

/// The windows of all screens but the main window and the splash screen.
[[nodiscard]] WindowRegistry AllWindows();

}  // namespace lorvane
