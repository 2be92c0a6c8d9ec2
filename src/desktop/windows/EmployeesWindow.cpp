#include "desktop/windows/EmployeesWindow.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "desktop/binder/FormGrid.h"
#include "desktop/windows/PeopleParts.h"

namespace lorvane {
namespace {

QWidget* GeneralForm(WindowBinder& binder, frmEmployees& screen) {
  QGroupBox* gender = binder.Make(screen.fraGender);
  auto* choices = new QHBoxLayout(gender);
  choices->addWidget(binder.Make(screen.optGenderMale));
  choices->addWidget(binder.Make(screen.optGenderFemale));
  choices->addStretch(1);

  FormGrid form(binder);
  form.Row({&screen.txtLastName, &screen.txtInitial});
  form.Row({&screen.txtFirstName, &screen.chkInactive});
  form.Row({&screen.txtStreet});
  form.Row({&screen.txtCity});
  form.Row({&screen.txtProvince, &screen.txtPostalCode});
  form.Row({&screen.txtHPhone});
  form.Row({&screen.txtWPhone});
  form.Row({&screen.txtCPhone});
  form.Row({&screen.txtMailing});
  form.Row({&screen.txtOccupation});
  form.Wide(gender);
  form.Fill();
  auto* page = new QWidget;
  page->setLayout(form.Layout());
  return page;
}

QWidget* IndustryForm(WindowBinder& binder, frmEmployees& screen) {
  QGroupBox* reference = binder.Make(screen.fraReference);
  FormGrid references(binder);
  // The two stand in one place, and one of them is shown.
  references.Row({&screen.txtSin, &screen.mtxtSin});
  references.Row({&screen.txtHealth});
  references.Row({&screen.txtBirth, &screen.cmdBirth});
  reference->setLayout(references.Layout());

  FormGrid amounts(binder);
  amounts.Row({&screen.txtMaxContrib});
  amounts.Row({&screen.txtAccWages});
  auto* page = new QWidget;
  auto* column = new QVBoxLayout(page);
  column->addWidget(PeopleIndustries(binder, screen.chkInd));
  column->addWidget(reference);
  column->addLayout(amounts.Layout());
  column->addStretch(1);
  return page;
}

}  // namespace

EmployeesWindow::EmployeesWindow(frmEmployees& screen, ScreenGate& gate, QWidget* parent)
    : ScreenDialog(screen, gate, parent) {
  QWidget* tools = PeopleTools(binder_, screen.toolBar);
  QTabWidget* pages = binder_.Make(screen.sstEmployees);
  const auto& titles = screen.sstEmployees.Titles();
  pages->addTab(GeneralForm(binder_, screen), QString::fromStdString(titles[0]));
  pages->addTab(IndustryForm(binder_, screen), QString::fromStdString(titles[1]));
  PeopleButtons& foot = screen.buttons;
  LayOutPeople(*this, tools, PeopleNames(binder_, screen.list), pages,
               ButtonRow({&foot.cmdAdd, &foot.cmdApply, &foot.cmdOK, &foot.cmdClose}));
}

}  // namespace lorvane
