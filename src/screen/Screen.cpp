#include "screen/Screen.h"

#include <algorithm>

#include "basic/Text.h"
#include "screen/Buttons.h"
#include "screen/TabStrip.h"

namespace lorvane {

Screen::Screen(ScreenContext context, std::string name, std::string caption)
    : context_(context), name_(std::move(name)), caption_(std::move(caption)) {}

void Screen::SetCaption(std::string caption) {
  caption_ = std::move(caption);
  if (OnPropertyChanged) {
    OnPropertyChanged();
  }
}

Control* Screen::Find(std::string_view name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const Control* control) {
    return EqualsNoCase(control->Name(), name);
  });
  return found == controls_.end() ? nullptr : *found;
}

bool Screen::Close() {
  if (closed_) {
    return true;
  }
  if (!QueryUnload()) {
    return false;
  }
  // A handler of the question may have closed the screen already.
  if (!closed_) {
    closed_ = true;
    Unload();
    if (OnClosed) {
      OnClosed();
    }
  }
  return true;
}

bool Screen::MoveFocus(Control& control) {
  if (focus_ == &control || !control.TakesFocus()) {
    return true;
  }
  if (focus_ != nullptr) {
    Control& left = *focus_;
    if (left.Usable() && left.OnValidate && !left.OnValidate()) {
      return false;
    }
    if (left.OnLostFocus) {
      left.OnLostFocus();
    }
  }
  SetFocus(control);
  return true;
}

void Screen::SetFocus(Control& control) {
  focus_ = &control;
  if (OnPropertyChanged) {
    OnPropertyChanged();
  }
  if (control.OnGotFocus) {
    control.OnGotFocus();
  }
}

// The focus is never where it can't be seen.
void Screen::TurnToPageOf(const Control& control) {
  for (Control* candidate : controls_) {
    auto* tabs = dynamic_cast<TabStrip*>(candidate);
    if (tabs != nullptr && control.TabPage != 0 && tabs->Tab() != control.TabPage - 1) {
      tabs->SetTab(control.TabPage - 1);
    }
  }
}

template <typename Iterator>
void Screen::FocusAfter(Iterator begin, Iterator end) {
  const auto stops = [](const Control* control) {
    return control->TakesFocus() && control->TabStop() && control->Usable();
  };
  const Iterator from = std::find(begin, end, focus_);
  Iterator next = from == end ? from : std::find_if(from + 1, end, stops);
  if (next == end) {
    next = std::find_if(begin, from, stops);
    if (next == from) {
      return;
    }
  }
  Control& control = **next;
  if (MoveFocus(control)) {
    TurnToPageOf(control);
  }
}

void Screen::FocusNext() { FocusAfter(controls_.begin(), controls_.end()); }

void Screen::FocusPrevious() { FocusAfter(controls_.rbegin(), controls_.rend()); }

bool Screen::PressButtonFor(int key) const {
  if (key != key_code::kEnter && key != key_code::kEscape) {
    return false;
  }
  const Command::Role wanted =
      key == key_code::kEnter ? Command::Role::kDefault : Command::Role::kCancel;
  for (Control* control : controls_) {
    auto* button = dynamic_cast<Command*>(control);
    if (button != nullptr && button->ButtonRole() == wanted && button->Usable()) {
      button->UserClick();
      return true;
    }
  }
  return false;
}

bool Screen::UserKey(Control& control, int key) {
  if (Minimised) {
    return true;
  }
  KeyPreview(key);
  if (key == key_code::kNone || closed_) {
    return true;
  }
  if (key == key_code::kTab) {
    FocusNext();
    return true;
  }
  if (control.UserKey(key)) {
    return true;
  }
  return !closed_ && PressButtonFor(key);
}

std::optional<std::string> Screen::Property(std::string_view /*name*/) const {
  return std::nullopt;
}

bool Screen::SetProperty(std::string_view /*name*/, std::string_view /*value*/) { return false; }

bool Screen::Call(std::string_view /*operation*/) { return false; }

void Screen::KeyPreview(int& /*key*/) {}

void Screen::PopUp(Control& menu) const {
  if (OnPopUp) {
    OnPopUp(menu);
  }
}

void Screen::Register(Control& control) { controls_.push_back(&control); }

void Screen::Forget(const Control& control) {
  std::erase(controls_, &control);
  if (focus_ == &control) {
    focus_ = nullptr;
  }
}

}  // namespace lorvane
