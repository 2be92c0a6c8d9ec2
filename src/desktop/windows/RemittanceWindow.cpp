#include "desktop/windows/RemittanceWindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <array>

#include "desktop/binder/FormGrid.h"

namespace lorvane {

RemittanceWindow::RemittanceWindow(frmRemittanceCalc& screen, ScreenGate& gate, QWidget* parent)
    : ScreenDialog(screen, gate, parent) {
  auto* left = new QVBoxLayout;
  left->addWidget(Type(screen));
  left->addWidget(Period(screen));
  auto* top = new QHBoxLayout;
  top->addLayout(left, 1);
  top->addWidget(Options(screen));
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addWidget(YearEnd(screen));
  layout->addStretch(1);
  QProgressBar* progress = binder_.Make(screen.prgReport);
  progress->setAccessibleName(tr("Progress"));
  layout->addWidget(progress);
  layout->addLayout(ButtonRow({&screen.cmdOK, &screen.cmdCancel}));
}

QWidget* RemittanceWindow::Type(frmRemittanceCalc& screen) {
  QGroupBox* group = binder_.Make(screen.fraRemittance);
  auto* grid = new QGridLayout(group);
  grid->addWidget(binder_.Make(screen.optEmployee), 0, 0);
  grid->addWidget(binder_.Make(screen.optSubContractor), 1, 0);
  grid->addWidget(binder_.Make(screen.cmdSummary), 0, 1);
  grid->addWidget(binder_.Make(screen.cmdAnnualSubCon), 1, 1);
  grid->setColumnStretch(0, 1);
  return group;
}

QWidget* RemittanceWindow::Period(frmRemittanceCalc& screen) {
  constexpr int kIndustry = 40;
  QGroupBox* group = binder_.Make(screen.fraSelection);
  auto* grid = new QGridLayout(group);
  QComboBox* industries = binder_.Make(screen.cboIndustries);
  industries->setMinimumWidth(Characters(kIndustry));
  QDateEdit* starting = binder_.Make(screen.dtpStarting);
  QDateEdit* ending = binder_.Make(screen.dtpEnding);
  grid->addWidget(binder_.MakeNaming(screen.lblIndustry, *industries), 0, 0);
  grid->addWidget(industries, 0, 1, 1, 4);
  grid->addWidget(binder_.MakeNaming(screen.lblStarting, *starting), 1, 0);
  grid->addWidget(starting, 1, 1);
  grid->addWidget(binder_.MakeNaming(screen.lblEnding, *ending), 1, 2);
  grid->addWidget(ending, 1, 3);
  grid->setColumnStretch(4, 1);
  return group;
}

QWidget* RemittanceWindow::Options(frmRemittanceCalc& screen) {
  QGroupBox* group = binder_.Make(screen.fraOptions);
  auto* column = new QVBoxLayout(group);
  for (CheckBox* option : {&screen.chkExport, &screen.chkNav, &screen.chkProgress,
                           &screen.chkRefresh, &screen.chkSearch, &screen.chkZoom}) {
    column->addWidget(binder_.Make(*option));
  }
  column->addStretch(1);
  return group;
}

QWidget* RemittanceWindow::YearEnd(frmRemittanceCalc& screen) {
  constexpr int kYear = 12;
  QGroupBox* group = binder_.Make(screen.fraYearEnd);
  auto* column = new QVBoxLayout(group);
  column->addWidget(binder_.Make(screen.lblPlease));
  const std::array changes{&screen.chkEmployerName, &screen.chkOpAs, &screen.chkBusinessNumber,
                           &screen.chkMainBusiness, &screen.chkSIC,  &screen.chkClaim,
                           &screen.chkFinancial};
  auto* grid = new QGridLayout;
  constexpr int kLines = 4;
  for (std::size_t i = 0; i < changes.size(); ++i) {
    const auto place = static_cast<int>(i);
    grid->addWidget(binder_.Make(*changes[i]), place % kLines, place / kLines);
  }
  column->addLayout(grid);
  auto* years = new QHBoxLayout;
  QWidget* current = binder_.MakeField(screen.txtCurrentYear);
  QComboBox* reported = binder_.Make(screen.cboYear);
  current->setFixedWidth(Characters(kYear));
  reported->setFixedWidth(Characters(kYear));
  years->addWidget(binder_.MakeNaming(screen.lblCurrentYear, *current));
  years->addWidget(current);
  years->addSpacing(Characters(2));
  years->addWidget(binder_.MakeNaming(screen.lblYear, *reported));
  years->addWidget(reported);
  years->addStretch(1);
  column->addLayout(years);
  return group;
}

}  // namespace lorvane
