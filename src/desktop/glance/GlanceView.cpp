#include "desktop/glance/GlanceView.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <cmath>

#include "desktop/binder/Icons.h"
#include "desktop/binder/QtText.h"
#include "desktop/glance/ChartPainter.h"
#include "desktop/glance/YearChart.h"

namespace lorvane {
namespace {

constexpr int kMenuEntryRole = Qt::UserRole;

QString InIndustry(const YearAtAGlance& glance, IndustrySlot slot) {
  const QString description = ToQt(glance.descriptions[slot]);
  const QString letter(QLatin1Char(LetterOf(slot)));
  return description.isEmpty() ? GlanceView::tr("industry %1").arg(letter)
                               : GlanceView::tr("%1 (%2)").arg(description, letter);
}

QString WaitingText(const YearAtAGlance& glance, const WaitingEntries& waiting) {
  const QString amount = ToQt(Money(waiting.amount));
  const QString payee = ToQt(waiting.payee);
  const QString industry = InIndustry(glance, waiting.slot);
  return waiting.count == 1
             ? GlanceView::tr("1 %1 of %2: %3 saved, not posted").arg(payee, industry, amount)
             : GlanceView::tr("%1 %2s of %3: %4 saved, not posted")
                   .arg(QString::number(waiting.count), payee, industry, amount);
}

QString ClearanceText(const ClearanceDue& due) {
  const QString name = ToQt(due.name);
  const QString date = ToQt(ShortDate(due.expiry));
  return due.expired ? GlanceView::tr("Clearance letter of %1 expired on %2").arg(name, date)
                     : GlanceView::tr("Clearance letter of %1 expires on %2").arg(name, date);
}

QString CeilingText(const NearCeiling& near) {
  const QString name = ToQt(near.name);
  const QString ceiling = ToQt(Money(near.ceiling));
  if (near.IsReached()) {
    return GlanceView::tr("%1 has reached the maximum of %2").arg(name, ceiling);
  }
  constexpr double kWhole = 100;
  const double share = std::floor(kWhole * near.wages.ToDouble() / near.ceiling.ToDouble());
  return GlanceView::tr("%1 has earned %2 of at most %3 (%4 %)")
      .arg(name, ToQt(Money(near.wages)), ceiling, QString::number(share));
}

QLabel* Heading(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  QFont font = label->font();
  font.setBold(true);
  label->setFont(font);
  return label;
}

void AddTotal(QTreeWidget& table, const QString& industry, const YearSums& sums, bool bold) {
  auto* row = new QTreeWidgetItem(
      &table, {industry, ToQt(Money(sums.assessable)), ToQt(Money(sums.assessment))});
  for (int column = 0; column < table.columnCount(); ++column) {
    if (column > 0) {
      row->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    }
    QFont font = table.font();
    font.setBold(bold);
    row->setFont(column, font);
  }
}

}  // namespace

GlanceView::GlanceView(QWidget* parent)
    : QWidget(parent), failure_(new QLabel(this)), content_(new QWidget(this)) {
  setObjectName(QStringLiteral("glance"));
  failure_->setObjectName(QStringLiteral("glanceFailure"));
  failure_->setTextFormat(Qt::PlainText);
  failure_->setWordWrap(true);
  failure_->hide();
  auto* sides = new QHBoxLayout(content_);
  sides->setContentsMargins({});
  constexpr int kChartShare = 3;
  constexpr int kTableShare = 2;
  sides->addWidget(MakeChartSide(), kChartShare);
  sides->addWidget(MakeTableSide(), kTableShare);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(failure_);
  layout->addWidget(content_);
}

QWidget* GlanceView::MakeChartSide() {
  auto* side = new QWidget(content_);
  chart_ = new YearChart(side);
  words_ = new QLabel(side);
  words_->setObjectName(QStringLiteral("chartWords"));
  words_->setTextFormat(Qt::PlainText);
  words_->setWordWrap(true);
  chart_->OnWords = [this](const QString& words) { words_->setText(words); };
  measure_ = new QComboBox(side);
  measure_->setObjectName(QStringLiteral("chartMeasure"));
  // In the order of ChartMeasure.
  measure_->addItems({tr("Assessable amounts"), tr("Assessments")});
  measure_->setAccessibleName(tr("What the chart shows"));
  connect(measure_, &QComboBox::currentIndexChanged, this, [this] { ShowChart(); });
  auto* shows = new QLabel(tr("Chart:"), side);
  auto* save = new QPushButton(tr("Save Chart..."), side);
  save->setObjectName(QStringLiteral("chartSave"));
  save->setAutoDefault(false);
  connect(save, &QPushButton::clicked, this, [this] {
    if (OnSave) {
      OnSave(chart_->Picture(), ChartTitle(glance_, chart_->Measure()) + QStringLiteral(".png"));
    }
  });
  auto* choices = new QHBoxLayout;
  choices->addWidget(shows);
  choices->addWidget(measure_);
  choices->addStretch(1);
  choices->addWidget(save);
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins({});
  column->addWidget(chart_, 1);
  column->addWidget(words_);
  column->addLayout(choices);
  return side;
}

QWidget* GlanceView::MakeTableSide() {
  auto* side = new QWidget(content_);
  totals_ = new QTreeWidget(side);
  totals_->setObjectName(QStringLiteral("yearTotals"));
  totals_->setHeaderLabels({tr("Industry"), tr("Assessable"), tr("Assessment")});
  totals_->setRootIsDecorated(false);
  totals_->setUniformRowHeights(true);
  totals_->header()->setStretchLastSection(false);
  totals_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  totals_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  for (const int column : {1, 2}) {
    totals_->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
  }
  work_ = new QListWidget(side);
  work_->setObjectName(QStringLiteral("yearWork"));
  work_->setWordWrap(true);
  work_->setToolTip(tr("Enter opens the window that an entry is about"));
  connect(work_, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
    const QByteArray entry = item->data(kMenuEntryRole).toByteArray();
    if (OnOpen && !entry.isEmpty()) {
      OnOpen(entry.constData());
    }
  });
  auto* totalsHeading = Heading(tr("Totals of the year"), side);
  totals_->setAccessibleName(tr("Totals of the year"));
  auto* workHeading = Heading(tr("What wants to be done"), side);
  work_->setAccessibleName(tr("What wants to be done"));
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins({});
  column->addWidget(totalsHeading);
  column->addWidget(totals_);
  column->addWidget(workHeading);
  column->addWidget(work_, 1);
  return side;
}

