#include "reports/PageLayout.h"

#include <algorithm>
#include <utility>

#include "reports/ColumnPlan.h"
#include "reports/TextWrap.h"

namespace lorvane {
namespace {

constexpr double kLetterShort = 612;
constexpr double kLetterLong = 792;
constexpr double kMargin = 40;
constexpr double kSmallGap = 3;
constexpr double kGapBetween = 10;
constexpr std::size_t kMostHeadingLines = 3;
constexpr std::size_t kMostCellLines = 12;

/// Texts and rules that stay together, placed from the upper edge of the block.
struct Block {
  std::vector<PlacedText> texts;
  std::vector<PlacedRule> rules;
  double height = 0;
};

class Layout {
 public:
  Layout(const ReportDocument& report, const TextMeasure& measure)
      : report_(report), measure_(measure) {
    const bool portrait = report.orientation == PageOrientation::kPortrait;
    paged_.width = portrait ? kLetterShort : kLetterLong;
    paged_.height = portrait ? kLetterLong : kLetterShort;
    width_ = paged_.width - 2 * kMargin;
    bottom_ = paged_.height - kMargin - measure.LineHeight(PageStyle::kNote) - kSmallGap;
  }

  PagedReport LayOut() {
    PlanTables();
    header_ = MakeHeader();
    BeginPage();
    for (std::size_t i = 0; i < report_.sections.size(); ++i) {
      PlaceSection(report_.sections[i], plans_[i]);
    }
    PlaceNotes();
    NumberPages();
    return std::move(paged_);
  }

 private:
  void PlanTables() {
    const auto planAll = [&] {
      plans_.clear();
      double scale = 1;
      for (const ReportSection& section : report_.sections) {
        plans_.push_back(PlanColumns(section, kMargin, width_, paged_.scale, measure_));
        scale = std::min(scale, plans_.back().scale);
      }
      return scale;
    };
    paged_.scale = planAll();
    if (paged_.scale < 1) {
      planAll();
    }
  }

  [[nodiscard]] std::vector<std::string> Wrap(const std::string& text, double width,
                                              PageStyle style, std::size_t mostLines) const {
    const double scale = IsOfTable(style) ? paged_.scale : 1;
    return WrapText(text, width, mostLines,
                    [&](std::string_view line) { return scale * measure_.Width(line, style); });
  }

  // Adds lines at the left of a box, one below the other; the block grows with them.
  void AddLines(Block& block, double x, double y, double width, PageStyle style,
                std::vector<std::string> lines, bool right = false) const {
    for (std::string& line : lines) {
      block.texts.push_back({x, y, width, style, right, std::move(line)});
      y += measure_.LineHeight(style);
    }
    block.height = std::max(block.height, y);
  }

  [[nodiscard]] Block MakeHeader() const {
    Block header;
    AddLines(header, kMargin, 0, width_, PageStyle::kTitle,
             Wrap(report_.title, width_, PageStyle::kTitle, kMostHeadingLines));
    for (const std::string& heading : report_.headings) {
      AddLines(header, kMargin, header.height, width_, PageStyle::kHeading,
               Wrap(heading, width_, PageStyle::kHeading, kMostHeadingLines));
    }
    header.height += kSmallGap;
    header.rules.push_back({kMargin, header.height, width_});
    header.height += kGapBetween;
    return header;
  }

  void BeginPage() {
    paged_.pages.emplace_back();
    y_ = kMargin;
    Place(header_);
    pageIsFresh_ = true;
  }

  void Place(const Block& block) {
    ReportPage& page = paged_.pages.back();
    for (const PlacedText& text : block.texts) {
      page.texts.push_back(text);
      page.texts.back().y += y_;
    }
    for (const PlacedRule& rule : block.rules) {
      page.rules.push_back(rule);
      page.rules.back().y += y_;
    }
    y_ += block.height;
    pageIsFresh_ = false;
  }

  [[nodiscard]] bool HasRoom(double height) const { return y_ + height <= bottom_; }

