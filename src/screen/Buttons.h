#pragma once

#include <optional>
#include <string>

#include "screen/Control.h"

namespace lorvane {

/// A button, or a button of a tool bar.
class Command : public Control {
 public:
  /// The default button is pressed by Enter, the cancel button by Escape, wherever the focus is,
  /// when nobody else takes the key.
  enum class Role { kPlain, kDefault, kCancel };

  Command(Screen& screen, std::string name, std::string caption = {}, std::string tip = {});

  [[nodiscard]] Role ButtonRole() const { return role_; }
  void SetButtonRole(Role role) { role_ = role; }

  /// Enter and the space bar press it.
  bool UserKey(int key) override;

 private:
  Role role_ = Role::kPlain;
};

/// A text that a user only reads.
class Label : public Control {
 public:
  Label(Screen& screen, std::string name, std::string caption = {});

  [[nodiscard]] bool TakesFocus() const override { return false; }
  void UserClick() override {}
  [[nodiscard]] bool StrikeThrough() const { return strikeThrough_; }
  void SetStrikeThrough(bool strikeThrough);
  [[nodiscard]] std::optional<std::string> Attribute(std::string_view name) const override;

 private:
  bool strikeThrough_ = false;
};

/// A titled border round other controls, a tool bar's strip, or another thing that only shows
/// itself.
class Frame : public Control {
 public:
  Frame(Screen& screen, std::string name, std::string caption = {}, std::string tip = {});

  [[nodiscard]] bool TakesFocus() const override { return false; }
  void UserClick() override {}
};

/// A box that is ticked or not. A change of its value raises OnClick, by code too.
class CheckBox : public Control {
 public:
  CheckBox(Screen& screen, std::string name, std::string caption = {}, std::string tip = {});

  /// False for a caption that a user wrote: an "&" in it is one, and marks no letter.
  bool UseMnemonic = true;

  [[nodiscard]] bool Checked() const { return checked_; }
  void SetChecked(bool checked);

  void UserClick() override;
  bool UserKey(int key) override;
  [[nodiscard]] std::optional<std::string> Attribute(std::string_view name) const override;

 private:
  bool checked_ = false;
};

/// One of several choices, of which at most one is set in a group. Setting one, by code too, raises
/// its OnClick; setting what is set already raises nothing.
class OptionButton : public Control {
 public:
  OptionButton(Screen& screen, std::string name, std::string group, std::string caption = {});

  [[nodiscard]] bool Chosen() const { return chosen_; }
  void Choose();
  /// Unsets it, leaving the group without a choice. Raises nothing.
  void Clear();

  void UserClick() override;
  bool UserKey(int key) override;
  [[nodiscard]] const std::string& Group() const { return group_; }
  [[nodiscard]] std::optional<std::string> Attribute(std::string_view name) const override;

 private:
  std::string group_;
  bool chosen_ = false;
};

}  // namespace lorvane
