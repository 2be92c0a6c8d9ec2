#include "reports/ColumnPlan.h"

#include <algorithm>

#include "basic/Text.h"

namespace lorvane {
namespace {

constexpr double kGap = 6;
constexpr double kLeastTextWidth = 28;

struct Wish {
  std::size_t column = 0;
  double wanted = 0;
  /// What the column needs however little room there is.
  double needed = 0;
  /// What a text needs so that none of its words is broken; 0 for others, which are never cut.
  double unbroken = 0;
  bool settled = false;
  double width = 0;
};

bool IsWrapped(const ReportColumn& column) { return column.format == ReportFormat::kText; }

// The width of the longest text of a column that is never cut.
double NeededBy(const ReportSection& section, std::size_t column, const TextMeasure& measure) {
  std::string longest;
  std::string longestSum;
  for (const ReportRow& row : section.rows) {
    if (row.kind == ReportRow::Kind::kGroup || column >= row.cells.size() ||
        IsNull(row.cells[column])) {
      continue;
    }
    std::string text = ShownText(section, row, column);
    std::string& kept = row.kind == ReportRow::Kind::kDetail ? longest : longestSum;
    if (text.size() > kept.size()) {
      kept = std::move(text);
    }
  }
  return std::max(measure.Width(longest, PageStyle::kBody),
                  measure.Width(longestSum, PageStyle::kSum));
}

double WidestWord(const std::string& text, PageStyle style, const TextMeasure& measure) {
  double widest = 0;
  for (const std::string& word : Split(text, ' ')) {
    widest = std::max(widest, measure.Width(word, style));
  }
  return widest;
}

// The width of the widest word of a column of texts.
double UnbrokenBy(const ReportSection& section, std::size_t column, const TextMeasure& measure) {
  double widest = WidestWord(section.columns[column].heading, PageStyle::kColumnHeading, measure);
  const std::string* last = nullptr;
  std::string text;
  for (const ReportRow& row : section.rows) {
    if (row.kind != ReportRow::Kind::kDetail) {
      continue;
    }
    std::string shown = ShownText(section, row, column);
    // Neighbours often say the same.
    if (last == nullptr || shown != *last) {
      text = std::move(shown);
      last = &text;
      widest = std::max(widest, WidestWord(text, PageStyle::kBody, measure));
    }
  }
  return widest;
}

// Words stay whole where all of them can.
void KeepWordsWhole(std::vector<Wish>& wishes, double room) {
  double wanted = 0;
  for (const Wish& wish : wishes) {
    wanted += std::max(wish.needed, wish.unbroken);
  }
  if (wanted <= room) {
    for (Wish& wish : wishes) {
      wish.needed = std::max(wish.needed, wish.unbroken);
    }
  }
}

// Gives every column its share of the room; one that needs more than its share gets what it needs.
void Share(std::vector<Wish>& wishes, double room) {
  for (bool again = true; again;) {
    again = false;
    double left = room;
    double wanted = 0;
    for (const Wish& wish : wishes) {
      left -= wish.settled ? wish.needed : 0;
      wanted += wish.settled ? 0 : wish.wanted;
    }
    for (Wish& wish : wishes) {
      if (!wish.settled) {
        wish.width = wanted > 0 ? wish.wanted / wanted * left : 0;
        if (wish.width < wish.needed) {
          wish.width = wish.needed;
          wish.settled = true;
          again = true;
        }
      }
    }
  }
}

}  // namespace

PageStyle StyleOfRow(const ReportRow& row) {
  return row.kind == ReportRow::Kind::kDetail ? PageStyle::kBody : PageStyle::kSum;
}

ColumnPlan PlanColumns(const ReportSection& section, double x, double width, double scale,
                       const TextMeasure& measure) {
  std::vector<Wish> wishes;
  double needed = 0;
  double texts = 0;
  for (std::size_t column = 0; column < section.columns.size(); ++column) {
    const ReportColumn& design = section.columns[column];
    if (design.grouped) {
      continue;
    }
    Wish& wish = wishes.emplace_back(Wish{column, design.width});
    if (IsWrapped(design)) {
      wish.needed = std::min(kLeastTextWidth, design.width);
      wish.unbroken = scale * UnbrokenBy(section, column, measure);
      texts += wish.needed;
    } else {
      wish.needed = scale * NeededBy(section, column, measure);
      needed += wish.needed;
    }
  }
  ColumnPlan plan;
  if (wishes.empty()) {
    return plan;
  }
  const double room = width - kGap * static_cast<double>(wishes.size() - 1);
  if (needed + texts > room) {
    plan.scale = (room - texts) / needed;
  }
  KeepWordsWhole(wishes, room);
  Share(wishes, room);
  for (const Wish& wish : wishes) {
    plan.places.push_back({wish.column, x, wish.width});
    x += wish.width + kGap;
  }
  return plan;
}

}  // namespace lorvane
