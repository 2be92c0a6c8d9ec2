#include "desktop/binder/ScreenDialog.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <algorithm>

#include "desktop/binder/QtText.h"
#include "screen/Buttons.h"
#include "screen/Screen.h"
#include "screen/ScreenServices.h"

namespace lorvane {
namespace {

const QWidget& MainWindowOf(const QWidget& dialog) {
  const QWidget* window = &dialog;
  while (window->parentWidget() != nullptr) {
    window = window->parentWidget()->window();
  }
  return *window;
}

}  // namespace

ScreenDialog::ScreenDialog(Screen& screen, ScreenGate& gate, QWidget* parent)
    : QDialog(parent), binder_(screen, gate, *this) {
  setWindowModality(Qt::WindowModal);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  setWindowFlag(Qt::WindowMaximizeButtonHint, true);
  setSizeGripEnabled(true);
  binder_.OnRefresh = [this] { setWindowTitle(ToQt(binder_.Model().Caption())); };
}

void ScreenDialog::Complete() {
  binder_.Finish();
  TakeSize();
}

void ScreenDialog::TakeSize() {
  adjustSize();
  // Texts that are broken into lines need more than they ask for.
  if (layout() != nullptr && layout()->hasHeightForWidth()) {
    resize(width(), std::max(height(), layout()->totalHeightForWidth(width())));
  }
  binder_.Model().Place.width = width();
  binder_.Model().Place.height = height();
}

void ScreenDialog::Present() {
  Screen& screen = binder_.Model();
  // Where the screen put itself, measured by what its window was before there were texts in it.
  const Screen::Geometry place = screen.Place;
  binder_.Flush();
  TakeSize();
  const Screen* main = screen.Context().services.FindScreen("frmMain");
  if (parentWidget() != nullptr && main != nullptr && (place.left != 0 || place.top != 0)) {
    const QPoint ground =
        MainWindowOf(*this).geometry().topLeft() + QPoint(main->Place.left, main->Place.top);
    const QPoint middle(place.left + place.width / 2, place.top + place.height / 2);
    // All of it on the screen where it can be.
    const QRect room = QWidget::screen()->availableGeometry();
    const QPoint wanted = ground + middle - rect().center();
    move(std::max(room.left(), std::min(wanted.x(), room.right() - width())),
         std::max(room.top(), std::min(wanted.y(), room.bottom() - height())));
  }
  show();
  binder_.FocusFirst();
}

QHBoxLayout* ScreenDialog::ButtonRow(std::initializer_list<Command*> buttons) {
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  std::vector<QPushButton*> made;
  int widest = Characters(12);
  for (Command* command : buttons) {
    QPushButton* button = binder_.Make(*command);
    button->setText(ToQt(command->Caption()));
    widest = std::max(widest, button->sizeHint().width());
    made.push_back(button);
    row->addWidget(button);
  }
  for (QPushButton* button : made) {
    button->setMinimumWidth(widest);
  }
  return row;
}

int ScreenDialog::Characters(int count) const { return count * fontMetrics().averageCharWidth(); }

int ScreenDialog::Lines(int count) const { return count * fontMetrics().lineSpacing(); }

}  // namespace lorvane
