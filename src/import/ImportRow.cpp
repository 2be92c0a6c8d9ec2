#include "import/ImportRow.h"

#include <fmt/format.h>

#include <algorithm>

#include "basic/Text.h"
#include "import/NormaliseProvince.h"

namespace lorvane {
namespace {

ImportCell Cut(const std::string& text, std::size_t length) {
  const std::size_t before = Length(text);
  if (before <= length) {
    return {text, {}};
  }
  return {Left(text, length), fmt::format("cut from {} to {} characters", before, length)};
}

ImportCell ProvinceOf(const std::string& text) {
  const std::string capitals = ToUpper(text);
  const std::string_view code = NormaliseProvince(capitals);
  return {std::string(code), FindProvince(capitals)
                                 ? std::string()
                                 : fmt::format("'{}' isn't known and becomes {}", text, code)};
}

}  // namespace

ImportCell TreatCell(const SheetCell& cell, const ImportColumn& column) {
  const std::string text = CellText(cell);
  if (std::holds_alternative<SheetError>(cell)) {
    return {{}, fmt::format("the error {} isn't stored", text), true};
  }
  switch (column.treatment) {
    case CellTreatment::kCut:
      return Cut(text, column.length);
    case CellTreatment::kProvince:
      return ProvinceOf(text);
    case CellTreatment::kCapitals:
      break;
  }
  return {ToUpper(text), {}};
}

std::vector<ImportCell> ReadImportRow(const Spreadsheet& sheet, std::size_t row,
                                      const ImportTarget& target, int numberOfColumns) {
  // Cells behind the layout's would fall on fields that get their defaults.
  const std::size_t count =
      std::min(target.columns.size(), static_cast<std::size_t>(std::max(numberOfColumns, 0)));
  std::vector<ImportCell> cells;
  for (std::size_t place = 0; place < count; ++place) {
    const SheetCell& cell = sheet.Cell(row, place + 1);
    if (IsBlank(cell)) {
      break;
    }
    cells.push_back(TreatCell(cell, target.columns[place]));
  }
  return cells;
}

SheetExtent MeasureSheet(const Spreadsheet& sheet, int numberOfColumns) {
  constexpr std::size_t kMostRows = 1000;
  const std::size_t lastRow = std::min(CountImportRows(sheet), kMostRows);
  SheetExtent extent;
  for (std::size_t row = 1; row <= lastRow; ++row) {
    int columns = 0;
    while (columns < numberOfColumns &&
           !IsBlank(sheet.Cell(row, static_cast<std::size_t>(columns) + 1))) {
      ++columns;
    }
    extent.columns = std::max(extent.columns, columns);
    extent.hasData = extent.hasData || (row == 1 && columns > 0);
  }
  return extent;
}

std::size_t CountImportRows(const Spreadsheet& sheet) {
  std::size_t rows = 0;
  while (!IsBlank(sheet.Cell(rows + 1, 1))) {
    ++rows;
  }
  return rows;
}

}  // namespace lorvane
