#include <algorithm>

#include "basic/Number.h"
#include "basic/Text.h"
#include "data/modDataAccess.h"
#include "reports/ReportDocument.h"

namespace lorvane {
namespace {

constexpr const char* kGap = "  ";

bool IsRightAligned(const ReportColumn& column) {
  return column.format == ReportFormat::kMoney || column.format == ReportFormat::kNumber;
}

std::string ShownText(const ReportColumn& column, const Value& value) {
  if (column.format == ReportFormat::kMoney && !IsNull(value)) {
    return Money(NullToCurrency(value).ToDouble());
  }
  return TextOf(value);
}

std::string Padded(const std::string& text, std::size_t width, bool right) {
  const std::size_t length = Length(text);
  const std::string blanks(width > length ? width - length : 0, ' ');
  return right ? blanks + text : text + blanks;
}

std::string WithoutTrailingBlanks(std::string line) {
  line.erase(line.find_last_not_of(' ') + 1);
  return line + "\n";
}

}  // namespace

std::string ReportAsText(const ReportDocument& report) {
  std::vector<std::size_t> widths;
  for (const ReportColumn& column : report.columns) {
    widths.push_back(Length(column.heading));
  }
  std::vector<std::vector<std::string>> lines;
  for (const ReportRow& row : report.rows) {
    std::vector<std::string>& line = lines.emplace_back();
    for (std::size_t i = 0; i < report.columns.size(); ++i) {
      line.push_back(ShownText(report.columns[i], row.cells[i]));
      widths[i] = std::max(widths[i], Length(line.back()));
    }
  }

  std::string text = report.title + "\n";
  for (const std::string& heading : report.headings) {
    text += heading + "\n";
  }
  std::string head;
  std::string rule;
  for (std::size_t i = 0; i < report.columns.size(); ++i) {
    const char* gap = i == 0 ? "" : kGap;
    head += gap + Padded(report.columns[i].heading, widths[i], IsRightAligned(report.columns[i]));
    rule += gap + std::string(widths[i], '-');
  }
  text += "\n" + WithoutTrailingBlanks(head) + rule + "\n";
  for (std::size_t row = 0; row < lines.size(); ++row) {
    std::string line;
    for (std::size_t i = 0; i < report.columns.size(); ++i) {
      line += (i == 0 ? "" : kGap) +
              Padded(lines[row][i], widths[i], IsRightAligned(report.columns[i]));
    }
    const ReportRow::Kind kind = report.rows[row].kind;
    text += (kind == ReportRow::Kind::kTotal ? rule + "\n" : "") + WithoutTrailingBlanks(line);
    text += kind == ReportRow::Kind::kSubtotal ? "\n" : "";
  }
  return text;
}

}  // namespace lorvane
