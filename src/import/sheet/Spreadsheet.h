#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "import/sheet/SheetCell.h"

namespace lorvane {

/// The cells of one sheet, whatever kind of file it came from. Rows and columns count from 1, as
/// spreadsheet programs number them.
///
/// It holds what people keep in a sheet and no more, so that a file that was made to exhaust the
/// memory is refused: see the limits.
class Spreadsheet {
 public:
  /// Columns behind these are passed over.
  static constexpr std::size_t kMaxColumns = 256;
  static constexpr std::size_t kMaxRows = 1'048'576;
  static constexpr std::size_t kMaxCells = 2'000'000;
  static constexpr std::size_t kMaxTextBytes = 64U << 20U;

  /// The number of the last row that has a cell; 0 for an empty sheet.
  [[nodiscard]] std::size_t RowCount() const { return rows_.size(); }
  /// The number of a row's last cell; 0 for a row without any, and behind the last row.
  [[nodiscard]] std::size_t ColumnCount(std::size_t row) const;
  /// Empty where there is none.
  [[nodiscard]] const SheetCell& Cell(std::size_t row, std::size_t column) const;

  /// Puts a cell in its place. Empty cells take no room. Raises 75 when the sheet is past a limit.
  void SetCell(std::size_t row, std::size_t column, SheetCell cell);

 private:
  std::vector<std::vector<SheetCell>> rows_;
  std::size_t cells_ = 0;
  std::size_t textBytes_ = 0;
};

/// Reads the sheet that is in front in a workbook (.xlsx, .xlsm, .xls, .ods), or a text file
/// of cells (see CsvFile); the file's content tells its kind, not its name. Cells of a text file
/// are texts. Raises 53 when there is no such file, and 75 when it can't be read, is protected,
/// damaged, too large or of another kind; the sentence names the file.
[[nodiscard]] Spreadsheet ReadSpreadsheet(const std::string& path);

}  // namespace lorvane
