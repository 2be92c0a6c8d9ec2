#pragma once

#include <string>
#include <vector>

#include "reports/ReportDocument.h"

namespace lorvane {

/// The report for a terminal: columns as wide as their contents, sums under a rule.
[[nodiscard]] std::string ReportAsText(const ReportDocument& report);

/// The report's tables as CSV with heading rows, an empty line between two: amounts and dates in
/// forms that other programs read. What group headings tell stands in each row.
[[nodiscard]] std::string ReportAsCsv(const ReportDocument& report);

/// The bytes of a workbook with a sheet for each table: amounts are numbers, dates are dates.
/// Raises 57 when it can't be made.
[[nodiscard]] std::string ReportAsXlsx(const ReportDocument& report);

/// One line of a CSV file, its cells quoted where they need to be, without a line end.
[[nodiscard]] std::string CsvLine(const std::vector<std::string>& cells);

}  // namespace lorvane