  [[nodiscard]] Block MakeSectionHeading(const ReportSection& section) const {
    Block block;
    if (!section.heading.empty()) {
      AddLines(block, kMargin, 0, width_, PageStyle::kSection,
               Wrap(section.heading, width_, PageStyle::kSection, kMostHeadingLines));
      block.height += kSmallGap;
    }
    return block;
  }

  [[nodiscard]] Block MakeColumnHeadings(const ReportSection& section,
                                         const ColumnPlan& plan) const {
    Block block;
    if (!HasColumnHeadings(section)) {
      return block;
    }
    for (const ColumnPlan::Place& place : plan.places) {
      const ReportColumn& column = section.columns[place.column];
      AddLines(block, place.x, 0, place.width, PageStyle::kColumnHeading,
               Wrap(column.heading, place.width, PageStyle::kColumnHeading, kMostHeadingLines),
               IsRightAligned(column));
    }
    block.rules.push_back({kMargin, block.height + 1, width_});
    block.height += kSmallGap;
    return block;
  }

  [[nodiscard]] Block MakeGroup(const std::string& label) const {
    Block block;
    AddLines(block, kMargin, kSmallGap, width_, PageStyle::kGroup,
             Wrap(label, width_, PageStyle::kGroup, kMostHeadingLines));
    return block;
  }

  // The label of sums reaches from the margin to the first of them.
  [[nodiscard]] double LabelEnd(const ReportSection& section, const ColumnPlan& plan,
                                const ReportRow& row) const {
    for (const ColumnPlan::Place& place : plan.places) {
      if (place.column != section.labelColumn && place.column < row.cells.size() &&
          !IsNull(row.cells[place.column])) {
        return place.x - kSmallGap;
      }
    }
    return kMargin + width_;
  }

  [[nodiscard]] Block MakeDetail(const ReportSection& section, const ColumnPlan& plan,
                                 const ReportRow& row) const {
    Block block;
    AddCells(block, 0, section, plan, row);
    block.height = std::max(block.height, measure_.LineHeight(PageStyle::kBody));
    return block;
  }

  [[nodiscard]] Block MakeSums(const ReportSection& section, const ColumnPlan& plan,
                               const ReportRow& row) const {
    Block block;
    const double end = LabelEnd(section, plan, row);
    const double from = row.kind == ReportRow::Kind::kTotal ? kMargin : end;
    block.rules.push_back({from, 1, kMargin + width_ - from});
    AddLines(block, kMargin, kSmallGap, end - kMargin, PageStyle::kSum,
             Wrap(row.label, end - kMargin, PageStyle::kSum, kMostCellLines));
    AddCells(block, kSmallGap, section, plan, row);
    block.height += kSmallGap;
    return block;
  }

  void AddCells(Block& block, double top, const ReportSection& section, const ColumnPlan& plan,
                const ReportRow& row) const {
    const PageStyle style = StyleOfRow(row);
    for (const ColumnPlan::Place& place : plan.places) {
      if (!row.label.empty() && place.column == section.labelColumn) {
        continue;
      }
      std::string text = ShownText(section, row, place.column);
      if (text.empty()) {
        continue;
      }
      const ReportColumn& column = section.columns[place.column];
      std::vector<std::string> lines;
      if (column.format == ReportFormat::kText) {
        lines = Wrap(text, place.width, style, kMostCellLines);
      } else {
        lines.push_back(std::move(text));
      }
      AddLines(block, place.x, top, place.width, style, std::move(lines), IsRightAligned(column));
    }
  }

  [[nodiscard]] Block MakeRow(const ReportSection& section, const ColumnPlan& plan,
                              const ReportRow& row) const {
    return row.kind == ReportRow::Kind::kDetail ? MakeDetail(section, plan, row)
                                                : MakeSums(section, plan, row);
  }

