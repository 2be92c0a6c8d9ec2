#pragma once

#include <QObject>
#include <QWidget>
#include <functional>

#include "screen/Control.h"

class QKeyEvent;

namespace lorvane {

class WindowBinder;

/// Ties one control to its widget, both ways: what a user does on the widget goes to the control,
/// and when the control has changed, the widget follows at the next Flush.
///
/// The binding belongs to its widget.
class Binding : public QObject {
 public:
  Binding(WindowBinder& window, Control& control, QWidget& widget);
  ~Binding() override;

  [[nodiscard]] Control& Model() const { return control_; }
  [[nodiscard]] QWidget& Widget() const { return widget_; }

  /// Brings the widget up to date when its control has changed.
  void Flush();
  /// The window's binder goes before its widgets do.
  void Detach();
  /// From now on whoever can't see the widget is told its caption, or its tip where it shows no
  /// words, behind the prefix that PrefixName gave.
  void NameByCaption();
  /// The widget differs from its control, or may do so.
  void MarkChanged() { changed_ = true; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

  /// Shows the control's value, beyond what all kinds have. Signals of the widget are held back.
  virtual void ShowValue() = 0;
  /// A key that means something to screens; true when nothing more is to happen with it.
  virtual bool PressKey(int key);
  /// Watches a part of the widget that gets events of its own.
  void Watch(QWidget& part);
  /// Runs a user's action; the widget is brought up to date with what came of it.
  void Act(const std::function<void()>& action);
  /// The focus goes to the control; false when the one that had it keeps it.
  bool TakeFocus();
  [[nodiscard]] bool Showing() const { return showing_; }

 private:
  void TellName();
  bool OnPress();
  bool OnContextMenu();
  bool OnDoubleClicked();

  WindowBinder* window_;
  Control& control_;
  QWidget& widget_;
  bool changed_ = true;
  bool namedByCaption_ = false;
  bool showing_ = false;
};

/// Tells widgets of one caption apart: "Industry A: " say.
void PrefixName(QWidget& widget, const QString& prefix);

/// Whether a key event of a list in which nothing is selected selects its first row.
[[nodiscard]] bool SelectsFirstRow(const QEvent& event);

/// The key of an event as screens know it; key_code::kNone when it means nothing to them.
[[nodiscard]] int ScreenKey(const QKeyEvent& event);

}  // namespace lorvane
