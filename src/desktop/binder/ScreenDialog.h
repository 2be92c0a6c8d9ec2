#pragma once

#include <QDialog>

#include "desktop/binder/WindowBinder.h"

class QBoxLayout;
class QHBoxLayout;

namespace lorvane {

/// The window of a screen. Its subclasses lay the screen's controls out and do nothing else.
class ScreenDialog : public QDialog {
 public:
  ScreenDialog(Screen& screen, ScreenGate& gate, QWidget* parent);

  [[nodiscard]] WindowBinder& Binder() { return binder_; }
  /// To be called when the subclass has laid everything out.
  void Complete();
  /// Shows the window, in the middle of its parent or where the screen put it.
  void Present();

 protected:
  /// A row of buttons at the right edge, the same width all.
  [[nodiscard]] QHBoxLayout* ButtonRow(std::initializer_list<Command*> buttons);
  /// So many characters of the window's font, in pixels.
  [[nodiscard]] int Characters(int count) const;
  /// So many lines of the window's font, in pixels.
  [[nodiscard]] int Lines(int count) const;

  WindowBinder binder_;

 private:
  void TakeSize();
};

}  // namespace lorvane
