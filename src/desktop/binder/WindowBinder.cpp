#include "desktop/binder/WindowBinder.h"

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>
#include <algorithm>

#include "desktop/binder/Binding.h"
#include "desktop/binder/Icons.h"
#include "desktop/binder/MenuBinding.h"
#include "desktop/binder/Mnemonics.h"
#include "desktop/binder/QtText.h"
#include "desktop/binder/ScreenGate.h"
#include "screen/Menu.h"
#include "screen/Screen.h"

namespace lorvane {

WindowBinder::WindowBinder(Screen& screen, ScreenGate& gate, QWidget& window)
    : screen_(screen), gate_(gate), window_(window) {
  window.setObjectName(ToQt(screen.Name()));
  window.installEventFilter(this);
  screen.OnPopUp = [this](Control& menu) { ShowPopUp(menu); };
  gate.Add(*this);
}

WindowBinder::~WindowBinder() {
  gate_.Remove(*this);
  screen_.OnPopUp = nullptr;
  for (Binding* binding : bindings_) {
    binding->Detach();
  }
  for (MenuBinding* menu : menus_) {
    menu->Detach();
  }
}

std::vector<MenuEntry*> WindowBinder::Menus(bool popUps) const {
  std::vector<MenuEntry*> menus;
  for (Control* control : screen_.Controls()) {
    auto* menu = dynamic_cast<MenuEntry*>(control);
    if (menu != nullptr && menu->Parent() == nullptr && menu->IsPopUp() == popUps) {
      menus.push_back(menu);
    }
  }
  return menus;
}

QMenu* WindowBinder::MakeMenu(const MenuEntry& menu) {
  auto* made = new QMenu(&window_);
  made->setObjectName(ToQt(menu.Name()));
  FillMenu(*made, menu);
  return made;
}

void WindowBinder::MakeMenus(QMenuBar& bar) {
  for (MenuEntry* menu : Menus(false)) {
    QMenu* made = MakeMenu(*menu);
    bar.addMenu(made);
    menus_.push_back(new MenuBinding(*this, *menu, *made->menuAction()));
  }
  MakePopUps();
}

void WindowBinder::MakePopUps() {
  for (const MenuEntry* menu : Menus(true)) {
    popUps_.push_back(MakeMenu(*menu));
  }
}

void WindowBinder::FillMenu(QMenu& menu, const MenuEntry& parent) {
  for (MenuEntry* entry : parent.Children()) {
    QAction* action = nullptr;
    if (entry->IsSeparator()) {
      action = menu.addSeparator();
    } else if (!entry->Children().empty()) {
      QMenu* inner = menu.addMenu(QString());
      FillMenu(*inner, *entry);
      action = inner->menuAction();
    } else {
      action = menu.addAction(QString());
    }
    menus_.push_back(new MenuBinding(*this, *entry, *action));
  }
}

QAction* WindowBinder::ActionOf(const MenuEntry& entry) const {
  const auto found = std::find_if(menus_.begin(), menus_.end(), [&](const MenuBinding* menu) {
    return &menu->Model() == &entry;
  });
  return found == menus_.end() ? nullptr : &(*found)->Action();
}

void WindowBinder::ShowPopUp(Control& menu) {
  const QString name = ToQt(menu.Name());
  const auto found = std::find_if(popUps_.begin(), popUps_.end(),
                                  [&](const QMenu* popUp) { return popUp->objectName() == name; });
  if (found == popUps_.end()) {
    return;
  }
  // Opened by the keyboard, the menu stands at the control that has the focus.
  const Binding* at = BindingOf(screen_.Focus());
  const QPoint pointer = QCursor::pos();
  const bool byMouse =
      at == nullptr || at->Widget().rect().contains(at->Widget().mapFromGlobal(pointer));
  (*found)->popup(byMouse ? pointer : at->Widget().mapToGlobal(at->Widget().rect().center()));
}

void WindowBinder::Finish() {
  Flush();
  AssignMnemonics(window_);
  for (Binding* binding : bindings_) {
    if (binding->Widget().accessibleName().isEmpty()) {
      binding->NameByCaption();
    }
  }
}

void WindowBinder::FocusFirst() {
  if (screen_.Focus() != nullptr && screen_.Focus()->Usable()) {
    FollowFocus();
    return;
  }
  for (Control* control : screen_.Controls()) {
    const Binding* binding = BindingOf(control);
    if (binding != nullptr && control->TakesFocus() && control->TabStop() && control->Usable() &&
        binding->Widget().isVisibleTo(&window_)) {
      gate_.Run([&] { screen_.MoveFocus(*control); });
      return;
    }
  }
}

void WindowBinder::Flush() {
  for (MenuBinding* menu : menus_) {
    menu->Flush();
  }
  // A widget that is disabled hands the focus on by itself: that is none of the user's doing.
  following_ = true;
  for (std::size_t i = 0; i < bindings_.size(); ++i) {
    bindings_[i]->Flush();
  }
  if (OnRefresh) {
    OnRefresh();
  }
  FollowFocus();
  following_ = false;
  if (screen_.IsClosed() && !std::exchange(closedTold_, true) && OnClosed) {
    OnClosed();
  }
}

void WindowBinder::CloseScreen() {
  gate_.Run([this] { screen_.Close(); });
}

void WindowBinder::FollowFocus() {
  const Binding* binding = BindingOf(screen_.Focus());
  if (binding == nullptr || !window_.isVisible()) {
    return;
  }
  QWidget& widget = binding->Widget();
  const QWidget* focus = window_.focusWidget();
  const bool there = focus != nullptr && (focus == &widget || widget.isAncestorOf(focus));
  if (!there && widget.isEnabled() && widget.isVisible()) {
    widget.setFocus(Qt::OtherFocusReason);
  }
}

Binding* WindowBinder::BindingOf(const Control* control) const {
  const auto found = std::find_if(bindings_.begin(), bindings_.end(), [&](const Binding* binding) {
    return &binding->Model() == control;
  });
  return found == bindings_.end() ? nullptr : *found;
}

void WindowBinder::AddStop(QWidget& stop, Control& behind) {
  stops_.push_back({&stop, &behind});
  stop.installEventFilter(this);
}

QWidget* WindowBinder::StopBefore(const Control* control) const {
  const auto found = std::find_if(stops_.begin(), stops_.end(),
                                  [&](const Stop& stop) { return stop.behind == control; });
  return found != stops_.end() && found->widget->isVisible() ? found->widget : nullptr;
}

// The screen decides where the Tab key leads, as it does for its scripts; what the window alone has
// stands on the way.
void WindowBinder::MoveByTab(Control& from, bool forward) {
  window_.window()->setAttribute(Qt::WA_KeyboardFocusChange);
  QWidget* before = StopBefore(&from);
  if (!forward && before != nullptr) {
    before->setFocus(Qt::BacktabFocusReason);
    return;
  }
  MoveFrom(from, forward);
  QWidget* passed = StopBefore(screen_.Focus());
  if (forward && passed != nullptr && screen_.Focus() != &from) {
    passed->setFocus(Qt::TabFocusReason);
  }
}

// Tab on something that the window alone has; true when it led on.
bool WindowBinder::MoveFromStop(const QObject& stop, int key) {
  const auto found = std::find_if(stops_.begin(), stops_.end(),
                                  [&](const Stop& known) { return known.widget == &stop; });
  if (found == stops_.end() || (key != Qt::Key_Tab && key != Qt::Key_Backtab)) {
    return false;
  }
  if (key == Qt::Key_Backtab) {
    MoveFrom(*found->behind, false);
  } else if (const Binding* behind = BindingOf(found->behind)) {
    behind->Widget().setFocus(Qt::TabFocusReason);
  }
  return true;
}

void WindowBinder::MoveFrom(Control& from, bool forward) {
  gate_.Run([&] {
    if (screen_.Focus() != &from && !screen_.MoveFocus(from)) {
      return;
    }
    if (forward) {
      screen_.UserKey(from, key_code::kTab);
    } else {
      screen_.FocusPrevious();
    }
  });
}

// Ctrl+Tab and Ctrl+Page Down turn to the next page, wherever the focus is.
bool WindowBinder::TurnPage(int key) {
  auto* tabs = window_.findChild<QTabWidget*>();
  const bool forward = key == Qt::Key_Tab || key == Qt::Key_PageDown;
  if (tabs == nullptr || (!forward && key != Qt::Key_Backtab && key != Qt::Key_PageUp)) {
    return false;
  }
  tabs->setCurrentIndex((tabs->currentIndex() + (forward ? 1 : tabs->count() - 1)) % tabs->count());
  return true;
}

bool WindowBinder::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress: {
      const auto& pressed = *static_cast<QKeyEvent*>(event);
      if (watched != &window_) {
        return MoveFromStop(*watched, pressed.key());
      }
      if (pressed.modifiers().testFlag(Qt::ControlModifier) && TurnPage(pressed.key())) {
        return true;
      }
      if (pressed.key() == Qt::Key_Tab && window_.focusWidget() == nullptr) {
        FocusFirst();
        return true;
      }
      // Nothing of the window took the key. The toolkit's own Enter and Escape are no part of it.
      const int key = ScreenKey(pressed);
      return key == key_code::kEnter || key == key_code::kEscape;
    }
    case QEvent::WindowActivate:
      // The keyboard leads through every window: where it is has to be seen from the beginning.
      window_.window()->setAttribute(Qt::WA_KeyboardFocusChange);
      return false;
    case QEvent::Close:
      if (watched != &window_) {
        return false;
      }
      event->ignore();
      CloseScreen();
      return true;
    case QEvent::WindowStateChange:
      screen_.Minimised = window_.isMinimized();
      return false;
    default:
      return QObject::eventFilter(watched, event);
  }
}

}  // namespace lorvane
