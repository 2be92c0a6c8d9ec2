#include "desktop/glance/ChartPainter.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QLocale>
#include <algorithm>
#include <array>
#include <cmath>

#include "desktop/binder/QtText.h"

namespace lorvane {
namespace {

struct Look {
  QRgb colour;
  Qt::BrushStyle hatching;
};

// Six colours that people with any kind of colour vision tell apart.
constexpr std::array<Look, kAllSlots.size()> kLooks{{{0xFF0072B2, Qt::NoBrush},
                                                     {0xFFE69F00, Qt::BDiagPattern},
                                                     {0xFF009E73, Qt::HorPattern},
                                                     {0xFFD55E00, Qt::FDiagPattern},
                                                     {0xFF56B4E9, Qt::VerPattern},
                                                     {0xFFCC79A7, Qt::DiagCrossPattern}}};

// The lowest and the highest bar of a year.
ChartScale ScaleOf(const YearAtAGlance& glance, ChartMeasure measure) {
  double lowest = 0;
  double highest = 0;
  for (const YearAtAGlance::Month& month : glance.months) {
    double below = 0;
    double above = 0;
    for (const IndustrySlot slot : kAllSlots) {
      const double amount = AmountOf(month[slot], measure);
      (amount < 0 ? below : above) += amount;
    }
    lowest = std::min(lowest, below);
    highest = std::max(highest, above);
  }
  return {lowest, highest};
}

QString MarkText(double amount) { return QLocale().toString(amount, 'f', 0); }

}  // namespace

double AmountOf(const YearSums& sums, ChartMeasure measure) {
  return (measure == ChartMeasure::kAssessable ? sums.assessable : sums.assessment).ToDouble();
}

QString LegendText(const YearAtAGlance& glance, IndustrySlot slot) {
  const QString letter(QLatin1Char(LetterOf(slot)));
  const QString description = ToQt(glance.descriptions[slot]);
  return description.isEmpty() ? letter : letter + QStringLiteral("  ") + description;
}

QString ChartTitle(const YearAtAGlance& glance, ChartMeasure measure) {
  return (measure == ChartMeasure::kAssessable
              ? QCoreApplication::translate("Chart", "Assessable amounts, %1")
              : QCoreApplication::translate("Chart", "Assessments, %1"))
      .arg(glance.year);
}

ChartPainter::ChartPainter(const YearAtAGlance& glance, ChartMeasure measure, const QRectF& room,
                           const QFont& font)
    : glance_(glance),
      measure_(measure),
      scale_(ScaleOf(glance, measure)),
      font_(font),
      room_(room) {
  const QFontMetricsF metrics(font);
  double left = 0;
  for (const double mark : scale_.Marks()) {
    left = std::max(left, metrics.horizontalAdvance(MarkText(mark)));
  }
  const double line = metrics.lineSpacing();
  // The heading above; the months' names and the legend below.
  plot_ = room.adjusted(left + line / 2, 2 * line, -line / 2, -3.5 * line);
}

QRectF ChartPainter::ColumnOf(std::size_t month) const {
  const double width = plot_.width() / static_cast<double>(YearAtAGlance::kMonths);
  return {plot_.left() + width * static_cast<double>(month), plot_.top(), width, plot_.height()};
}

double ChartPainter::HeightOf(double value) const {
  return plot_.bottom() - plot_.height() * scale_.ShareOf(value);
}

int ChartPainter::MonthAt(const QPointF& point) const {
  for (std::size_t month = 0; month < YearAtAGlance::kMonths; ++month) {
    if (ColumnOf(month).contains(point)) {
      return static_cast<int>(month);
    }
  }
  return kNoMonth;
}

void ChartPainter::PaintSwatch(QPainter& painter, const QRectF& place, IndustrySlot slot,
                               const QPalette& palette) {
  const Look& look = kLooks.at(IndexOf(slot));
  painter.fillRect(place, QColor(look.colour));
  if (look.hatching != Qt::NoBrush) {
    painter.fillRect(place, QBrush(QColor(255, 255, 255, 140), look.hatching));
  }
  painter.setPen(palette.color(QPalette::WindowText));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(place);
}

void ChartPainter::Paint(QPainter& painter, const QPalette& palette, int selectedMonth) const {
  painter.setFont(font_);
  const double line = QFontMetricsF(font_).lineSpacing();
  if (selectedMonth >= 0 && selectedMonth < static_cast<int>(YearAtAGlance::kMonths)) {
    QColor ground = palette.color(QPalette::Highlight);
    constexpr double kFaint = 0.25;
    ground.setAlphaF(kFaint);
    painter.fillRect(
        ColumnOf(static_cast<std::size_t>(selectedMonth)).adjusted(0, 0, 0, 1.2 * line), ground);
  }
  painter.setPen(palette.color(QPalette::WindowText));
  QFont bold = font_;
  bold.setBold(true);
  painter.setFont(bold);
  painter.drawText(QRectF(room_.left(), room_.top(), room_.width(), 1.5 * line),
                   Qt::AlignHCenter | Qt::AlignVCenter, ChartTitle(glance_, measure_));
  painter.setFont(font_);
  PaintAxis(painter, palette);
  for (std::size_t month = 0; month < YearAtAGlance::kMonths; ++month) {
    PaintMonth(painter, palette, month);
  }
  PaintLegend(painter, palette);
  if (glance_.Total().assessable == Currency() && glance_.Total().assessment == Currency()) {
    painter.drawText(plot_, Qt::AlignCenter | Qt::TextWordWrap,
                     QCoreApplication::translate("Chart", "No payments are posted in %1 yet.")
                         .arg(glance_.year));
  }
}

void ChartPainter::PaintAxis(QPainter& painter, const QPalette& palette) const {
  const double line = QFontMetricsF(font_).lineSpacing();
  QColor faint = palette.color(QPalette::WindowText);
  constexpr double kFaint = 0.25;
  faint.setAlphaF(kFaint);
  for (const double mark : scale_.Marks()) {
    const double height = HeightOf(mark);
    painter.setPen(mark == 0 ? palette.color(QPalette::WindowText) : faint);
    painter.drawLine(QPointF(plot_.left(), height), QPointF(plot_.right(), height));
    painter.setPen(palette.color(QPalette::WindowText));
    painter.drawText(
        QRectF(room_.left(), height - line / 2, plot_.left() - room_.left() - line / 3, line),
        Qt::AlignRight | Qt::AlignVCenter, MarkText(mark));
  }
}

void ChartPainter::PaintMonth(QPainter& painter, const QPalette& palette, std::size_t month) const {
  constexpr double kGap = 0.18;
  const QFontMetricsF metrics(font_);
  const QRectF column = ColumnOf(month);
  const double inset = kGap * column.width();
  double above = 0;
  double below = 0;
  for (const IndustrySlot slot : kAllSlots) {
    const double amount = AmountOf(glance_.months.at(month)[slot], measure_);
    if (amount == 0) {
      continue;
    }
    double& stack = amount < 0 ? below : above;
    const double from = HeightOf(stack);
    stack += amount;
    const double to = HeightOf(stack);
    const QRectF bar(column.left() + inset, std::min(from, to), column.width() - 2 * inset,
                     std::abs(to - from));
    PaintSwatch(painter, bar, slot, palette);
    if (bar.height() >= metrics.height() && bar.width() >= 2 * metrics.averageCharWidth()) {
      const QRectF letter(bar.center().x() - metrics.averageCharWidth(),
                          bar.center().y() - metrics.height() / 2, 2 * metrics.averageCharWidth(),
                          metrics.height());
      painter.fillRect(letter, palette.color(QPalette::Base));
      painter.setPen(palette.color(QPalette::Text));
      painter.drawText(letter, Qt::AlignCenter, QString(QLatin1Char(LetterOf(slot))));
    }
  }
  painter.setPen(palette.color(QPalette::WindowText));
  painter.drawText(
      QRectF(column.left(), plot_.bottom() + metrics.lineSpacing() / 5, column.width(),
             metrics.lineSpacing()),
      Qt::AlignCenter,
      QLocale().standaloneMonthName(static_cast<int>(month) + 1, QLocale::ShortFormat).left(3));
}

void ChartPainter::PaintLegend(QPainter& painter, const QPalette& palette) const {
  const QFontMetricsF metrics(font_);
  const double line = metrics.lineSpacing();
  const auto count = static_cast<double>(std::count_if(
      kAllSlots.begin(), kAllSlots.end(), [&](IndustrySlot slot) { return glance_.used[slot]; }));
  if (count == 0) {
    return;
  }
  const double width = room_.width() / count;
  double left = room_.left();
  for (const IndustrySlot slot : kAllSlots) {
    if (!glance_.used[slot]) {
      continue;
    }
    const QRectF swatch(left + line / 4, room_.bottom() - 1.35 * line, line, 0.8 * line);
    PaintSwatch(painter, swatch, slot, palette);
    const QRectF words(swatch.right() + line / 3, room_.bottom() - 1.5 * line,
                       left + width - swatch.right() - line / 2, 1.1 * line);
    painter.setPen(palette.color(QPalette::WindowText));
    painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter,
                     metrics.elidedText(LegendText(glance_, slot), Qt::ElideRight, words.width()));
    left += width;
  }
}

}  // namespace lorvane
