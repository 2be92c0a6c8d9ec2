#include "basic/Money.h"
#include "basic/Text.h"
#include "data/modDataAccess.h"
#include "reports/ReportExports.h"

namespace lorvane {
namespace {

std::string ExportedText(const ReportSection& section, const ReportRow& row, std::size_t column) {
  if (column < row.cells.size()) {
    const Value& value = row.cells[column];
    if (section.columns[column].format == ReportFormat::kMoney && !IsNull(value)) {
      return Plain(NullToCurrency(value));
    }
    if (const DateTime* date = std::get_if<DateTime>(&value)) {
      return IsoDate(*date);
    }
  }
  return ShownText(section, row, column);
}

std::string CsvCell(const std::string& text) {
  if (text.find_first_of("\",\r\n") == std::string::npos) {
    return text;
  }
  return "\"" + Replace(text, "\"", "\"\"") + "\"";
}

void AddSection(const ReportSection& section, std::string& text) {
  std::vector<std::string> cells;
  if (HasColumnHeadings(section)) {
    for (const ReportColumn& column : section.columns) {
      cells.push_back(column.heading);
    }
    text += CsvLine(cells) + "\n";
  }
  for (const ReportRow& row : section.rows) {
    if (row.kind == ReportRow::Kind::kGroup) {
      continue;
    }
    cells.clear();
    for (std::size_t column = 0; column < section.columns.size(); ++column) {
      cells.push_back(ExportedText(section, row, column));
    }
    text += CsvLine(cells) + "\n";
  }
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
  std::string text;
  for (const ReportSection& section : report.sections) {
    text += text.empty() ? "" : "\n";
    AddSection(section, text);
  }
  return text;
}

}  // namespace lorvane
