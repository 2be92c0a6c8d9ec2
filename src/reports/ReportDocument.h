#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "data/engine/Value.h"

namespace lorvane {

/// How a report's column shows its values.
enum class ReportFormat {
  kText,
  kMoney,   // dollars with two decimals; right-aligned
  kNumber,  // a count, rate or percentage in its shortest text; right-aligned
  kDate,    // the short form
};

enum class PageOrientation { kPortrait, kLandscape };

struct ReportColumn {
  /// Empty for a column without a heading.
  std::string heading;
  ReportFormat format = ReportFormat::kText;
  /// The share of the page's width that it wants, in points of a page whose columns just fit.
  double width = 60;
  /// Tells its rows' group: the group's heading says it on a page, where the column isn't shown.
  bool grouped = false;
};

struct ReportRow {
  enum class Kind {
    kGroup,  // the heading of the rows that follow; has no cells
    kDetail,
    kSubtotal,  // the sums of a group
    kTotal,     // the sums of a section
  };

  Kind kind = Kind::kDetail;
  /// One value a column; null shows nothing.
  std::vector<Value> cells;
  /// What a heading or a line of sums says; stands in the section's label column.
  std::string label;
};

/// A table of a report. One whose columns have no headings lists names with what they say.
struct ReportSection {
  /// Empty for none.
  std::string heading;
  std::vector<ReportColumn> columns;
  std::vector<ReportRow> rows;
  /// The column in which the labels of sums stand.
  std::size_t labelColumn = 0;
};

/// A named text of a report, as it was set.
struct ReportText {
  std::string name;
  std::string text;
};

/// A finished report as plain data: what is shown, printed, exported and tested.
struct ReportDocument {
  std::string title;
  /// The company that the report is of.
  std::string author;
  PageOrientation orientation = PageOrientation::kPortrait;
  /// Lines under the title, on each page: company, period, industry.
  std::vector<std::string> headings;
  std::vector<ReportSection> sections;
  /// Lines on the last page: how the totals were made.
  std::vector<std::string> notes;
  /// Every named text, shown or not.
  std::vector<ReportText> texts;

  /// A named text, without regard to case; null when there is none of that name.
  [[nodiscard]] const std::string* FindText(std::string_view name) const;
};

[[nodiscard]] bool IsRightAligned(const ReportColumn& column);
/// Whether any column has a heading.
[[nodiscard]] bool HasColumnHeadings(const ReportSection& section);
/// What stands in a row's cell for the reader; a label in its column.
[[nodiscard]] std::string ShownText(const ReportSection& section, const ReportRow& row,
                                    std::size_t column);

}  // namespace lorvane
