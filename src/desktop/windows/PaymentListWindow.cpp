#include "desktop/windows/PaymentListWindow.h"

#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QRadioButton>
#include <QTreeView>
#include <QVBoxLayout>

#include "desktop/binder/ToolStrip.h"

namespace lorvane {

PaymentListWindow::PaymentListWindow(frmSelectAssessment& screen, ScreenGate& gate, QWidget* parent)
    : ScreenDialog(screen, gate, parent) {
  constexpr int kRows = 22;
  constexpr int kColumns = 100;
  auto* bar = new QMenuBar(this);
  binder_.MakeMenus(*bar);

  QWidget* tools = Tools(screen.menus);
  QWidget* choices = Choices(screen);
  QTreeView* payments = binder_.Make(screen.lvwPayments);
  payments->setAlternatingRowColors(true);
  payments->setMinimumSize(Characters(kColumns), Lines(kRows));

  auto* people = new QVBoxLayout;
  people->addWidget(payments, 1);
  people->addWidget(binder_.Make(screen.lblListCount));
  auto* middle = new QHBoxLayout;
  middle->addWidget(choices);
  middle->addLayout(people, 1);

  auto* layout = new QVBoxLayout(this);
  layout->setMenuBar(bar);
  layout->addWidget(tools);
  layout->addLayout(middle, 1);
}

QWidget* PaymentListWindow::Tools(PaymentMenus& menus) {
  return MakeToolStrip(binder_, menus.picTbrMain,
                       {{&menus.cmdTbrSave, "save"},
                        {&menus.cmdTbrRefresh, "refresh"},
                        {&menus.cmdTbrCalculator, "calculator"},
                        {&menus.cmdTbrPost, "post", true},
                        {&menus.cmdTbrUndo, "undo"},
                        {&menus.cmdTbrFind, "search", true},
                        {&menus.cmdTbrCancel, "cancel", true}});
}

QWidget* PaymentListWindow::Choices(frmSelectAssessment& screen) {
  constexpr int kWidth = 34;
  QGroupBox* kind = binder_.Make(screen.fraAssessment);
  auto* kinds = new QVBoxLayout(kind);
  kinds->addWidget(binder_.Make(screen.optEmployee));
  kinds->addWidget(binder_.Make(screen.optSubContractor));

  QGroupBox* info = binder_.Make(screen.fraInfo);
  QListWidget* industries = binder_.Make(screen.lstIndustries);
  auto* choose = new QVBoxLayout(info);
  choose->addWidget(binder_.MakeNaming(screen.lblSelectIndustry, *industries));
  choose->addWidget(industries, 1);

  auto* column = new QWidget(this);
  column->setFixedWidth(Characters(kWidth));
  auto* layout = new QVBoxLayout(column);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(kind);
  layout->addWidget(info, 1);
  return column;
}

}  // namespace lorvane
