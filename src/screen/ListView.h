#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "screen/Control.h"

namespace lorvane {

/// A table of rows of text of which several can be selected. Place 0 of a row is its own text, the
/// places from 1 on are its sub-items; indexes count from 0.
///
/// One selected row is the current one: the row that was selected last.
class ListView : public Control {
 public:
  enum class Alignment { kLeft, kRight };

  struct ViewColumn {
    std::string heading;
    /// In the screens' own units, of which a character takes about 120; 0 hides the column.
    int width = 0;
    Alignment alignment = Alignment::kLeft;
  };

  struct Row {
    std::vector<std::string> texts;
    bool selected = false;
  };

  /// Colour of the rows' text as 0xRRGGBB.
  static constexpr int kBlack = 0x000000;
  static constexpr int kBlue = 0x0000FF;

  ListView(Screen& screen, std::string name, bool multiSelect);

  [[nodiscard]] bool MultiSelect() const { return multiSelect_; }
  [[nodiscard]] const std::vector<ViewColumn>& Columns() const { return columns_; }
  void SetColumns(std::vector<ViewColumn> columns);
  [[nodiscard]] int TextColour() const { return textColour_; }
  void SetTextColour(int colour);

  [[nodiscard]] int Count() const { return static_cast<int>(rows_.size()); }
  [[nodiscard]] const std::vector<Row>& Rows() const { return rows_; }
  /// Adds rows at the end, or where the sort puts them.
  void AddRows(std::vector<Row> rows);
  void Clear();
  /// A row's text at a place; empty behind its last. Raises 35600 outside the list.
  [[nodiscard]] const std::string& Cell(int row, std::size_t place) const;
  void SetCell(int row, std::size_t place, std::string text);

  /// The current row's index; -1 when no row is selected.
  [[nodiscard]] int SelectedIndex() const { return current_; }
  [[nodiscard]] bool IsSelected(int row) const;
  /// Selects or unselects one row and leaves the others; raises 35600 outside the list.
  void SetSelected(int row, bool selected);
  /// Scrolls so that the row can be seen.
  void EnsureVisible(int row);
  [[nodiscard]] int RowToShow() const { return rowToShow_; }

  /// Sorts by the texts of a place, ascending and as text, and keeps rows that are added later
  /// sorted.
  void SortBy(std::size_t place);
  [[nodiscard]] std::optional<std::size_t> SortPlace() const { return sortPlace_; }

  std::function<void(std::size_t column)> OnColumnClick;

  // What a user does.
  /// Selects just these rows.
  void UserSelectRows(const std::vector<int>& rows);
  void UserDoubleClick(int row);
  void UserColumnClick(std::size_t column);

  [[nodiscard]] std::string ShownText() const override;
  [[nodiscard]] std::optional<std::string> Attribute(std::string_view name) const override;

 private:
  void CheckRow(int row) const;
  void Sort();

  bool multiSelect_;
  std::vector<ViewColumn> columns_;
  std::vector<Row> rows_;
  int textColour_ = kBlack;
  int current_ = -1;
  int rowToShow_ = -1;
  std::optional<std::size_t> sortPlace_;
};

}  // namespace lorvane
