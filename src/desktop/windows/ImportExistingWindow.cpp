#include "desktop/windows/ImportExistingWindow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>

#include "desktop/binder/FormGrid.h"

namespace lorvane {
namespace {

// The window has the room from the beginning.
QWidget* Reserved(QWidget* widget) {
  QSizePolicy policy = widget->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget->setSizePolicy(policy);
  return widget;
}

}  // namespace

ImportExistingWindow::ImportExistingWindow(frmImportExisting& screen, ScreenGate& gate,
                                           QWidget* parent)
    : ScreenDialog(screen, gate, parent) {
  constexpr int kWidth = 80;
  FormGrid form(binder_);
  form.Wide(binder_.Make(screen.lblNotice));
  form.Row({&screen.txtSource, &screen.cmdFrom});

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(form.Layout());
  layout->addWidget(Reserved(binder_.Make(screen.lblImporting)));
  layout->addWidget(Reserved(binder_.Make(screen.prgBar)));
  layout->addStretch(1);
  layout->addLayout(ButtonRow({&screen.cmdImport, &screen.cmdOK, &screen.cmdClose}));
  setMinimumWidth(Characters(kWidth));
}

}  // namespace lorvane
