#include "print/PagePainter.h"

#include <QPainter>
#include <QPen>

namespace lorvane {
namespace {

constexpr double kRuleWidth = 0.5;

constexpr double Units(double points) { return points * PageFonts::kUnitsPerPoint; }

}  // namespace

PagePainter::PagePainter(const PagedReport& report, const PageFonts& fonts)
    : report_(report), fonts_(fonts) {
  for (std::size_t i = 0; i < kPageStyles; ++i) {
    const auto style = static_cast<PageStyle>(i);
    scaledFonts_.push_back(fonts.FontOf(style, ScaleOf(style)));
  }
}

double PagePainter::ScaleOf(PageStyle style) const { return IsOfTable(style) ? report_.scale : 1; }

double PagePainter::LeftOf(const PlacedText& text) const {
  if (!text.right) {
    return text.x;
  }
  return text.x + text.width - ScaleOf(text.style) * fonts_.Width(text.text, text.style);
}

void PagePainter::Paint(QPainter& painter, std::size_t page) const {
  const ReportPage& content = report_.pages[page];
  painter.setPen(QPen(Qt::darkGray, Units(kRuleWidth)));
  for (const PlacedRule& rule : content.rules) {
    painter.drawLine(QPointF(Units(rule.x), Units(rule.y)),
                     QPointF(Units(rule.x + rule.width), Units(rule.y)));
  }
  painter.setPen(Qt::black);
  for (const PlacedText& text : content.texts) {
    painter.setFont(scaledFonts_[static_cast<std::size_t>(text.style)]);
    painter.drawText(QPointF(Units(LeftOf(text)), Units(text.y + fonts_.Ascent(text.style))),
                     QString::fromStdString(text.text));
  }
}

void PagePainter::Mark(QPainter& painter, std::size_t page, std::size_t text,
                       const QColor& colour) const {
  const PlacedText& marked = report_.pages[page].texts[text];
  const double width = ScaleOf(marked.style) * fonts_.Width(marked.text, marked.style);
  painter.fillRect(QRectF(Units(LeftOf(marked)), Units(marked.y), Units(width),
                          Units(fonts_.LineHeight(marked.style))),
                   colour);
}

}  // namespace lorvane
