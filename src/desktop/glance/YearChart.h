#pragma once

#include <QImage>
#include <QWidget>
#include <functional>

#include "desktop/glance/ChartPainter.h"

namespace lorvane {

/// The chart of a year. The arrow keys, Home and End go from month to month; what a month comes to
/// is told as a text to whoever looks on and to a screen reader.
class YearChart : public QWidget {
 public:
  explicit YearChart(QWidget* parent);

  void Show(const YearAtAGlance& glance, ChartMeasure measure);
  [[nodiscard]] ChartMeasure Measure() const { return measure_; }
  /// Told what Words() gives whenever it may have changed.
  std::function<void(const QString& words)> OnWords;
  /// The selected month and its amounts in words; the whole year's when none is selected.
  [[nodiscard]] QString Words() const { return WordsOf(month_); }
  /// The chart on white, at twice the size of a usual screen, to be kept as a picture.
  [[nodiscard]] QImage Picture() const;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  [[nodiscard]] ChartPainter Painter() const;
  [[nodiscard]] QString WordsOf(int month) const;
  void Select(int month);

  YearAtAGlance glance_;
  ChartMeasure measure_ = ChartMeasure::kAssessable;
  int month_ = ChartPainter::kNoMonth;
};

}  // namespace lorvane
