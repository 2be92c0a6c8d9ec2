#include "desktop/windows/PeopleParts.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QShortcut>
#include <QVBoxLayout>

#include "desktop/binder/Icons.h"
#include "desktop/binder/ToolStrip.h"

namespace lorvane {

QWidget* PeopleTools(WindowBinder& binder, PeopleToolBar& toolBar) {
  QWidget* strip = MakeToolStrip(binder, toolBar.picTbrMain,
                                 {{&toolBar.cmdTbrNew, "add"},
                                  {&toolBar.cmdTbrImport, "import"},
                                  {&toolBar.cmdTbrSave, "save", true},
                                  {&toolBar.cmdTbrRefresh, "refresh"},
                                  {&toolBar.cmdTbrFind, "search", true},
                                  {&toolBar.cmdTbrDelete, "delete", true}});
  binder.MakePopUps();
  return strip;
}

QWidget* PeopleNames(WindowBinder& binder, ListBox& list) {
  constexpr int kWidth = 46;
  QListWidget* names = binder.Make(list);
  names->setUniformItemSizes(true);
  names->setAccessibleName(QWidget::tr("Names"));
  auto* filter = new QLineEdit(&binder.Window());
  filter->setObjectName(QStringLiteral("namesFilter"));
  filter->setPlaceholderText(QWidget::tr("Show names with ..."));
  filter->setAccessibleName(filter->placeholderText());
  filter->setToolTip(QWidget::tr("Ctrl+F"));
  filter->setClearButtonEnabled(true);
  filter->addAction(IconOf("search"), QLineEdit::LeadingPosition);
  binder.AddStop(*filter, list);
  const auto apply = [filter, names] {
    const QString wanted = filter->text().trimmed();
    for (int i = 0; i < names->count(); ++i) {
      names->setRowHidden(i, !names->item(i)->text().contains(wanted, Qt::CaseInsensitive));
    }
  };
  QObject::connect(filter, &QLineEdit::textChanged, names, apply);
  // Entries that come or change later are shown or not like the others.
  QObject::connect(names->model(), &QAbstractItemModel::dataChanged, names, [filter, apply] {
    if (!filter->text().isEmpty()) {
      apply();
    }
  });
  auto* find = new QShortcut(QKeySequence(QKeySequence::Find), &binder.Window());
  QObject::connect(find, &QShortcut::activated, filter, qOverload<>(&QWidget::setFocus));

  auto* column = new QWidget(&binder.Window());
  column->setFixedWidth(kWidth * names->fontMetrics().averageCharWidth());
  auto* layout = new QVBoxLayout(column);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(filter);
  layout->addWidget(names, 1);
  return column;
}

QGroupBox* PeopleIndustries(WindowBinder& binder, IndustryBoxes& boxes) {
  QGroupBox* group = binder.Make(boxes.fraIndustry);
  auto* column = new QVBoxLayout(group);
  for (const IndustrySlot slot : kAllSlots) {
    column->addWidget(binder.Make(boxes.Box(slot)));
  }
  return group;
}

void LayOutPeople(QWidget& window, QWidget* tools, QWidget* names, QWidget* fields,
                  QLayout* buttons) {
  auto* middle = new QHBoxLayout;
  middle->addWidget(names);
  middle->addWidget(fields, 1);
  auto* layout = new QVBoxLayout(&window);
  layout->addWidget(tools);
  layout->addLayout(middle, 1);
  layout->addLayout(buttons);
}

}  // namespace lorvane
