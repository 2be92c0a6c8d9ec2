#include "basic/Money.h"
#include "basic/Text.h"
#include "data/modDataAccess.h"
#include "reports/ReportDocument.h"

namespace lorvane {
namespace {

std::string ExportedText(const ReportColumn& column, const Value& value) {
  if (column.format == ReportFormat::kMoney && !IsNull(value)) {
    return Plain(NullToCurrency(value).ToDouble());
  }
  if (const DateTime* date = std::get_if<DateTime>(&value)) {
    return IsoDate(*date);
  }
  return TextOf(value);
}

std::string CsvCell(const std::string& text) {
  if (text.find_first_of("\",\r\n") == std::string::npos) {
    return text;
  }
  return "\"" + Replace(text, "\"", "\"\"") + "\"";
}

}  // namespace

std::string CsvLine(const std::vector<std::string>& cells) {
  std::vector<std::string> quoted;
  quoted.reserve(cells.size());
  for (const std::string& cell : cells) {
    quoted.push_back(CsvCell(cell));
  }
  return Join(quoted, ",");
}

std::string ReportAsCsv(const ReportDocument& report) {
  std::vector<std::string> cells;
  cells.reserve(report.columns.size());
  for (const ReportColumn& column : report.columns) {
    cells.push_back(column.heading);
  }
  std::string text = CsvLine(cells) + "\n";
  for (const ReportRow& row : report.rows) {
    cells.clear();
    for (std::size_t i = 0; i < report.columns.size(); ++i) {
      cells.push_back(ExportedText(report.columns[i], row.cells[i]));
    }
    text += CsvLine(cells) + "\n";
  }
  return text;
}

}  // namespace lorvane
