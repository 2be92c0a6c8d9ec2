#include "desktop/windows/ImportWindow.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeView>

#include "desktop/binder/FormGrid.h"

namespace lorvane {
namespace {

// Under one another, as the columns of the sheet are counted.
QGridLayout* Checklist(WindowBinder& binder, frmImport& screen) {
  constexpr int kRows = 3;
  auto* grid = new QGridLayout;
  grid->addWidget(binder.Make(screen.chkRemove), 0, 0, 1, 2);
  int place = 0;
  for (CheckBox* column : {&screen.chkCol_0, &screen.chkCol_1, &screen.chkCol_2, &screen.chkCol_3,
                           &screen.chkCol_4, &screen.chkCol_5}) {
    grid->addWidget(binder.Make(*column), 1 + place % kRows, place / kRows);
    ++place;
  }
  return grid;
}

QWidget* From(WindowBinder& binder, frmImport& screen) {
  QGroupBox* group = binder.Make(screen.fraExcelFrom);
  QLabel* format = binder.Make(screen.lblFormatExcel);
  format->setWordWrap(true);
  FormGrid form(binder);
  form.Row({&screen.txtExcelSource, &screen.cmdFromExcel});
  form.Row({&screen.txtNumberCols});
  form.Wide(format);
  auto* column = new QVBoxLayout(group);
  column->addLayout(form.Layout());
  column->addLayout(Checklist(binder, screen));
  return group;
}

QWidget* To(WindowBinder& binder, frmImport& screen) {
  QGroupBox* group = binder.Make(screen.fraExcelTo);
  FormGrid form(binder);
  form.Row({&screen.txtTo});
  form.Row({&screen.txtTableName, &screen.txtStarting});
  group->setLayout(form.Layout());
  return group;
}

}  // namespace

ImportWindow::ImportWindow(frmImport& screen, ScreenGate& gate, QWidget* parent)
    : ScreenDialog(screen, gate, parent) {
  constexpr int kWidth = 136;
  constexpr int kHeight = 9;
  QLabel* notice = binder_.Make(screen.lblNotice);
  notice->setWordWrap(true);
  auto* wishes = new QHBoxLayout;
  wishes->addWidget(binder_.Make(screen.chkSkip));
  // It comes and goes, which moves nothing here.
  wishes->addWidget(binder_.Make(screen.prgBar), 1);
  wishes->addStretch(0);
  wishes->addWidget(binder_.Make(screen.cmdPreview));
  QTreeView* rows = binder_.Make(screen.lvwPreview);
  rows->setAccessibleName(tr("Rows"));
  rows->setMinimumSize(Characters(kWidth), Lines(kHeight));
  QLabel* result = binder_.Make(screen.lblResult);
  result->setWordWrap(true);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(notice);
  layout->addWidget(From(binder_, screen));
  layout->addWidget(To(binder_, screen));
  layout->addLayout(wishes);
  layout->addWidget(rows, 1);
  layout->addWidget(result);
  layout->addLayout(ButtonRow({&screen.cmdImportExcel, &screen.cmdReport, &screen.cmdHlpExcel,
                               &screen.cmdOK, &screen.cmdClose}));
}

}  // namespace lorvane
