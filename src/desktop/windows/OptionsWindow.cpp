#include "desktop/windows/OptionsWindow.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "desktop/binder/FormGrid.h"

namespace lorvane {
namespace {

QWidget* Contact(WindowBinder& binder, ContactFields& contact) {
  QGroupBox* group = binder.Make(contact.frame);
  FormGrid form(binder);
  for (TextBox* box : contact.TextBoxes()) {
    // Province and postal code share a row.
    if (box->Name().find("PostalCode") != std::string::npos) {
      form.Row({&contact.Province(), box});
    } else {
      form.Row({box});
    }
  }
  form.Fill();
  group->setLayout(form.Layout());
  return group;
}

QWidget* ContactsPage(WindowBinder& binder, frmOptions& screen) {
  auto* page = new QWidget;
  auto* row = new QHBoxLayout(page);
  row->addWidget(Contact(binder, screen.claim));
  row->addWidget(Contact(binder, screen.financial));
  return page;
}

QWidget* Framed(WindowBinder& binder, Frame& frame, std::initializer_list<Control*> fields) {
  QGroupBox* group = binder.Make(frame);
  FormGrid form(binder);
  for (Control* field : fields) {
    form.Row({field});
  }
  group->setLayout(form.Layout());
  return group;
}

QWidget* Payroll(WindowBinder& binder, frmOptions& screen) {
  QGroupBox* group = binder.Make(screen.fraPayrollService);
  auto* column = new QVBoxLayout(group);
  column->addWidget(binder.Make(screen.optInternally));
  column->addWidget(binder.Make(screen.optExternally));
  QLineEdit* provider = binder.Make(screen.txtPayrollService);
  auto* row = new QHBoxLayout;
  row->addWidget(binder.MakeNaming(screen.lblNameOfProvider, *provider));
  row->addWidget(provider, 1);
  column->addLayout(row);
  return group;
}

QWidget* BusinessPage(WindowBinder& binder, frmOptions& screen) {
  auto* page = new QWidget;
  auto* row = new QHBoxLayout(page);
  auto* left = new QVBoxLayout;
  left->addWidget(Contact(binder, screen.location));
  left->addWidget(Framed(binder, screen.fraMainBusiness, {&screen.txtMainBusiness}));
  left->addStretch(1);
  auto* right = new QVBoxLayout;
  right->addWidget(Payroll(binder, screen));
  right->addWidget(
      Framed(binder, screen.fraFinancialInstitution, {&screen.txtBankName, &screen.txtAcctNo}));
  right->addStretch(1);
  row->addLayout(left);
  row->addLayout(right);
  return page;
}

QWidget* People(WindowBinder& binder, PrincipalsPage& principals) {
  constexpr int kListWidth = 30;
  QListWidget* names = binder.Make(principals.list);
  names->setAccessibleName(QWidget::tr("Principals"));
  names->setFixedWidth(kListWidth * names->fontMetrics().averageCharWidth());
  FormGrid form(binder);
  form.Row({&principals.txtPrincipalLastName});
  form.Row({&principals.txtPrincipalFirstName});
  form.Row({&principals.txtTitle});
  form.Row({&principals.txtPrincipalAddress});
  form.Row({&principals.txtPrincipalCity});
  form.Row({&principals.cboPrincipalProvince, &principals.txtPrincipalPostalCode});
  form.Row({&principals.txtSin, &principals.txtDob});
  form.Row({&principals.txtWork, &principals.txtCell});
  form.Row({&principals.txtHome, &principals.txtFax});
  form.Fill();
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  for (Command* command : {&principals.cmdAdd, &principals.cmdSave, &principals.cmdDelete}) {
    buttons->addWidget(binder.Make(*command));
  }
  auto* right = new QVBoxLayout;
  right->addLayout(form.Layout(), 1);
  right->addLayout(buttons);
  auto* page = new QWidget;
  auto* row = new QHBoxLayout(page);
  row->addWidget(names);
  row->addLayout(right, 1);
  return page;
}

}  // namespace

OptionsWindow::OptionsWindow(frmOptions& screen, ScreenGate& gate, QWidget* parent)
    : ScreenDialog(screen, gate, parent) {
  QTabWidget* pages = binder_.Make(screen.sstOptions);
  const auto& titles = screen.sstOptions.Titles();
  pages->addTab(ContactsPage(binder_, screen), QString::fromStdString(titles[0]));
  pages->addTab(BusinessPage(binder_, screen), QString::fromStdString(titles[1]));
  pages->addTab(People(binder_, screen.principalsPage), QString::fromStdString(titles[2]));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(pages, 1);
  layout->addLayout(ButtonRow({&screen.cmdOK, &screen.cmdClose}));
}

}  // namespace lorvane
