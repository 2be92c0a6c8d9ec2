#pragma once

#include <string>
#include <vector>

#include "data/engine/Value.h"

namespace lorvane {

/// How a report's column shows its values.
enum class ReportFormat {
  kText,
  kMoney,   // dollars with two decimals; right-aligned
  kNumber,  // a rate or percentage in its shortest text; right-aligned
  kDate,    // the short form
};

struct ReportColumn {
  std::string heading;
  ReportFormat format = ReportFormat::kText;
};

struct ReportRow {
  enum class Kind { kDetail, kSubtotal, kTotal };

  Kind kind = Kind::kDetail;
  /// One value a column; null shows nothing.
  std::vector<Value> cells;
};

/// A finished report as plain data: what is printed, exported and tested.
struct ReportDocument {
  std::string title;
  /// Lines under the title: company, period, industry.
  std::vector<std::string> headings;
  std::vector<ReportColumn> columns;
  std::vector<ReportRow> rows;
};

/// The report for a terminal: columns as wide as their contents, subtotals under a rule.
[[nodiscard]] std::string ReportAsText(const ReportDocument& report);

/// The report's table as CSV with a heading row: amounts and dates in forms that other programs
/// read.
[[nodiscard]] std::string ReportAsCsv(const ReportDocument& report);

/// One line of a CSV file, its cells quoted where they need to be, without a line end.
[[nodiscard]] std::string CsvLine(const std::vector<std::string>& cells);

}  // namespace lorvane
