#pragma once

#include <QColor>
#include <QFont>
#include <cstddef>
#include <vector>

#include "print/PageFonts.h"
#include "reports/PageLayout.h"

class QPainter;

namespace lorvane {

/// Paints the pages of one report, whatever the painter paints on.
class PagePainter {
 public:
  /// Both outlive the painter of pages.
  PagePainter(const PagedReport& report, const PageFonts& fonts);

  /// Paints a page, counted from 0. The painter's unit is a PageFonts::kUnitsPerPoint'th of a point
  /// and its origin the page's upper left corner.
  void Paint(QPainter& painter, std::size_t page) const;
  /// Lays a colour under a text of a page.
  void Mark(QPainter& painter, std::size_t page, std::size_t text, const QColor& colour) const;

 private:
  [[nodiscard]] double ScaleOf(PageStyle style) const;
  /// The left end of a text, in points.
  [[nodiscard]] double LeftOf(const PlacedText& text) const;

  const PagedReport& report_;
  const PageFonts& fonts_;
  std::vector<QFont> scaledFonts_;
};

}  // namespace lorvane
