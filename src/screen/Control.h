#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace lorvane {

class Screen;

/// Keys that are no characters of their own, by their code. A character's key is its code point.
namespace key_code {

inline constexpr int kNone = 0;
inline constexpr int kBackspace = 8;
inline constexpr int kTab = 9;
inline constexpr int kEnter = 13;
inline constexpr int kEscape = 27;

}  // namespace key_code

enum class MouseButton { kLeft = 1, kRight = 2 };

/// A control of a screen, with no display behind it: properties that the screen sets and reads,
/// events that the screen reacts to, and user actions that a front or a script performs on it.
///
/// A control belongs to one screen and is known there by its name. A screen's controls stand in the
/// order in which they are made, which is their tab order too.
class Control {
 public:
  Control(Screen& screen, std::string name);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control();

  [[nodiscard]] const std::string& Name() const { return name_; }
  [[nodiscard]] Screen& Owner() const { return *screen_; }

  [[nodiscard]] bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  [[nodiscard]] bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);
  [[nodiscard]] const std::string& Tip() const { return tip_; }
  void SetTip(std::string tip);
  /// Whether the Tab key stops here.
  [[nodiscard]] bool TabStop() const { return tabStop_; }
  void SetTabStop(bool tabStop);
  /// Whether the control can have the focus while it is enabled and visible.
  [[nodiscard]] virtual bool TakesFocus() const { return true; }
  /// Enabled and visible: a user can act on it.
  [[nodiscard]] virtual bool Usable() const { return enabled_ && visible_; }

  /// The column that the control shows; empty for none.
  std::string DataField;
  /// The one-based tab page on which the control lies; 0 for none.
  int TabPage = 0;

  // Events.
  std::function<void()> OnGotFocus;
  std::function<void()> OnLostFocus;
  /// Asked before the focus leaves; false keeps it here.
  std::function<bool()> OnValidate;
  /// A key before it takes effect; setting it to key_code::kNone swallows it.
  std::function<void(int& key)> OnKeyPress;
  std::function<void(MouseButton)> OnMouseUp;
  std::function<void()> OnClick;
  std::function<void()> OnDoubleClick;

  // What a user does. Nothing happens on a control that isn't usable.
  virtual void UserClick();
  /// True when the key was taken by the control or swallowed by its handler.
  virtual bool UserKey(int key);
  void UserRightClick();

  /// What stands on the screen for the control: its text, or else its caption.
  [[nodiscard]] virtual std::string ShownText() const { return caption_; }
  /// A further property as text (checked, count, index, ...); nothing when the kind doesn't have
  /// it.
  [[nodiscard]] virtual std::optional<std::string> Attribute(std::string_view name) const;

  /// Called after any property has changed: a front redraws the control then.
  std::function<void()> OnPropertyChanged;

 protected:
  void Changed() const;
  void RaiseClick() const;
  void RaiseMouseUp(MouseButton button) const;

 private:
  Screen* screen_;
  std::string name_;
  std::string caption_;
  std::string tip_;
  bool enabled_ = true;
  bool visible_ = true;
  bool tabStop_ = true;
};

/// "true" or "false", as attributes tell flags.
[[nodiscard]] std::string FlagText(bool flag);

}  // namespace lorvane
