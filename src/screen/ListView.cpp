#include "screen/ListView.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "data/engine/Collation.h"
#include "screen/Screen.h"

namespace lorvane {

ListView::ListView(Screen& screen, std::string name, bool multiSelect)
    : Control(screen, std::move(name)), multiSelect_(multiSelect) {}

void ListView::SetColumns(std::vector<ViewColumn> columns) {
  columns_ = std::move(columns);
  Changed();
}

void ListView::SetTextColour(int colour) {
  textColour_ = colour;
  Changed();
}

void ListView::AddRows(std::vector<Row> rows) {
  rows_.insert(rows_.end(), std::make_move_iterator(rows.begin()),
               std::make_move_iterator(rows.end()));
  Sort();
  Changed();
}

void ListView::Clear() {
  rows_.clear();
  current_ = -1;
  rowToShow_ = -1;
  Changed();
}

const std::string& ListView::Cell(int row, std::size_t place) const {
  static const std::string kEmpty;
  CheckRow(row);
  const std::vector<std::string>& texts = rows_[static_cast<std::size_t>(row)].texts;
  return place < texts.size() ? texts[place] : kEmpty;
}

void ListView::SetCell(int row, std::size_t place, std::string text) {
  CheckRow(row);
  std::vector<std::string>& texts = rows_[static_cast<std::size_t>(row)].texts;
  if (place >= texts.size()) {
    texts.resize(place + 1);
  }
  texts[place] = std::move(text);
  Changed();
}

bool ListView::IsSelected(int row) const {
  CheckRow(row);
  return rows_[static_cast<std::size_t>(row)].selected;
}

void ListView::SetSelected(int row, bool selected) {
  CheckRow(row);
  if (selected && !multiSelect_ && current_ >= 0) {
    rows_[static_cast<std::size_t>(current_)].selected = false;
  }
  rows_[static_cast<std::size_t>(row)].selected = selected;
  if (selected) {
    current_ = row;
  } else if (current_ == row) {
    const auto other = std::find_if(rows_.begin(), rows_.end(),
                                    [](const Row& candidate) { return candidate.selected; });
    current_ = other == rows_.end() ? -1 : static_cast<int>(other - rows_.begin());
  }
  Changed();
}

void ListView::EnsureVisible(int row) {
  CheckRow(row);
  rowToShow_ = row;
  Changed();
}

void ListView::SortBy(std::size_t place) {
  sortPlace_ = place;
  Sort();
  Changed();
}

void ListView::UserSelectRows(const std::vector<int>& rows) {
  if (!Usable() || !Owner().MoveFocus(*this)) {
    return;
  }
  for (int row = 0; row < Count(); ++row) {
    rows_[static_cast<std::size_t>(row)].selected = false;
  }
  current_ = -1;
  for (const int row : rows) {
    if (row >= 0 && row < Count()) {
      SetSelected(row, true);
    }
  }
  Changed();
  if (!rows.empty()) {
    RaiseClick();
  }
}

void ListView::UserDoubleClick(int row) {
  if (Usable() && row >= 0 && row < Count()) {
    UserSelectRows({row});
    if (OnDoubleClick) {
      OnDoubleClick();
    }
  }
}

void ListView::UserColumnClick(std::size_t column) {
  if (Usable() && Owner().MoveFocus(*this) && OnColumnClick) {
    OnColumnClick(column);
  }
}

std::string ListView::ShownText() const { return current_ < 0 ? std::string() : Cell(current_, 0); }

std::optional<std::string> ListView::Attribute(std::string_view name) const {
  if (name == "count") {
    return std::to_string(Count());
  }
  if (name == "index") {
    return std::to_string(current_);
  }
  constexpr std::string_view heading = "column_";
  if (name.starts_with(heading)) {
    const std::optional<double> place = ParseNumber(name.substr(heading.size()));
    if (place && *place >= 0 && *place < static_cast<double>(columns_.size())) {
      return columns_[static_cast<std::size_t>(*place)].heading;
    }
    return std::nullopt;
  }
  return Control::Attribute(name);
}

void ListView::CheckRow(int row) const {
  if (row < 0 || row >= Count()) {
    throw RuntimeError(error_number::kIndexOutOfBounds);
  }
}

void ListView::Sort() {
  if (!sortPlace_) {
    return;
  }
  // The rows move, so the current one is found again by where its number went.
  std::vector<int> order(rows_.size());
  for (std::size_t i = 0; i < order.size(); ++i) {
    order[i] = static_cast<int>(i);
  }
  const std::size_t place = *sortPlace_;
  std::stable_sort(order.begin(), order.end(), [&](int left, int right) {
    return CompareTexts(Cell(left, place), Cell(right, place)) < 0;
  });
  std::vector<Row> sorted;
  sorted.reserve(rows_.size());
  int current = -1;
  for (const int from : order) {
    if (from == current_) {
      current = static_cast<int>(sorted.size());
    }
    sorted.push_back(std::move(rows_[static_cast<std::size_t>(from)]));
  }
  rows_ = std::move(sorted);
  current_ = current;
}

}  // namespace lorvane
