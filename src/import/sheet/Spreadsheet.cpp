#include "import/sheet/Spreadsheet.h"

#include <utility>

#include "basic/RuntimeError.h"

namespace lorvane {
namespace {

const SheetCell kEmptyCell;

}  // namespace

std::size_t Spreadsheet::ColumnCount(std::size_t row) const {
  return row >= 1 && row <= rows_.size() ? rows_[row - 1].size() : 0;
}

const SheetCell& Spreadsheet::Cell(std::size_t row, std::size_t column) const {
  return column >= 1 && column <= ColumnCount(row) ? rows_[row - 1][column - 1] : kEmptyCell;
}

void Spreadsheet::SetCell(std::size_t row, std::size_t column, SheetCell cell) {
  if (column == 0 || column > kMaxColumns || row == 0 || IsBlank(cell)) {
    return;
  }
  const std::string* text = std::get_if<std::string>(&cell);
  textBytes_ += text != nullptr ? text->size() : 0;
  if (row > rows_.size()) {
    rows_.resize(std::min(row, kMaxRows));
  }
  if (row <= kMaxRows && column > rows_[row - 1].size()) {
    cells_ += column - rows_[row - 1].size();
  }
  if (row > kMaxRows || cells_ > kMaxCells || textBytes_ > kMaxTextBytes) {
    throw RuntimeError(error_number::kPathFileAccess,
                       "The sheet holds more than can be taken from one.");
  }
  std::vector<SheetCell>& cells = rows_[row - 1];
  if (column > cells.size()) {
    cells.resize(column);
  }
  cells[column - 1] = std::move(cell);
}

}  // namespace lorvane
