#include "company/RateSheet.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <map>
#include <optional>

#include "basic/Number.h"
#include "basic/Text.h"

namespace lorvane {
namespace {

constexpr std::size_t kLongestCode = 6;
constexpr std::size_t kLongestDescription = 100;
constexpr double kHighestRate = 100;

// Where a sheet has its columns, counted from 0, and how many there are.
struct Layout {
  std::size_t code = 0;
  std::size_t description = 1;
  std::size_t rate = 2;
  std::size_t width = 3;
};

std::string CellOf(const SheetRow& row, std::size_t column) {
  return column < row.cells.size() ? Trim(row.cells[column]) : std::string();
}

bool IsEmpty(const SheetRow& row) {
  return std::all_of(row.cells.begin(), row.cells.end(),
                     [](const std::string& cell) { return Trim(cell).empty(); });
}

// A to Z, AA and so on, as spreadsheets name their columns.
std::string ColumnName(std::size_t column) {
  constexpr std::size_t kLetters = 26;
  std::string name;
  for (std::size_t rest = column + 1; rest > 0; rest = (rest - 1) / kLetters) {
    name.insert(name.begin(), static_cast<char>('A' + (rest - 1) % kLetters));
  }
  return name;
}

// The rate in the text, or nothing. A comma has no place in one: it would part thousands.
std::optional<double> RateOf(const std::string& text) {
  if (text.find(',') != std::string::npos || !IsNumeric(text)) {
    return std::nullopt;
  }
  const double rate = ToDouble(text);
  return rate >= 0 && rate <= kHighestRate ? std::optional(rate) : std::nullopt;
}

// The columns by the names in the row, when it is a heading row.
std::optional<Layout> HeadingIn(const SheetRow& row) {
  Layout layout;
  std::array<bool, 3> found{};
  for (std::size_t column = 0; column < row.cells.size(); ++column) {
    const std::string name = ToLower(CellOf(row, column));
    if (name == "sic" || name == "code") {
      layout.code = column;
      found[0] = true;
    } else if (name == "description") {
      layout.description = column;
      found[1] = true;
    } else if (name == "rate") {
      layout.rate = column;
      found[2] = true;
    }
  }
  layout.width = row.cells.size();
  return found[0] && found[1] && found[2] ? std::optional(layout) : std::nullopt;
}

class SheetCheck {
 public:
  explicit SheetCheck(const Layout& layout) : layout_(layout) {}

  void Take(const SheetRow& row) {
    PublishedRate rate{CellOf(row, layout_.code), CellOf(row, layout_.description), 0};
    CheckText(row, layout_.code, "code", rate.code, kLongestCode);
    CheckText(row, layout_.description, "description", rate.description, kLongestDescription);
    const std::string text = CellOf(row, layout_.rate);
    if (const std::optional<double> number = RateOf(text)) {
      rate.rate = *number;
    } else {
      Complain(row, layout_.rate,
               text.empty() ? "the rate is missing"
                            : fmt::format("'{}' is no rate from 0 to 100", text));
    }
    // A rate with a decimal comma, for one, would lose its end to the next column.
    for (std::size_t column = layout_.width; column < row.cells.size(); ++column) {
      if (const std::string beyond = CellOf(row, column); !beyond.empty()) {
        Complain(row, column, fmt::format("'{}' stands behind the last column", beyond));
      }
    }
    const auto [earlier, first] = rowOfCode_.emplace(rate.code, row.number);
    if (!first && !rate.code.empty()) {
      Complain(row, layout_.code,
               fmt::format("code {} stands in row {} already", rate.code, earlier->second));
    }
    sheet_.rates.push_back(std::move(rate));
  }

  [[nodiscard]] RateSheet Done() { return std::move(sheet_); }

 private:
  void CheckText(const SheetRow& row, std::size_t column, const char* what, const std::string& text,
                 std::size_t longest) {
    if (text.empty()) {
      Complain(row, column, fmt::format("the {} is missing", what));
    } else if (Length(text) > longest) {
      Complain(row, column,
               fmt::format("the {} '{}' is longer than {} characters", what, text, longest));
    }
  }
  void Complain(const SheetRow& row, std::size_t column, const std::string& what) {
    sheet_.faults.push_back(
        fmt::format("row {}, column {}: {}.", row.number, ColumnName(column), what));
  }

  Layout layout_;
  RateSheet sheet_;
  std::map<std::string, std::size_t> rowOfCode_;
};

}  // namespace

RateSheet ReadRateSheet(const std::vector<SheetRow>& rows) {
  const auto first = std::find_if_not(rows.begin(), rows.end(), IsEmpty);
  const std::optional<Layout> heading = first == rows.end() ? std::nullopt : HeadingIn(*first);
  SheetCheck check(heading.value_or(Layout()));
  for (auto row = heading ? first + 1 : first; row != rows.end(); ++row) {
    if (!IsEmpty(*row)) {
      check.Take(*row);
    }
  }
  return check.Done();
}

RateChanges CompareRates(const std::vector<PublishedRate>& before,
                         const std::vector<PublishedRate>& after) {
  const auto byCode = [](const std::vector<PublishedRate>& rates) {
    std::map<std::string_view, const PublishedRate*> index;
    for (const PublishedRate& rate : rates) {
      index.emplace(rate.code, &rate);
    }
    return index;
  };
  const auto old = byCode(before);
  const auto kept = byCode(after);
  RateChanges changes;
  for (const PublishedRate& rate : after) {
    const auto found = old.find(rate.code);
    if (found == old.end()) {
      changes.added.push_back(rate);
    } else if (*found->second == rate) {
      ++changes.unchanged;
    } else {
      changes.changed.emplace_back(*found->second, rate);
    }
  }
  for (const PublishedRate& rate : before) {
    if (!kept.contains(rate.code)) {
      changes.removed.push_back(rate);
    }
  }
  return changes;
}

}  // namespace lorvane
