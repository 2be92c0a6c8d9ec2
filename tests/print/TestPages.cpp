#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <cmath>

#include "print/PageFonts.h"
#include "print/PagePainter.h"

namespace lorvane {
namespace {

constexpr PageStyle kBody = PageStyle::kBody;

double PaintedWidth(const PageFonts& fonts, const QString& text, PageStyle style) {
  return QFontMetricsF(fonts.FontOf(style, 1)).horizontalAdvance(text) / PageFonts::kUnitsPerPoint;
}

// The layout trusts the measure: what is measured is what is painted, whatever the letters.
TEST(PageFonts, MeasureTextsAsTheyArePainted) {
  const PageFonts fonts;
  for (const char* text : {"AVAVA To Ty 1,234.50", "Geneviève O'Brien", "Łódź", "日本", ""}) {
    for (std::size_t i = 0; i < kPageStyles; ++i) {
      const auto style = static_cast<PageStyle>(i);
      EXPECT_NEAR(fonts.Width(text, style), PaintedWidth(fonts, QString::fromUtf8(text), style),
                  0.05)
          << text;
    }
  }
  EXPECT_GT(fonts.LineHeight(PageStyle::kTitle), fonts.LineHeight(kBody));
  EXPECT_LT(fonts.Ascent(kBody), fonts.LineHeight(kBody));
}

QRect InkOf(const QImage& image) {
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qGray(image.pixel(x, y)) < 128) {
        ink |= QRect(x, y, 1, 1);
      }
    }
  }
  return ink;
}

// Painted at two pixels to the point.
QRect InkOfText(const PlacedText& text, double scale) {
  PagedReport report;
  report.scale = scale;
  report.pages.push_back({{text}, {}});
  const PageFonts fonts;
  QImage image(400, 100, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.scale(2.0 / PageFonts::kUnitsPerPoint, 2.0 / PageFonts::kUnitsPerPoint);
  PagePainter(report, fonts).Paint(painter, 0);
  painter.end();
  return InkOf(image);
}

TEST(PagePainter, KeepsTextsInTheirBoxes) {
  const PlacedText left{20, 10, 100, kBody, false, "12,345.00"};
  PlacedText right = left;
  right.right = true;
  const QRect atLeft = InkOfText(left, 1);
  const QRect atRight = InkOfText(right, 1);
  EXPECT_NEAR(atLeft.left(), 40, 2);
  EXPECT_NEAR(atRight.right(), 240, 2);
  EXPECT_NEAR(atLeft.width(), atRight.width(), 1);
  EXPECT_GE(atLeft.top(), 20);

  // A table that is painted smaller keeps its edges.
  const QRect smaller = InkOfText(right, 0.5);
  EXPECT_NEAR(smaller.right(), 240, 2);
  EXPECT_NEAR(smaller.width(), atRight.width() / 2.0, 2);
  PlacedText title = right;
  title.style = PageStyle::kTitle;
  EXPECT_EQ(InkOfText(title, 0.5).width(), InkOfText(title, 1).width());
}

TEST(PagePainter, MarksATextAndNothingElse) {
  PagedReport report;
  report.pages.push_back({{{20, 10, 100, kBody, true, "12.00"}}, {}});
  const PageFonts fonts;
  QImage image(400, 100, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.scale(2.0 / PageFonts::kUnitsPerPoint, 2.0 / PageFonts::kUnitsPerPoint);
  PagePainter(report, fonts).Mark(painter, 0, 0, Qt::black);
  painter.end();
  const QRect marked = InkOf(image);
  EXPECT_NEAR(marked.right(), 240, 1);
  EXPECT_NEAR(marked.width(), 2 * fonts.Width("12.00", kBody), 2);
  EXPECT_NEAR(marked.height(), 2 * fonts.LineHeight(kBody), 2);
}

}  // namespace
}  // namespace lorvane
