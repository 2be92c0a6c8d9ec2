#include "desktop/windows/CompanyWindow.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>
#include <array>

#include "desktop/binder/Binding.h"
#include "desktop/binder/FormGrid.h"
#include "desktop/binder/ScreenGate.h"

namespace lorvane {
namespace {

QWidget* GeneralForm(WindowBinder& binder, GeneralPage& page) {
  FormGrid form(binder);
  form.Row({&page.txtBusNum, &page.txtPrgIdentifier});
  form.Row({&page.txtLegalName});
  form.Row({&page.txtOpAs});
  form.Row({&page.txtAddress});
  form.Row({&page.txtCity});
  form.Row({&page.cboProvinces, &page.txtPostalCode});
  form.Row({&page.txtAreaPhone, &page.txtPhone});
  form.Row({&page.txtAreaFax, &page.txtFax});
  form.Row({&page.txtEmail});
  form.Fill();
  auto* widget = new QWidget;
  widget->setLayout(form.Layout());
  return widget;
}

QWidget* IndustryRows(WindowBinder& binder, IndustryPage& page, Command& updateRates) {
  constexpr int kDescription = 44;
  constexpr int kNumber = 12;
  auto* widget = new QWidget;
  auto* grid = new QGridLayout(widget);
  grid->setColumnStretch(0, 1);
  int column = 0;
  for (Label* heading : {&page.lblDescription, &page.lblSic, &page.lblRate, &page.lblIdentifier}) {
    grid->addWidget(binder.Make(*heading), 0, column);
    // The button of the look-up stands beside the code.
    column += column == 1 ? 2 : 1;
  }
  int line = 1;
  for (const IndustrySlot slot : kAllSlots) {
    IndustryRow& row = page.Row(slot);
    QCheckBox* used = binder.Make(row.chkInd);
    used->setMinimumWidth(kDescription * used->fontMetrics().averageCharWidth());
    grid->addWidget(used, line, 0);
    const QString letter(QLatin1Char(LetterOf(slot)));
    PrefixName(*used, QWidget::tr("Industry %1: ").arg(letter));
    const std::array names{
        QWidget::tr("SIC of industry %1"), QWidget::tr("Look up the code of industry %1"),
        QWidget::tr("Rate of industry %1"), QWidget::tr("Identifier of industry %1")};
    column = 1;
    for (Control* control :
         {static_cast<Control*>(&row.txtSic), static_cast<Control*>(&row.cmdRates),
          static_cast<Control*>(&row.txtRate), static_cast<Control*>(&row.txtIdentifier)}) {
      QWidget* field = binder.MakeField(*control);
      const int character = field->fontMetrics().averageCharWidth();
      field->setFixedWidth((control == &row.cmdRates ? kNumber / 3 : kNumber) * character);
      field->setAccessibleName(names.at(static_cast<std::size_t>(column - 1)).arg(letter));
      grid->addWidget(field, line, column++);
    }
    ++line;
  }
  grid->setRowStretch(line, 1);
  grid->addWidget(binder.Make(updateRates), line + 1, 0, Qt::AlignLeft);
  return widget;
}

}  // namespace

CompanyWindow::CompanyWindow(frmCompany& screen, ScreenGate& gate, QWidget* parent)
    : ScreenDialog(screen, gate, parent) {
  constexpr int kListWidth = 34;
  QListWidget* companies = binder_.Make(screen.lstCompany);
  companies->setAccessibleName(tr("Company"));
  companies->setFixedWidth(Characters(kListWidth));
  QTabWidget* pages = binder_.Make(screen.sstCompany);
  const auto& titles = screen.sstCompany.Titles();
  pages->addTab(GeneralForm(binder_, screen.generalPage), QString::fromStdString(titles[0]));
  pages->addTab(IndustryRows(binder_, screen.industryPage, screen.cmdUpdateRates),
                QString::fromStdString(titles[1]));
  binder_.MakePopUps();

  auto* middle = new QHBoxLayout;
  middle->addWidget(companies);
  middle->addWidget(pages, 1);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(middle, 1);
  layout->addLayout(ButtonRow({&screen.cmdOK, &screen.cmdApply, &screen.cmdClose}));

  auto* rename = new QShortcut(QKeySequence(Qt::Key_F2), this);
  connect(rename, &QShortcut::activated, this,
          [&screen, &gate] { gate.Run([&screen] { screen.Call("RenameIndustry"); }); });
}

}  // namespace lorvane
