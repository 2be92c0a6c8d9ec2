#include "screen/Buttons.h"

#include <utility>

#include "screen/Screen.h"

namespace lorvane {

Command::Command(Screen& screen, std::string name, std::string caption, std::string tip)
    : Control(screen, std::move(name)) {
  SetCaption(std::move(caption));
  SetTip(std::move(tip));
}

bool Command::UserKey(int key) {
  if (Control::UserKey(key)) {
    return true;
  }
  const bool presses = key == key_code::kEnter || key == ' ';
  if (presses) {
    UserClick();
  }
  return presses;
}

Label::Label(Screen& screen, std::string name, std::string caption)
    : Control(screen, std::move(name)) {
  SetCaption(std::move(caption));
}

void Label::SetStrikeThrough(bool strikeThrough) {
  strikeThrough_ = strikeThrough;
  Changed();
}

std::optional<std::string> Label::Attribute(std::string_view name) const {
  return name == "strikethrough" ? FlagText(strikeThrough_) : Control::Attribute(name);
}

Frame::Frame(Screen& screen, std::string name, std::string caption, std::string tip)
    : Control(screen, std::move(name)) {
  SetCaption(std::move(caption));
  SetTip(std::move(tip));
}

CheckBox::CheckBox(Screen& screen, std::string name, std::string caption, std::string tip)
    : Control(screen, std::move(name)) {
  SetCaption(std::move(caption));
  SetTip(std::move(tip));
}

void CheckBox::SetChecked(bool checked) {
  if (checked != checked_) {
    checked_ = checked;
    Changed();
    RaiseClick();
  }
}

void CheckBox::UserClick() {
  if (Usable() && Owner().MoveFocus(*this)) {
    SetChecked(!checked_);
    RaiseMouseUp(MouseButton::kLeft);
  }
}

bool CheckBox::UserKey(int key) {
  if (Control::UserKey(key)) {
    return true;
  }
  if (Usable() && key == ' ') {
    SetChecked(!checked_);
    return true;
  }
  return false;
}

std::optional<std::string> CheckBox::Attribute(std::string_view name) const {
  return name == "checked" ? FlagText(checked_) : Control::Attribute(name);
}

OptionButton::OptionButton(Screen& screen, std::string name, std::string group, std::string caption)
    : Control(screen, std::move(name)), group_(std::move(group)) {
  SetCaption(std::move(caption));
}

void OptionButton::Choose() {
  if (chosen_) {
    return;
  }
  for (Control* control : Owner().Controls()) {
    auto* other = dynamic_cast<OptionButton*>(control);
    if (other != nullptr && other->group_ == group_) {
      other->Clear();
    }
  }
  chosen_ = true;
  Changed();
  RaiseClick();
}

void OptionButton::Clear() {
  if (std::exchange(chosen_, false)) {
    Changed();
  }
}

void OptionButton::UserClick() {
  if (Usable() && Owner().MoveFocus(*this)) {
    Choose();
    RaiseMouseUp(MouseButton::kLeft);
  }
}

bool OptionButton::UserKey(int key) {
  if (Control::UserKey(key)) {
    return true;
  }
  if (Usable() && key == ' ') {
    Choose();
    return true;
  }
  return false;
}

std::optional<std::string> OptionButton::Attribute(std::string_view name) const {
  return name == "checked" ? FlagText(chosen_) : Control::Attribute(name);
}

}  // namespace lorvane
