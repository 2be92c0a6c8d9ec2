#include "reports/ReportDocument.h"

#include <algorithm>

#include "basic/Money.h"
#include "basic/Text.h"
#include "data/modDataAccess.h"

namespace lorvane {

const std::string* ReportDocument::FindText(std::string_view name) const {
  const auto found = std::find_if(texts.begin(), texts.end(), [&](const ReportText& text) {
    return EqualsNoCase(text.name, name);
  });
  return found == texts.end() ? nullptr : &found->text;
}

bool IsRightAligned(const ReportColumn& column) {
  return column.format == ReportFormat::kMoney || column.format == ReportFormat::kNumber;
}

bool HasColumnHeadings(const ReportSection& section) {
  return std::any_of(section.columns.begin(), section.columns.end(),
                     [](const ReportColumn& column) { return !column.heading.empty(); });
}

std::string ShownText(const ReportSection& section, const ReportRow& row, std::size_t column) {
  if (column == section.labelColumn && !row.label.empty()) {
    return row.label;
  }
  if (column >= row.cells.size()) {
    return {};
  }
  const Value& value = row.cells[column];
  if (section.columns[column].format == ReportFormat::kMoney && !IsNull(value)) {
    return Money(NullToCurrency(value));
  }
  return TextOf(value);
}

}  // namespace lorvane
