#include <algorithm>

#include "basic/Text.h"
#include "reports/ReportExports.h"

namespace lorvane {
namespace {

constexpr const char* kGap = "  ";

std::string Padded(const std::string& text, std::size_t width, bool right) {
  const std::size_t length = Length(text);
  const std::string blanks(width > length ? width - length : 0, ' ');
  return right ? blanks + text : text + blanks;
}

std::string WithoutTrailingBlanks(std::string line) {
  line.erase(line.find_last_not_of(' ') + 1);
  return line + "\n";
}

/// A table as lines of padded cells.
class TextTable {
 public:
  explicit TextTable(const ReportSection& section) : section_(section) {
    for (const ReportColumn& column : section.columns) {
      widths_.push_back(Length(column.heading));
    }
    for (const ReportRow& row : section.rows) {
      if (row.kind == ReportRow::Kind::kGroup) {
        continue;
      }
      for (std::size_t column = 0; column < widths_.size(); ++column) {
        widths_[column] = std::max(widths_[column], Length(ShownText(section, row, column)));
      }
    }
  }

  [[nodiscard]] std::string Text() const {
    std::string text;
    if (HasColumnHeadings(section_)) {
      text += WithoutTrailingBlanks(
                  Line([&](std::size_t column) { return section_.columns[column].heading; })) +
              Rule();
    }
    for (const ReportRow& row : section_.rows) {
      if (row.kind == ReportRow::Kind::kGroup) {
        continue;
      }
      text += row.kind == ReportRow::Kind::kTotal ? Rule() : "";
      text += WithoutTrailingBlanks(
          Line([&](std::size_t column) { return ShownText(section_, row, column); }));
      text += row.kind == ReportRow::Kind::kSubtotal ? "\n" : "";
    }
    return text;
  }

 private:
  template <typename TextOfColumn>
  [[nodiscard]] std::string Line(TextOfColumn textOf) const {
    std::string line;
    for (std::size_t column = 0; column < widths_.size(); ++column) {
      line += (column == 0 ? "" : kGap) +
              Padded(textOf(column), widths_[column], IsRightAligned(section_.columns[column]));
    }
    return line;
  }

  [[nodiscard]] std::string Rule() const {
    return Line([&](std::size_t column) { return std::string(widths_[column], '-'); }) + "\n";
  }

  const ReportSection& section_;
  std::vector<std::size_t> widths_;
};

}  // namespace

std::string ReportAsText(const ReportDocument& report) {
  std::string text = report.title + "\n";
  for (const std::string& heading : report.headings) {
    text += heading + "\n";
  }
  for (const ReportSection& section : report.sections) {
    text += "\n";
    if (!section.heading.empty()) {
      text += section.heading + "\n" + std::string(Length(section.heading), '=') + "\n";
    }
    text += TextTable(section).Text();
  }
  if (!report.notes.empty()) {
    text += "\n" + Join(report.notes, "\n") + "\n";
  }
  return text;
}

}  // namespace lorvane
