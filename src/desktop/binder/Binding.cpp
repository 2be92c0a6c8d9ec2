#include "desktop/binder/Binding.h"

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <utility>

#include "desktop/binder/Mnemonics.h"
#include "desktop/binder/QtText.h"
#include "desktop/binder/ScreenGate.h"
#include "desktop/binder/WindowBinder.h"
#include "screen/Screen.h"

namespace lorvane {
namespace {

constexpr const char* kNamePrefix = "namePrefix";

}  // namespace

Binding::Binding(WindowBinder& window, Control& control, QWidget& widget)
    : QObject(&widget), window_(&window), control_(control), widget_(widget) {
  widget.setObjectName(ToQt(control.Name()));
  // A click moves the focus only where the screen lets it go: see OnPress.
  widget.setFocusPolicy(control.TakesFocus() ? Qt::TabFocus : Qt::NoFocus);
  Watch(widget);
  control.OnPropertyChanged = [this] { MarkChanged(); };
  window.Add(*this);
}

Binding::~Binding() {
  if (window_ != nullptr) {
    window_->Remove(*this);
    Detach();
  }
}

void Binding::Detach() {
  control_.OnPropertyChanged = nullptr;
  window_ = nullptr;
}

void Binding::Watch(QWidget& part) { part.installEventFilter(this); }

void Binding::Flush() {
  if (!std::exchange(changed_, false)) {
    return;
  }
  showing_ = true;
  widget_.setEnabled(control_.Enabled());
  widget_.setVisible(control_.Visible());
  widget_.setToolTip(ToQt(control_.Tip()));
  ShowValue();
  if (namedByCaption_) {
    TellName();
  }
  showing_ = false;
}

void Binding::NameByCaption() {
  namedByCaption_ = true;
  TellName();
}

void Binding::TellName() {
  const auto hasWords = [](const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetterOrNumber(); });
  };
  const QString caption = WithoutMnemonic(ToQt(control_.Caption()));
  const QString tip = ToQt(control_.Tip());
  const QString name = hasWords(caption) || tip.isEmpty() ? caption : tip;
  widget_.setAccessibleName(widget_.property(kNamePrefix).toString() +
                            (hasWords(name) ? name : ToQt(control_.Name())));
}

void Binding::Act(const std::function<void()>& action) {
  if (showing_ || window_ == nullptr) {
    return;
  }
  MarkChanged();
  window_->Gate().Run(action);
}

bool Binding::TakeFocus() {
  if (!control_.TakesFocus() || control_.Owner().Focus() == &control_) {
    return true;
  }
  bool taken = false;
  Act([&] { taken = control_.Owner().MoveFocus(control_); });
  return taken;
}

bool Binding::PressKey(int key) {
  bool taken = false;
  Act([&] { taken = control_.Owner().UserKey(control_, key); });
  return taken;
}

bool Binding::OnPress() { return window_ != nullptr && control_.Usable() && !TakeFocus(); }

bool Binding::OnContextMenu() {
  if (window_ == nullptr || !control_.OnMouseUp || !TakeFocus()) {
    return false;
  }
  Act([this] { control_.UserRightClick(); });
  return true;
}

bool Binding::OnDoubleClicked() {
  if (window_ == nullptr || !control_.OnDoubleClick || !control_.Usable()) {
    return false;
  }
  Act([this] { control_.OnDoubleClick(); });
  return true;
}

bool Binding::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::FocusIn: {
      if (window_ == nullptr || window_->IsFollowing()) {
        return false;
      }
      // Coming back to the window, the focus stands where it was.
      const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
      if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
          reason == Qt::ShortcutFocusReason) {
        TakeFocus();
      }
      return false;
    }
    case QEvent::MouseButtonPress:
      return OnPress();
    case QEvent::MouseButtonDblClick:
      return OnPress() || OnDoubleClicked();
    case QEvent::ContextMenu:
      return OnContextMenu();
    case QEvent::Wheel:
      // Scrolling a form never changes the values on it.
      if (!control_.TakesFocus() || watched != &widget_ || widget_.hasFocus()) {
        return false;
      }
      event->ignore();
      return true;
    case QEvent::KeyPress: {
      const auto& pressed = *static_cast<QKeyEvent*>(event);
      const bool forward = pressed.key() == Qt::Key_Tab;
      if (window_ != nullptr && (forward || pressed.key() == Qt::Key_Backtab)) {
        if (pressed.modifiers().testFlag(Qt::ControlModifier)) {
          return window_->TurnPage(pressed.key());
        }
        window_->MoveByTab(control_, forward);
        return true;
      }
      const int key = ScreenKey(pressed);
      return window_ != nullptr && key != key_code::kNone && control_.Usable() &&
             (!TakeFocus() || PressKey(key));
    }
    default:
      return QObject::eventFilter(watched, event);
  }
}

void PrefixName(QWidget& widget, const QString& prefix) { widget.setProperty(kNamePrefix, prefix); }

bool SelectsFirstRow(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) {
    return false;
  }
  const auto& pressed = static_cast<const QKeyEvent&>(event);
  return pressed.modifiers() == Qt::NoModifier &&
         (pressed.key() == Qt::Key_Down || pressed.key() == Qt::Key_Space);
}

int ScreenKey(const QKeyEvent& event) {
  const Qt::KeyboardModifiers commands =
      event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  if (commands != Qt::NoModifier) {
    return key_code::kNone;
  }
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return key_code::kEnter;
    case Qt::Key_Escape:
      return key_code::kEscape;
    case Qt::Key_Backspace:
      return key_code::kBackspace;
    default:
      break;
  }
  const QList<uint> characters = event.text().toUcs4();
  constexpr uint kDelete = 0x7F;
  if (characters.size() != 1 || characters.front() < ' ' || characters.front() == kDelete) {
    return key_code::kNone;
  }
  return static_cast<int>(characters.front());
}

}  // namespace lorvane
