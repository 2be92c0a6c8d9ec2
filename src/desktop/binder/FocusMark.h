#pragma once

#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QTreeView>

namespace lorvane {

// Widgets whose focus would not be seen: the toolkit draws a button that has it like the default
// button, and nothing on a list without rows.

/// An edge in the colour of selections, inside the widget.
inline void PaintFocusMark(QWidget& widget) {
  constexpr int kInside = 3;
  QPainter painter(&widget);
  painter.setPen(widget.palette().color(QPalette::Highlight));
  painter.drawRect(widget.rect().adjusted(kInside, kInside, -kInside - 1, -kInside - 1));
}

class MarkedButton : public QPushButton {
 public:
  using QPushButton::QPushButton;

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPushButton::paintEvent(event);
    if (isDefault() && hasFocus()) {
      PaintFocusMark(*this);
    }
  }
};

/// A list or table.
template <typename View>
class MarkedView : public View {
 public:
  using View::View;

 protected:
  void paintEvent(QPaintEvent* event) override {
    View::paintEvent(event);
    if (this->hasFocus() && !this->currentIndex().isValid()) {
      PaintFocusMark(*this->viewport());
    }
  }
};

}  // namespace lorvane
