#pragma once

#include <optional>
#include <string>
#include <vector>

#include "screen/Control.h"

namespace lorvane {

/// An entry of a menu: a command, a sub-menu with entries of its own, or a separator (caption "-").
/// "&" stands before the mnemonic letter of a caption.
class MenuEntry : public Control {
 public:
  static constexpr const char* kSeparator = "-";

  /// A menu of the menu bar, or a pop-up menu when `popUp` says so.
  MenuEntry(Screen& screen, std::string name, std::string caption, bool popUp = false);
  /// An entry of another menu. The shortcut is such as "Ctrl+N" or "F5"; empty for none.
  MenuEntry(MenuEntry& parent, std::string name, std::string caption, std::string shortcut = {});

  [[nodiscard]] MenuEntry* Parent() const { return parent_; }
  [[nodiscard]] const std::vector<MenuEntry*>& Children() const { return children_; }
  [[nodiscard]] const std::string& Shortcut() const { return shortcut_; }
  [[nodiscard]] bool IsPopUp() const { return popUp_; }
  [[nodiscard]] bool IsSeparator() const { return Caption() == kSeparator; }
  [[nodiscard]] bool Checked() const { return checked_; }
  void SetChecked(bool checked);

  [[nodiscard]] bool TakesFocus() const override { return false; }
  /// Enabled and visible, with every menu above it. A pop-up menu needs not be visible itself.
  [[nodiscard]] bool Usable() const override;
  [[nodiscard]] std::optional<std::string> Attribute(std::string_view name) const override;

 private:
  MenuEntry* parent_ = nullptr;
  std::vector<MenuEntry*> children_;
  std::string shortcut_;
  bool popUp_ = false;
  bool checked_ = false;
};

}  // namespace lorvane
