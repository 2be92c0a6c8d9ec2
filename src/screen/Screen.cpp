#include "screen/Screen.h"

#include <algorithm>

#include "basic/Text.h"

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

void Screen::FocusNext() {
  const auto stops = [](const Control* control) {
    return control->TakesFocus() && control->TabStop() && control->Usable();
  };
  const auto from = std::find(controls_.begin(), controls_.end(), focus_);
  auto next = from == controls_.end() ? from : std::find_if(from + 1, controls_.end(), stops);
  if (next == controls_.end()) {
    next = std::find_if(controls_.begin(), from, stops);
    if (next == from) {
      return;
    }
  }
  MoveFocus(**next);
}

void Screen::UserKey(Control& control, int key) {
  if (Minimised) {
    return;
  }
  KeyPreview(key);
  if (key != key_code::kNone && !closed_ && !control.UserKey(key) && key == key_code::kTab) {
    FocusNext();
  }
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