  void PlaceSection(const ReportSection& section, const ColumnPlan& plan) {
    const Block heading = MakeSectionHeading(section);
    const Block columns = MakeColumnHeadings(section, plan);
    std::vector<ReportRow>::const_iterator row = section.rows.begin();
    // A heading is never the last thing on a page.
    double first = 0;
    if (row != section.rows.end()) {
      first = HeightOfStart(section, plan, row);
    }
    if (!HasRoom(heading.height + columns.height + first) && !pageIsFresh_) {
      BeginPage();
    }
    Place(heading);
    Place(columns);
    const std::string* group = nullptr;
    for (; row != section.rows.end(); ++row) {
      PlaceRow(section, plan, columns, row, group);
    }
    y_ += kGapBetween;
  }

  // The height of a row, or of a group's heading with its first row.
  [[nodiscard]] double HeightOfStart(const ReportSection& section, const ColumnPlan& plan,
                                     std::vector<ReportRow>::const_iterator row) const {
    double height = 0;
    if (row->kind == ReportRow::Kind::kGroup) {
      height = MakeGroup(row->label).height;
      ++row;
    }
    return row == section.rows.end() ? height : height + MakeRow(section, plan, *row).height;
  }

  void PlaceRow(const ReportSection& section, const ColumnPlan& plan, const Block& columns,
                std::vector<ReportRow>::const_iterator row, const std::string*& group) {
    const bool startsGroup = row->kind == ReportRow::Kind::kGroup;
    const Block block = startsGroup ? MakeGroup(row->label) : MakeRow(section, plan, *row);
    const double needed = startsGroup ? HeightOfStart(section, plan, row) : block.height;
    if (row->kind == ReportRow::Kind::kTotal) {
      group = nullptr;
    }
    if (!HasRoom(needed)) {
      BeginPage();
      Place(columns);
      if (!startsGroup && group != nullptr) {
        Place(MakeGroup(*group + " (continued)"));
      }
    }
    Place(block);
    if (startsGroup) {
      group = &row->label;
    }
  }

  void PlaceNotes() {
    Block notes;
    for (const std::string& note : report_.notes) {
      AddLines(notes, kMargin, notes.height, width_, PageStyle::kNote,
               Wrap(note, width_, PageStyle::kNote, kMostCellLines));
    }
    if (!HasRoom(notes.height) && !pageIsFresh_) {
      BeginPage();
    }
    Place(notes);
  }

  void NumberPages() {
    const double y = bottom_ + kSmallGap;
    const std::string last = " of " + std::to_string(paged_.pages.size());
    for (std::size_t i = 0; i < paged_.pages.size(); ++i) {
      paged_.pages[i].texts.push_back(
          {kMargin, y, width_, PageStyle::kNote, true, "Page " + std::to_string(i + 1) + last});
    }
  }

  const ReportDocument& report_;
  const TextMeasure& measure_;
  PagedReport paged_;
  std::vector<ColumnPlan> plans_;
  Block header_;
  double width_ = 0;
  double bottom_ = 0;
  double y_ = 0;
  /// Nothing but the header stands on the page.
  bool pageIsFresh_ = true;
};

}  // namespace

bool IsOfTable(PageStyle style) {
  return style == PageStyle::kColumnHeading || style == PageStyle::kGroup ||
         style == PageStyle::kBody || style == PageStyle::kSum;
}

double PointSizeOf(PageStyle style) {
  constexpr double kTitleSize = 15;
  constexpr double kSectionSize = 11;
  constexpr double kHeadingSize = 10;
  constexpr double kNoteSize = 8;
  constexpr double kTableSize = 8.5;
  switch (style) {
    case PageStyle::kTitle:
      return kTitleSize;
    case PageStyle::kSection:
      return kSectionSize;
    case PageStyle::kHeading:
      return kHeadingSize;
    case PageStyle::kNote:
      return kNoteSize;
    default:
      return kTableSize;
  }
}

bool IsBold(PageStyle style) {
  return style != PageStyle::kHeading && style != PageStyle::kBody && style != PageStyle::kNote;
}

PagedReport LayOut(const ReportDocument& report, const TextMeasure& measure) {
  return Layout(report, measure).LayOut();
}

}  // namespace lorvane
