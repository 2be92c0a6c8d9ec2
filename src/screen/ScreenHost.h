#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "screen/Screen.h"
#include "screen/ScreenServices.h"

namespace lorvane {

/// The screens that can be opened by name.
class ScreenRegistry {
 public:
  using Factory = std::function<std::unique_ptr<Screen>(ScreenContext)>;

  template <typename ScreenType>
  void Add(const std::string& name) {
    factories_[name] = [](ScreenContext context) { return std::make_unique<ScreenType>(context); };
  }
  /// A new screen; null when the name isn't registered.
  [[nodiscard]] std::unique_ptr<Screen> Make(std::string_view name, ScreenContext context) const;
  [[nodiscard]] std::vector<std::string> Names() const;

 private:
  std::map<std::string, Factory, std::less<>> factories_;
};

/// What every implementation of ScreenServices shares: which screens are open, in their order, the
/// making of screens by name, and the pointer.
class ScreenHost : public ScreenServices {
 public:
  ScreenHost(Session& session, const ScreenRegistry& registry);

  [[nodiscard]] int Pointer() const override { return pointer_; }
  void SetPointer(int shape) override { pointer_ = shape; }
  void ShowModal(Screen& screen) override;
  bool OpenScreen(std::string_view name, const ScreenArguments& arguments) override;
  bool OpenModeless(std::string_view name) override;
  [[nodiscard]] Screen* FindScreen(std::string_view name) const override;
  [[nodiscard]] Screen* ActiveScreen() const override;

  /// Loads a screen and brings it to the front; it stays open until it is closed.
  void Show(Screen& screen);
  [[nodiscard]] ScreenContext Context() { return {*session_, *this}; }

 protected:
  /// Lets the user work on the screen, which stands in front, until it is closed.
  virtual void RunModal(Screen& screen) = 0;
  /// Gives the user a window for a screen that isn't modal, or brings the one it has to the front.
  virtual void ShowModeless(Screen& /*screen*/) {}
  /// Takes that window away: the screen has been closed. It lives on until another screen is shown
  /// in this way, since what closed it may be its own.
  virtual void HideModeless(Screen& /*screen*/) {}

 private:
  void Forget(const Screen& screen);
  void EndModeless(Screen& screen);

  Session* session_;
  const ScreenRegistry* registry_;
  std::vector<Screen*> open_;
  /// Those that aren't modal, closed ones among them.
  std::vector<std::unique_ptr<Screen>> modeless_;
  int pointer_ = pointer::kDefault;
};

}  // namespace lorvane
