#include "screen/Control.h"

#include <utility>

#include "screen/Screen.h"

namespace lorvane {

Control::Control(Screen& screen, std::string name) : screen_(&screen), name_(std::move(name)) {
  screen.Register(*this);
}

Control::~Control() { screen_->Forget(*this); }

void Control::SetEnabled(bool enabled) {
  enabled_ = enabled;
  Changed();
}

void Control::SetVisible(bool visible) {
  visible_ = visible;
  Changed();
}

void Control::SetCaption(std::string caption) {
  caption_ = std::move(caption);
  Changed();
}

void Control::SetTip(std::string tip) {
  tip_ = std::move(tip);
  Changed();
}

void Control::SetTabStop(bool tabStop) {
  tabStop_ = tabStop;
  Changed();
}

void Control::UserClick() {
  if (Usable() && screen_->MoveFocus(*this)) {
    RaiseMouseUp(MouseButton::kLeft);
    RaiseClick();
  }
}

bool Control::UserKey(int key) {
  if (!Usable()) {
    return false;
  }
  if (OnKeyPress) {
    OnKeyPress(key);
  }
  return key == key_code::kNone;
}

void Control::UserRightClick() {
  if (Usable()) {
    RaiseMouseUp(MouseButton::kRight);
  }
}

std::optional<std::string> Control::Attribute(std::string_view name) const {
  if (name == "enabled") {
    return FlagText(enabled_);
  }
  if (name == "visible") {
    return FlagText(visible_);
  }
  if (name == "tip") {
    return tip_;
  }
  return std::nullopt;
}

void Control::Changed() const {
  if (OnPropertyChanged) {
    OnPropertyChanged();
  }
}

void Control::RaiseClick() const {
  if (OnClick) {
    OnClick();
  }
}

void Control::RaiseMouseUp(MouseButton button) const {
  if (OnMouseUp) {
    OnMouseUp(button);
  }
}

std::string FlagText(bool flag) { return flag ? "true" : "false"; }

}  // namespace lorvane
