#include "desktop/windows/PaymentListWindow.h"

#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QRadioButton>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>
#include <array>

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
  struct Tool {
    Command* command;
    const char* icon;
    bool gapBefore;
  };
  const std::array tools{
      Tool{&menus.cmdTbrSave, "save", false},
      Tool{&menus.cmdTbrRefresh, "refresh", false},
      Tool{&menus.cmdTbrCalculator, "calculator", false},
      Tool{&menus.cmdTbrPost, "post", true},
      Tool{&menus.cmdTbrUndo, "undo", false},
      Tool{&menus.cmdTbrFind, "search", true},
      Tool{&menus.cmdTbrCancel, "cancel", true},
  };
  QGroupBox* strip = binder_.Make(menus.picTbrMain);
  strip->setFlat(true);
  QHBoxLayout* row = ToolStrip(*strip);
  for (const Tool& tool : tools) {
    if (tool.gapBefore) {
      row->addSpacing(Characters(2));
    }
    row->addWidget(binder_.MakeTool(*tool.command, tool.icon));
  }
  row->addStretch(1);
  return strip;
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
