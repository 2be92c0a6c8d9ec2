#include <gtest/gtest.h>

#include "basic/Number.h"
#include "basic/Text.h"
#include "company/RateSheet.h"

namespace lorvane {
namespace {

// Rows are parted by "/", cells by "|".
std::vector<SheetRow> Rows(const std::string& text) {
  std::vector<SheetRow> rows;
  for (const std::string& row : Split(text, '/')) {
    rows.push_back({rows.size() + 1, Split(row, '|')});
  }
  return rows;
}

std::string Written(const std::vector<PublishedRate>& rates) {
  std::string text;
  for (const PublishedRate& rate : rates) {
    text += rate.code + "|" + rate.description + "|" + ShortestText(rate.rate) + ";";
  }
  return text;
}

TEST(RateSheet, FindsItsColumns) {
  struct Case {
    const char* rows;
    const char* rates;
  };
  const Case cases[] = {
      {"3040|Roofing|6.27", "3040|Roofing|6.27;"},
      {"SIC|Description|Rate/3040|Roofing|6.30", "3040|Roofing|6.3;"},
      {"ID|sic| RATE |Notes|Description/7| 0304|0|old|Roofing |", "0304|Roofing|0;"},
      {"||/Code|Description|Rate/||/A-1.2|\xC3\x89t\xC3\xA9|100/|", "A-1.2|\xC3\x89t\xC3\xA9|100;"},
      {"SIC|Description|Rate", ""},
      {"", ""}};
  for (const Case& row : cases) {
    SCOPED_TRACE(row.rows);
    const RateSheet sheet = ReadRateSheet(Rows(row.rows));
    EXPECT_EQ(Written(sheet.rates), row.rates);
    EXPECT_EQ(Join(sheet.faults, "\n"), "");
  }
}

TEST(RateSheet, NamesEveryWrongCell) {
  struct Case {
    const char* rows;
    const char* faults;
  };
  const std::string longText(101, 'x');
  const std::string longRow = "3040|" + longText + "|1";
  const std::string longFault =
      "row 1, column B: the description '" + longText + "' is longer than 100 characters.";
  const Case cases[] = {
      {"3040|Roofing|six", "row 1, column C: 'six' is no rate from 0 to 100."},
      {"3040|Roofing|5%", "row 1, column C: '5%' is no rate from 0 to 100."},
      {"3040|Roofing|1,25", "row 1, column C: '1,25' is no rate from 0 to 100."},
      {"3040|Roofing|100.01", "row 1, column C: '100.01' is no rate from 0 to 100."},
      {"3040|Roofing|-1/3041|Masonry|1e999",
       "row 1, column C: '-1' is no rate from 0 to 100.;"
       "row 2, column C: '1e999' is no rate from 0 to 100."},
      {"Code|Rate|Description/3040||Roofing/|2|Masonry",
       "row 2, column B: the rate is missing.;row 3, column A: the code is missing."},
      {"3040|Roofing|1|25", "row 1, column D: '25' stands behind the last column."},
      {"3040123||1",
       "row 1, column A: the code '3040123' is longer than 6 characters.;"
       "row 1, column B: the description is missing."},
      {"1|a|1/2|b|2/1|c|3", "row 3, column A: code 1 stands in row 1 already."},
      {longRow.c_str(), longFault.c_str()}};
  for (const Case& row : cases) {
    SCOPED_TRACE(row.rows);
    EXPECT_EQ(Join(ReadRateSheet(Rows(row.rows)).faults, ";"), row.faults);
  }
}

TEST(RateSheet, TellsWhatChanges) {
  const RateChanges changes =
      CompareRates({{"1", "a", 1}, {"2", "b", 2}, {"3", "c", 3}, {"4", "d", 4}},
                   {{"5", "e", 5}, {"3", "c", 3}, {"2", "b", 2.5}, {"1", "A", 1}});
  EXPECT_EQ(Written(changes.added), "5|e|5;");
  EXPECT_EQ(Written(changes.removed), "4|d|4;");
  ASSERT_EQ(changes.changed.size(), 2U);
  EXPECT_EQ(Written({changes.changed[0].first, changes.changed[0].second}), "2|b|2;2|b|2.5;");
  EXPECT_EQ(Written({changes.changed[1].first, changes.changed[1].second}), "1|a|1;1|A|1;");
  EXPECT_EQ(changes.unchanged, 1U);
}

}  // namespace
}  // namespace lorvane
