#include "desktop/windows/SubContractorWindow.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>

#include "desktop/binder/FormGrid.h"
#include "desktop/windows/PeopleParts.h"

namespace lorvane {

SubContractorWindow::SubContractorWindow(frmSubContractor& screen, ScreenGate& gate,
                                         QWidget* parent)
    : ScreenDialog(screen, gate, parent) {
  QWidget* tools = PeopleTools(binder_, screen.toolBar);
  FormGrid business(binder_);
  business.Row({&screen.txtBusNum});
  business.Row({&screen.txtSubName});
  business.Row({&screen.txtAddress});
  business.Row({&screen.txtCity});
  business.Row({&screen.cboProvinces, &screen.txtPostalCode});
  business.Row({&screen.txtPhone, &screen.txtFax});
  business.Row({&screen.txtEmail});
  business.Row({&screen.txtDesc});

  QGroupBox* contract = binder_.Make(screen.fraContract);
  FormGrid terms(binder_);
  terms.Row({&screen.cboContract});
  terms.Row({&screen.txtPercent, &screen.txtExpiry, &screen.cmdDateSelect});
  contract->setLayout(terms.Layout());

  auto* right = new QVBoxLayout;
  right->addLayout(business.Layout());
  right->addWidget(contract);
  right->addWidget(PeopleIndustries(binder_, screen.chkInd));
  right->addStretch(1);
  auto* middle = new QHBoxLayout;
  middle->addWidget(PeopleNames(binder_, screen.list));
  middle->addLayout(right, 1);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tools);
  layout->addLayout(middle, 1);
  layout->addLayout(ButtonRow({&screen.buttons.cmdAdd, &screen.buttons.cmdApply,
                               &screen.buttons.cmdOK, &screen.buttons.cmdClose}));
}

}  // namespace lorvane