void GlanceView::Show(const YearAtAGlance& glance) {
  glance_ = glance;
  failure_->hide();
  content_->show();
  ShowChart();
  ShowTotals();
  ShowWork();
}

void GlanceView::ShowFailure(const QString& reason) {
  failure_->setText(tr("The year can't be shown. %1").arg(reason));
  failure_->show();
  content_->hide();
}

void GlanceView::ShowChart() {
  chart_->Show(glance_, static_cast<ChartMeasure>(measure_->currentIndex()));
}

void GlanceView::ShowTotals() {
  totals_->clear();
  for (const IndustrySlot slot : kAllSlots) {
    if (glance_.used[slot]) {
      AddTotal(*totals_, LegendText(glance_, slot), glance_.TotalOf(slot), false);
    }
  }
  AddTotal(*totals_, tr("Total"), glance_.Total(), true);
  // As high as its rows: it never scrolls.
  const int rows = totals_->topLevelItemCount();
  const int height = totals_->header()->sizeHint().height() + rows * totals_->sizeHintForRow(0) +
                     2 * totals_->frameWidth();
  totals_->setFixedHeight(height);
}

void GlanceView::ShowWork() {
  work_->clear();
  for (const WaitingEntries& waiting : glance_.waiting) {
    AddWork("payments", "mnuFEnterPayments", WaitingText(glance_, waiting));
  }
  for (const ClearanceDue& due : glance_.clearances) {
    AddWork(due.expired ? "warning" : "clearance", "mnuFSubContractors", ClearanceText(due));
  }
  for (const NearCeiling& near : glance_.nearCeiling) {
    AddWork(near.IsReached() ? "info" : "employee", "mnuFEmployees", CeilingText(near));
  }
  if (work_->count() == 0) {
    AddWork("ok", "", tr("Nothing: every entry is posted, and no letter expires within 30 days"));
  }
}

void GlanceView::AddWork(const char* icon, const char* menuEntry, const QString& text) {
  auto* item = new QListWidgetItem(IconOf(icon), text, work_);
  item->setData(kMenuEntryRole, QByteArray(menuEntry));
}

}  // namespace lorvane
