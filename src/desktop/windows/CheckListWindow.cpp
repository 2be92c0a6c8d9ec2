#include "desktop/windows/CheckListWindow.h"

#include <QGridLayout>
#include <QLabel>
#include <QMenuBar>
#include <QToolButton>
#include <array>
#include <utility>

#include "desktop/binder/Icons.h"

namespace lorvane {

CheckListWindow::CheckListWindow(frmCheckList& screen, ScreenGate& gate, QWidget* parent)
    : ScreenDialog(screen, gate, parent) {
  constexpr int kWidth = 62;
  auto* bar = new QMenuBar(this);
  binder_.MakeMenus(*bar);
  QLabel* info = binder_.Make(screen.lblInfo);
  info->setWordWrap(true);
  info->setMinimumWidth(Characters(kWidth));

  struct Step {
    Command* command;
    Label* label;
    const char* icon;
  };
  const std::array steps{
      Step{&screen.cmdCompanyDataFiles, &screen.lblCompanyDataFiles, "new-company"},
      Step{&screen.cmdCompanyInfo, &screen.lblCompanyInfo, "company"},
      Step{&screen.cmdSubContractors, &screen.lblSubCon, "sub-contractor"},
      Step{&screen.cmdEmployees, &screen.lblEmployees, "employees"},
  };
  auto* grid = new QGridLayout;
  grid->setColumnStretch(1, 1);
  int row = 0;
  for (const Step& step : steps) {
    // The label beside it says what the button does, and whether that is done.
    QToolButton* button = binder_.MakeTool(*step.command, step.icon);
    button->setAutoRaise(false);
    grid->addWidget(button, row, 0);
    grid->addWidget(binder_.MakeNaming(*step.label, *button), row, 1);
    ++row;
  }

  auto* layout = new QVBoxLayout(this);
  layout->setMenuBar(bar);
  layout->addWidget(info);
  layout->addLayout(grid);
  layout->addStretch(1);
  layout->addLayout(ButtonRow({&screen.cmdOK}));
}

}  // namespace lorvane
