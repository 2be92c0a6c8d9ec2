#pragma once

#include <QDateEdit>
#include <QKeyEvent>

namespace lorvane {

/// A date that is typed as it is written, zeros and slashes included. The toolkit goes on to the
/// day by itself behind a month of two digits, and would take the slash that follows for one more
/// step.
class TypedDateEdit : public QDateEdit {
 public:
  using QDateEdit::QDateEdit;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const QString typed = event->text();
    if (wentOn_ && typed == QLatin1String("/")) {
      wentOn_ = false;
      return;
    }
    const Section before = currentSection();
    QDateEdit::keyPressEvent(event);
    wentOn_ = typed.size() == 1 && typed.front().isDigit() && currentSection() != before;
  }

 private:
  bool wentOn_ = false;
};

}  // namespace lorvane
