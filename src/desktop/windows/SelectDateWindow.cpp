#include "desktop/windows/SelectDateWindow.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace lorvane {

SelectDateWindow::SelectDateWindow(frmSelectDate& screen, ScreenGate& gate, QWidget* parent)
    : ScreenDialog(screen, gate, parent) {
  QCalendarWidget* sheet = binder_.Make(screen.calDate);
  QLabel* told = binder_.MakeNaming(screen.lblSelectDate, *sheet);
  told->setWordWrap(true);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(told);
  layout->addWidget(sheet, 1);
  layout->addLayout(ButtonRow({&screen.cmdOK, &screen.cmdCancel}));
}

}  // namespace lorvane
