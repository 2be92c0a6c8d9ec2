#include "desktop/windows/AssetsWindow.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QListWidget>

#include "desktop/binder/FormGrid.h"

namespace lorvane {

AssetsWindow::AssetsWindow(frmAssets& screen, ScreenGate& gate, QWidget* parent)
    : ScreenDialog(screen, gate, parent) {
  constexpr int kListWidth = 34;
  AssetsPage& assets = screen.assetsPage;
  QListWidget* list = binder_.Make(assets.list);
  list->setAccessibleName(tr("Assets"));
  list->setFixedWidth(Characters(kListWidth));

  QGroupBox* general = binder_.Make(assets.fraGeneral);
  FormGrid things(binder_);
  things.Row({&assets.txtDescription});
  things.Row({&assets.txtSerialNumber});
  things.Row({&assets.txtLicenseNo});
  things.Row({&assets.chkVehicle});
  general->setLayout(things.Layout());
  QGroupBox* vehicle = binder_.Make(assets.fraVehicle);
  FormGrid vehicles(binder_);
  vehicles.Row({&assets.txtMake});
  vehicles.Row({&assets.txtModel});
  vehicles.Row({&assets.txtColour});
  vehicles.Row({&assets.txtYear});
  vehicle->setLayout(vehicles.Layout());

  auto* right = new QVBoxLayout;
  right->addWidget(general);
  right->addWidget(vehicle);
  right->addStretch(1);
  auto* middle = new QHBoxLayout;
  middle->addWidget(list);
  middle->addLayout(right, 1);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(middle, 1);
  layout->addLayout(ButtonRow(
      {&assets.cmdAdd, &assets.cmdDelete, &assets.cmdApply, &screen.cmdOK, &screen.cmdClose}));
}

}  // namespace lorvane
