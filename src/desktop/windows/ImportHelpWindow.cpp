#include "desktop/windows/ImportHelpWindow.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>

namespace lorvane {
namespace {

QWidget* Framed(WindowBinder& binder, Frame& frame, std::deque<Label>& labels) {
  QGroupBox* group = binder.Make(frame);
  auto* column = new QVBoxLayout(group);
  for (Label& label : labels) {
    column->addWidget(binder.Make(label));
  }
  return group;
}

}  // namespace

ImportHelpWindow::ImportHelpWindow(frmImportHlp& screen, ScreenGate& gate, QWidget* parent)
    : ScreenDialog(screen, gate, parent) {
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(Framed(binder_, screen.fraExcelEmp, screen.lblExcelEmp));
  layout->addWidget(Framed(binder_, screen.fraExcelSubs, screen.lblExcelSubs));
  layout->addStretch(1);
  layout->addLayout(ButtonRow({&screen.cmdOK}));
}

}  // namespace lorvane
