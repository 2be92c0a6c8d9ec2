#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

class QAction;
class QCalendarWidget;
class QCheckBox;
class QComboBox;
class QDateEdit;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QMenu;
class QMenuBar;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QToolButton;
class QTreeView;

namespace lorvane {

class Binding;
class Calendar;
class CheckBox;
class ComboBox;
class Command;
class Control;
class DatePicker;
class Frame;
class Label;
class ListBox;
class ListView;
class MenuBinding;
class MenuEntry;
class OptionButton;
class ProgressBar;
class Screen;
class ScreenGate;
class TabStrip;
class TextBox;

/// Ties a screen to its window: makes the widget of each control, follows caption and focus, and
/// closes the window with its screen. A window's own code is its layout and nothing else.
class WindowBinder : public QObject {
 public:
  /// `window` is the top-level widget and owns the binder.
  WindowBinder(Screen& screen, ScreenGate& gate, QWidget& window);
  ~WindowBinder() override;

  [[nodiscard]] Screen& Model() const { return screen_; }
  [[nodiscard]] ScreenGate& Gate() const { return gate_; }
  [[nodiscard]] QWidget& Window() const { return window_; }

  // The widget of a control. It is named as the control is, and belongs to the layout that it is
  // put into.
  QLineEdit* Make(TextBox& control);
  QPlainTextEdit* MakeLines(TextBox& control);
  QLabel* Make(Label& control);
  QPushButton* Make(Command& control);
  QCheckBox* Make(CheckBox& control);
  QRadioButton* Make(OptionButton& control);
  QGroupBox* Make(Frame& control);
  QListWidget* Make(ListBox& control);
  QComboBox* Make(ComboBox& control);
  QTreeView* Make(ListView& control);
  QDateEdit* Make(DatePicker& control);
  QCalendarWidget* Make(Calendar& control);
  QProgressBar* Make(ProgressBar& control);
  QTabWidget* Make(TabStrip& control);
  /// The widget of a control of a form, whichever kind it is. Raises 51 for a kind that stands in
  /// no form.
  QWidget* MakeField(Control& control);
  /// A button of a tool bar, with its picture from the icon set.
  QToolButton* MakeTool(Command& control, const char* icon);
  /// A label that names a field: the field's accessible name, and its mnemonic leads there.
  QLabel* MakeNaming(Label& control, QWidget& field);

  /// Fills a menu bar with the menus that stand on the screen's bar, and makes the pop-up menus.
  void MakeMenus(QMenuBar& bar);
  /// Makes the pop-up menus of a screen that has no menu bar.
  void MakePopUps();
  /// The action of a menu entry; null when it has none.
  [[nodiscard]] QAction* ActionOf(const MenuEntry& entry) const;

  /// To be called when the layout is complete: gives mnemonics to what has none, and shows the
  /// screen's state.
  void Finish();
  /// The first control that can have it gets the focus, unless the screen gave it already.
  void FocusFirst();
  /// Brings the window up to date with the screen.
  void Flush();
  /// A widget that no control stands behind, on the Tab key's way before one.
  void AddStop(QWidget& stop, Control& behind);
  /// Ctrl with Tab, or with the other keys that turn the pages of a tab strip; false when nothing
  /// turned.
  bool TurnPage(int key);
  /// The Tab key on a control, or Shift with it.
  void MoveByTab(Control& from, bool forward);
  /// Whether the window is being brought up to date.
  [[nodiscard]] bool IsFollowing() const { return following_; }
  /// Asks the screen to close.
  void CloseScreen();

  /// Called when caption or another property of the screen itself may have changed.
  std::function<void()> OnRefresh;
  /// Called once when the screen has been closed.
  std::function<void()> OnClosed;

  void Add(Binding& binding) { bindings_.push_back(&binding); }
  void Remove(Binding& binding) { std::erase(bindings_, &binding); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] Binding* BindingOf(const Control* control) const;
  [[nodiscard]] QWidget* StopBefore(const Control* control) const;
  bool MoveFromStop(const QObject& stop, int key);
  void MoveFrom(Control& from, bool forward);
  void FollowFocus();
  void ShowPopUp(Control& menu);
  [[nodiscard]] std::vector<MenuEntry*> Menus(bool popUps) const;
  QMenu* MakeMenu(const MenuEntry& menu);
  void FillMenu(QMenu& menu, const MenuEntry& parent);

  Screen& screen_;
  ScreenGate& gate_;
  QWidget& window_;
  std::vector<Binding*> bindings_;
  std::vector<MenuBinding*> menus_;
  std::vector<QMenu*> popUps_;
  struct Stop {
    QWidget* widget;
    Control* behind;
  };
  std::vector<Stop> stops_;
  bool following_ = false;
  bool closedTold_ = false;
};

}  // namespace lorvane
