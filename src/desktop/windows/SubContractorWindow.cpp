#include "desktop/windows/SubContractorWindow.h"

#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

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

  auto* fields = new QWidget;
  auto* right = new QVBoxLayout(fields);
  right->setContentsMargins(0, 0, 0, 0);
  right->addLayout(business.Layout());
  right->addWidget(contract);
  right->addWidget(PeopleIndustries(binder_, screen.chkInd));
  right->addStretch(1);
  PeopleButtons& foot = screen.buttons;
  LayOutPeople(*this, tools, PeopleNames(binder_, screen.list), fields,
               ButtonRow({&foot.cmdAdd, &foot.cmdApply, &foot.cmdOK, &foot.cmdClose}));
}

}  // namespace lorvane
