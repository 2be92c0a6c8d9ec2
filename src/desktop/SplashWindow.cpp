#include "desktop/SplashWindow.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include "desktop/binder/Icons.h"
#include "desktop/binder/ScreenGate.h"

namespace lorvane {

SplashWindow::SplashWindow(frmSplash& screen, ScreenGate& gate)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint),
      screen_(screen),
      binder_(screen, gate, *this) {
  constexpr int kPictureLines = 8;
  constexpr double kLarger = 2.4;
  auto* picture = new QLabel(this);
  const int line = fontMetrics().lineSpacing();
  const QSize side(kPictureLines * line, kPictureLines * line);
  picture->setPixmap(ProgramIcon().pixmap(side, devicePixelRatioF()));
  auto* name = new QLabel(QStringLiteral("Lorvane"), this);
  QFont font = name->font();
  font.setPointSizeF(font.pointSizeF() * kLarger);
  font.setBold(true);
  name->setFont(font);
  auto* purpose = new QLabel(tr("Book-keeping for workers' compensation assessments"), this);

  auto* texts = new QVBoxLayout;
  texts->addStretch(1);
  texts->addWidget(name);
  texts->addWidget(purpose);
  texts->addSpacing(line);
  texts->addWidget(binder_.Make(screen.lblAppVersion));
  texts->addStretch(1);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(2 * line, 2 * line, 3 * line, 2 * line);
  layout->setSpacing(2 * line);
  layout->addWidget(picture);
  layout->addLayout(texts);
  binder_.Finish();
  adjustSize();
  move(QGuiApplication::primaryScreen()->availableGeometry().center() - rect().center());
}

void SplashWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  QTimer::singleShot(frmSplash::kMilliseconds, this,
                     [this] { binder_.Gate().Run([this] { screen_.Timer1_Timer(); }); });
}

}  // namespace lorvane
