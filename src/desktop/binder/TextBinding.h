#pragma once

#include <QLineEdit>

#include "desktop/binder/Binding.h"
#include "screen/TextBox.h"

namespace lorvane {

/// A field for a line of text. Every key goes through the screen's filters and is entered by the
/// control; what the toolkit enters by itself (pasting, cutting, composed letters) is taken back
/// and goes the same way, key by key.
class TextBinding : public Binding {
 public:
  TextBinding(WindowBinder& window, TextBox& control, QLineEdit& edit);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void ShowValue() override;
  bool PressKey(int key) override;

 private:
  void TellSelection();
  void Replay(const QString& typed);

  TextBox& control_;
  QLineEdit& edit_;
};

}  // namespace lorvane
