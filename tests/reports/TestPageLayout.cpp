#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "basic/Text.h"
#include "reports/PageLayout.h"

namespace lorvane {
namespace {

/// Every character is half as wide as its style is high.
class CountingMeasure : public TextMeasure {
 public:
  [[nodiscard]] double Width(std::string_view text, PageStyle style) const override {
    ++calls;
    return static_cast<double>(Length(text)) * PointSizeOf(style) / 2;
  }
  [[nodiscard]] double LineHeight(PageStyle style) const override { return PointSizeOf(style); }

  mutable std::size_t calls = 0;
};

ReportDocument MakeReport(int groups, int rowsOfGroup, const std::string& text = "some text") {
  ReportDocument report;
  report.title = "A Report";
  report.headings = {"Tern Ltd", "From: here To: there"};
  report.notes = {"Rows: many."};
  ReportSection& section = report.sections.emplace_back();
  section.columns = {{"Payee", ReportFormat::kText, 80, true},
                     {"Text", ReportFormat::kText, 120},
                     {"Amount", ReportFormat::kMoney, 80}};
  for (int group = 1; group <= groups; ++group) {
    const std::string name = "Payee " + std::to_string(group);
    section.rows.push_back({ReportRow::Kind::kGroup, {}, name});
    for (int row = 0; row < rowsOfGroup; ++row) {
      section.rows.push_back(
          {ReportRow::Kind::kDetail, {name, text, Currency::FromDouble(row)}, {}});
    }
    section.rows.push_back(
        {ReportRow::Kind::kSubtotal, {Value(), Value(), Currency::FromDouble(1)}, "Total " + name});
  }
  section.rows.push_back(
      {ReportRow::Kind::kTotal, {Value(), Value(), Currency::FromDouble(2)}, "Total of all"});
  return report;
}

// Where a text begins and ends as it is painted.
struct Extent {
  double left;
  double right;
  double top;
  double bottom;
};

Extent ExtentOf(const PlacedText& text, double scale) {
  const bool ofTable = text.style == PageStyle::kBody || text.style == PageStyle::kSum ||
                       text.style == PageStyle::kGroup || text.style == PageStyle::kColumnHeading;
  const double width = CountingMeasure().Width(text.text, text.style) * (ofTable ? scale : 1);
  const double left = text.right ? text.x + text.width - width : text.x;
  return {left, left + width, text.y, text.y + CountingMeasure().LineHeight(text.style)};
}

void ExpectNothingOverlaps(const PagedReport& paged) {
  constexpr double kTolerance = 0.01;
  for (const ReportPage& page : paged.pages) {
    std::vector<Extent> extents;
    for (const PlacedText& text : page.texts) {
      extents.push_back(ExtentOf(text, paged.scale));
      const Extent& own = extents.back();
      EXPECT_GE(own.left, 36 - kTolerance) << text.text;
      EXPECT_LE(own.right, paged.width - 36 + kTolerance) << text.text;
      EXPECT_LE(own.bottom, paged.height - 18) << text.text;
    }
    for (std::size_t i = 0; i < extents.size(); ++i) {
      for (std::size_t k = i + 1; k < extents.size(); ++k) {
        const bool apart = extents[i].right <= extents[k].left + kTolerance ||
                           extents[k].right <= extents[i].left + kTolerance ||
                           extents[i].bottom <= extents[k].top + kTolerance ||
                           extents[k].bottom <= extents[i].top + kTolerance;
        EXPECT_TRUE(apart) << page.texts[i].text << " and " << page.texts[k].text;
      }
    }
  }
}

int CountOf(const ReportPage& page, const std::string& text) {
  return static_cast<int>(
      std::count_if(page.texts.begin(), page.texts.end(),
                    [&](const PlacedText& placed) { return placed.text == text; }));
}

TEST(PageLayout, EveryPageHasItsHeadingsAndNumber) {
  const PagedReport paged = LayOut(MakeReport(20, 9), CountingMeasure());
  ASSERT_GT(paged.pages.size(), 2U);
  const std::string count = std::to_string(paged.pages.size());
  for (std::size_t i = 0; i < paged.pages.size(); ++i) {
    for (const char* text : {"A Report", "Tern Ltd", "From: here To: there", "Text", "Amount"}) {
      EXPECT_EQ(CountOf(paged.pages[i], text), 1) << text;
    }
    EXPECT_EQ(CountOf(paged.pages[i], "Payee"), 0);
    EXPECT_EQ(CountOf(paged.pages[i], "Page " + std::to_string(i + 1) + " of " + count), 1);
    EXPECT_EQ(CountOf(paged.pages[i], "Rows: many."), i + 1 == paged.pages.size() ? 1 : 0);
  }
  ExpectNothingOverlaps(paged);
}

TEST(PageLayout, AGroupsHeadingIsNeverLastAndComesAgainWhereTheGroupGoesOn) {
  int continued = 0;
  for (int rows = 1; rows < 40; ++rows) {
    const PagedReport paged = LayOut(MakeReport(9, rows), CountingMeasure());
    for (const ReportPage& page : paged.pages) {
      // The page's number comes last of all.
      const PlacedText& last = page.texts[page.texts.size() - 2];
      EXPECT_NE(last.style, PageStyle::kGroup) << rows;
      const auto first = std::find_if(page.texts.begin(), page.texts.end(), [](const auto& text) {
        return text.style == PageStyle::kBody || text.style == PageStyle::kSum ||
               text.style == PageStyle::kGroup;
      });
      if (first != page.texts.end()) {
        EXPECT_TRUE(first->style == PageStyle::kGroup || first->text == "Total of all")
            << first->text;
        continued += first->text.ends_with(" (continued)") ? 1 : 0;
      }
    }
    ExpectNothingOverlaps(paged);
  }
  EXPECT_GT(continued, 20);
}

TEST(PageLayout, LongTextsWrapAndAreCutOnlyWhenTheyAreEndless) {
  const std::string words =
      "one two three four five six seven eight nine ten eleven twelve "
      "thirteen fourteen fifteen sixteen seventeen eighteen nineteen twenty "
      "twenty-one twenty-two twenty-three twenty-four twenty-five";
  const PagedReport wrapped = LayOut(MakeReport(1, 3, words), CountingMeasure());
  std::string found;
  for (const PlacedText& text : wrapped.pages[0].texts) {
    if (text.style == PageStyle::kBody && !text.right) {
      found += (found.empty() ? "" : " ") + text.text;
    }
  }
  EXPECT_EQ(found, words + " " + words + " " + words);
  ExpectNothingOverlaps(wrapped);

  for (const std::string& endless :
       {std::string(4000, 'x'), Replace(std::string(2000, 'y'), "y", "y ")}) {
    ReportDocument report = MakeReport(3, 20, endless);
    report.title = endless;
    report.headings = {endless, endless};
    report.sections[0].rows[0].label = endless;
    report.notes = {endless};
    const PagedReport paged = LayOut(report, CountingMeasure());
    ExpectNothingOverlaps(paged);
    int cut = 0;
    for (const ReportPage& page : paged.pages) {
      for (const PlacedText& text : page.texts) {
        cut += text.text.ends_with("\u2026") ? 1 : 0;
      }
    }
    EXPECT_GE(cut, 60);
  }
}

TEST(PageLayout, AmountsAreNeverCut) {
  ReportDocument report = MakeReport(1, 2);
  ReportSection& section = report.sections[0];
  section.columns.insert(section.columns.end(), 9, {"Amount", ReportFormat::kMoney, 20});
  const Value largest = Currency::FromTenThousandths(std::numeric_limits<std::int64_t>::min());
  for (ReportRow& row : section.rows) {
    row.cells.resize(section.columns.size(), largest);
  }
  const PagedReport paged = LayOut(report, CountingMeasure());
  EXPECT_LT(paged.scale, 1);
  ExpectNothingOverlaps(paged);
  EXPECT_EQ(
      std::count_if(paged.pages[0].texts.begin(), paged.pages[0].texts.end(),
                    [](const PlacedText& text) { return text.text == "-922,337,203,685,477.58"; }),
      36);
}

TEST(PageLayout, TheWorkGrowsWithTheRows) {
  const CountingMeasure few;
  const CountingMeasure many;
  const std::size_t fewPages = LayOut(MakeReport(10, 30), few).pages.size();
  const std::size_t manyPages = LayOut(MakeReport(1000, 30), many).pages.size();
  EXPECT_LT(manyPages, 101 * fewPages);
  EXPECT_LT(many.calls, 110 * few.calls);
}

TEST(PageLayout, AReportOfNothingIsOnePage) {
  ReportDocument report = MakeReport(0, 0);
  report.orientation = PageOrientation::kLandscape;
  const PagedReport paged = LayOut(report, CountingMeasure());
  ASSERT_EQ(paged.pages.size(), 1U);
  EXPECT_EQ(paged.width, 792);
  EXPECT_EQ(CountOf(paged.pages[0], "Page 1 of 1"), 1);
  EXPECT_EQ(LayOut(ReportDocument(), CountingMeasure()).pages.size(), 1U);
}

}  // namespace
}  // namespace lorvane
