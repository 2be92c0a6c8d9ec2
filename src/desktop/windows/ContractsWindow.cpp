#include "desktop/windows/ContractsWindow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QTreeView>

namespace lorvane {

ContractsWindow::ContractsWindow(frmContracts& screen, ScreenGate& gate, QWidget* parent)
    : ScreenDialog(screen, gate, parent) {
  constexpr int kProvinces = 30;
  constexpr int kTypes = 62;
  constexpr int kHeight = 18;
  QListWidget* provinces = binder_.Make(screen.lstProvinces);
  provinces->setFixedWidth(Characters(kProvinces));
  QTreeView* types = binder_.Make(screen.lvwContracts);
  types->setAccessibleName(tr("Contract types"));
  types->setMinimumSize(Characters(kTypes), Lines(kHeight));
  auto* left = new QVBoxLayout;
  if (auto* label = dynamic_cast<Label*>(screen.Find("lblProvinces"))) {
    left->addWidget(binder_.MakeNaming(*label, *provinces));
  }
  left->addWidget(provinces, 1);
  auto* middle = new QHBoxLayout;
  middle->addLayout(left);
  middle->addWidget(types, 1);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(middle, 1);
  layout->addLayout(ButtonRow({&screen.cmdAdd, &screen.cmdEdit, &screen.cmdOK, &screen.cmdClose}));
}

}  // namespace lorvane
