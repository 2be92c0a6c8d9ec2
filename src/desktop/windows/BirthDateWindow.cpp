#include "desktop/windows/BirthDateWindow.h"

#include <QCalendarWidget>
#include <QHBoxLayout>

namespace lorvane {

BirthDateWindow::BirthDateWindow(frmBirthDate& screen, ScreenGate& gate, QWidget* parent)
    : ScreenDialog(screen, gate, parent) {
  QCalendarWidget* sheet = binder_.Make(screen.calDate);
  sheet->setAccessibleName(tr("Date"));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(sheet, 1);
  layout->addLayout(ButtonRow({&screen.cmdNoDate}));
}

}  // namespace lorvane
