#pragma once

#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QRectF>
#include <QString>
#include <cstddef>

#include "desktop/glance/ChartScale.h"
#include "glance/YearAtAGlance.h"

namespace lorvane {

/// What of the payments a chart shows.
enum class ChartMeasure { kAssessable, kAssessment };

/// The measure's dollars.
[[nodiscard]] double AmountOf(const YearSums& sums, ChartMeasure measure);
/// The heading of a chart: "Assessable amounts, 2026".
[[nodiscard]] QString ChartTitle(const YearAtAGlance& glance, ChartMeasure measure);

/// An industry's letter and description: "A  Roofing".
[[nodiscard]] QString LegendText(const YearAtAGlance& glance, IndustrySlot slot);

/// Paints a year as one bar a month, an industry on top of the other. Each industry has a colour, a
/// hatching and its letter, so that none stands by its colour alone.
class ChartPainter {
 public:
  /// No month is selected.
  static constexpr int kNoMonth = -1;

  /// Lays the chart out; the year outlives this object.
  ChartPainter(const YearAtAGlance& glance, ChartMeasure measure, const QRectF& room,
               const QFont& font);

  void Paint(QPainter& painter, const QPalette& palette, int selectedMonth) const;
  /// The month whose column holds the point, from 0; kNoMonth beside them.
  [[nodiscard]] int MonthAt(const QPointF& point) const;
  /// A small sample of an industry's look.
  static void PaintSwatch(QPainter& painter, const QRectF& place, IndustrySlot slot,
                          const QPalette& palette);

 private:
  [[nodiscard]] QRectF ColumnOf(std::size_t month) const;
  [[nodiscard]] double HeightOf(double value) const;
  void PaintAxis(QPainter& painter, const QPalette& palette) const;
  void PaintMonth(QPainter& painter, const QPalette& palette, std::size_t month) const;
  void PaintLegend(QPainter& painter, const QPalette& palette) const;

  const YearAtAGlance& glance_;
  ChartMeasure measure_;
  ChartScale scale_;
  QFont font_;
  QRectF room_;
  QRectF plot_;
};

}  // namespace lorvane
