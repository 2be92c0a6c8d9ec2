#include "desktop/windows/AboutWindow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/binder/Icons.h"

namespace lorvane {

AboutWindow::AboutWindow(frmAbout& screen, ScreenGate& gate, QWidget* parent)
    : ScreenDialog(screen, gate, parent) {
  constexpr int kPictureLines = 6;
  constexpr int kWidth = 60;
  constexpr double kLarger = 1.4;
  auto* picture = new QLabel(this);
  const int side = Lines(kPictureLines);
  picture->setPixmap(ProgramIcon().pixmap(QSize(side, side), devicePixelRatioF()));
  QLabel* name = binder_.Make(screen.lblAppName);
  QFont font = name->font();
  font.setPointSizeF(font.pointSizeF() * kLarger);
  font.setBold(true);
  name->setFont(font);
  QLabel* description = binder_.Make(screen.lblDescription);
  description->setWordWrap(true);
  description->setMinimumWidth(Characters(kWidth));
  QLabel* builtWith = binder_.Make(screen.lblBuiltWith);
  builtWith->setWordWrap(true);

  auto* texts = new QVBoxLayout;
  texts->addWidget(name);
  texts->addWidget(binder_.Make(screen.lblAppVersion));
  texts->addSpacing(Lines(1));
  texts->addWidget(description);
  texts->addWidget(builtWith);
  texts->addWidget(new QLabel(tr("Drawn with Qt %1.").arg(QLatin1String(qVersion())), this));
  texts->addStretch(1);
  auto* middle = new QHBoxLayout;
  middle->setSpacing(Lines(1));
  middle->addWidget(picture, 0, Qt::AlignTop);
  middle->addLayout(texts, 1);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(middle, 1);
  layout->addLayout(ButtonRow({&screen.cmdOK}));
}

}  // namespace lorvane
