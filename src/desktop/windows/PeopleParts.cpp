#include "desktop/windows/PeopleParts.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <array>

namespace lorvane {

QWidget* PeopleTools(WindowBinder& binder, PeopleToolBar& toolBar) {
  struct Tool {
    Command* command;
    const char* icon;
    bool gapBefore;
  };
  const std::array tools{
      Tool{&toolBar.cmdTbrNew, "add", false},    Tool{&toolBar.cmdTbrImport, "import", false},
      Tool{&toolBar.cmdTbrSave, "save", true},   Tool{&toolBar.cmdTbrRefresh, "refresh", false},
      Tool{&toolBar.cmdTbrFind, "search", true}, Tool{&toolBar.cmdTbrDelete, "delete", true},
  };
  QGroupBox* strip = binder.Make(toolBar.picTbrMain);
  strip->setFlat(true);
  auto* row = new QHBoxLayout(strip);
  row->setContentsMargins(0, 0, 0, 0);
  for (const Tool& tool : tools) {
    if (tool.gapBefore) {
      row->addSpacing(2 * strip->fontMetrics().averageCharWidth());
    }
    row->addWidget(binder.MakeTool(*tool.command, tool.icon));
  }
  row->addStretch(1);
  binder.MakePopUps();
  return strip;
}

QWidget* PeopleNames(WindowBinder& binder, ListBox& list) {
  constexpr int kWidth = 32;
  QListWidget* names = binder.Make(list);
  names->setUniformItemSizes(true);
  names->setAccessibleName(QWidget::tr("Names"));
  names->setFixedWidth(kWidth * names->fontMetrics().averageCharWidth());
  return names;
}

QGroupBox* PeopleIndustries(WindowBinder& binder, IndustryBoxes& boxes) {
  QGroupBox* group = binder.Make(boxes.fraIndustry);
  auto* column = new QVBoxLayout(group);
  for (const IndustrySlot slot : kAllSlots) {
    column->addWidget(binder.Make(boxes.Box(slot)));
  }
  return group;
}

}  // namespace lorvane
