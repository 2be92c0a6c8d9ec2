#include "desktop/windows/SicWindow.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>

namespace lorvane {

SicWindow::SicWindow(frmSIC& screen, ScreenGate& gate, QWidget* parent)
    : ScreenDialog(screen, gate, parent) {
  constexpr int kWidth = 90;
  constexpr int kHeight = 20;
  QComboBox* year = binder_.Make(screen.cboYear);
  QLineEdit* wanted = binder_.Make(screen.txtSIC);
  auto* search = new QHBoxLayout;
  search->addWidget(binder_.MakeNaming(screen.lblYear, *year));
  search->addWidget(year);
  search->addSpacing(Characters(2));
  search->addWidget(binder_.MakeNaming(screen.lblSIC, *wanted));
  search->addWidget(wanted, 1);
  search->addWidget(binder_.Make(screen.cmdGo));
  QTreeView* codes = binder_.Make(screen.lvwSic);
  codes->setAccessibleName(tr("Codes and rates"));
  codes->setMinimumSize(Characters(kWidth), Lines(kHeight));

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(search);
  layout->addWidget(codes, 1);
  layout->addLayout(ButtonRow({&screen.cmdOK, &screen.cmdClose}));
}

}  // namespace lorvane
