#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "reports/ReportDocument.h"

namespace lorvane {

/// Kinds of text on a page; whoever paints gives each a font.
enum class PageStyle {
  kTitle,
  kHeading,        // the lines under the title
  kSection,        // a table's own heading
  kColumnHeading,  // above a column
  kGroup,
  kBody,
  kSum,   // a line of sums
  kNote,  // the last page's notes and the foot of each page
};

inline constexpr std::size_t kPageStyles = 8;

/// Whether texts of this style stand in tables, where a report's scale counts.
[[nodiscard]] bool IsOfTable(PageStyle style);
/// The size in points and the weight in which a style is painted.
[[nodiscard]] double PointSizeOf(PageStyle style);
[[nodiscard]] bool IsBold(PageStyle style);

/// Measures text for the layout, in points.
class TextMeasure {
 public:
  TextMeasure() = default;
  TextMeasure(const TextMeasure&) = delete;
  TextMeasure& operator=(const TextMeasure&) = delete;
  virtual ~TextMeasure() = default;

  [[nodiscard]] virtual double Width(std::string_view text, PageStyle style) const = 0;
  [[nodiscard]] virtual double LineHeight(PageStyle style) const = 0;
};

/// A line of text in a box of a page; `x` and `y` are the box's upper left corner, from that of the
/// page. The text fits the box's width.
struct PlacedText {
  double x = 0;
  double y = 0;
  double width = 0;
  PageStyle style = PageStyle::kBody;
  bool right = false;
  std::string text;
};

/// A horizontal rule.
struct PlacedRule {
  double x = 0;
  double y = 0;
  double width = 0;
};

struct ReportPage {
  std::vector<PlacedText> texts;
  std::vector<PlacedRule> rules;
};

/// A report on letter paper, in points.
struct PagedReport {
  double width = 0;
  double height = 0;
  /// How much smaller than measured the texts of tables are painted, 1 as a rule: amounts are never
  /// cut, so that a table of very large ones shrinks.
  double scale = 1;
  std::vector<ReportPage> pages;
};

/// Places a report on pages: title, headings and the headings of columns on each, group headings
/// with their first row and again where a group goes on, page numbers at the foot. Long texts wrap,
/// and are cut with an ellipsis only where they would fill more than a dozen lines. Nothing
/// overlaps.
[[nodiscard]] PagedReport LayOut(const ReportDocument& report, const TextMeasure& measure);

}  // namespace lorvane
