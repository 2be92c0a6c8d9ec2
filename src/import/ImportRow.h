#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "import/ImportTarget.h"
#include "import/sheet/Spreadsheet.h"

namespace lorvane {

/// A spreadsheet's cell as it will be stored.
struct ImportCell {
  std::string text;
  /// What of the spreadsheet's text is lost, as a sentence's end: "cut from 60 to 50 characters".
  /// Empty when nothing is.
  std::string loss;
  /// The cell shows an error: there is nothing to store.
  bool unreadable = false;
};

/// The cell of a column of the layout as it will be stored.
[[nodiscard]] ImportCell TreatCell(const SheetCell& cell, const ImportColumn& column);

/// The cells of a spreadsheet's row as they will be stored, in the layout's order, at most
/// `numberOfColumns` of them. The first blank cell ends the row: what stands behind it is left
/// unread.
[[nodiscard]] std::vector<ImportCell> ReadImportRow(const Spreadsheet& sheet, std::size_t row,
                                                    const ImportTarget& target,
                                                    int numberOfColumns);

/// What a look over the spreadsheet finds before anything is imported.
struct SheetExtent {
  /// The most cells that a row has from the first column on without a gap, at most as many as were
  /// asked for.
  int columns = 0;
  bool hasData = false;
};

/// Looks at the rows up to the first whose first cell is blank, and at 1,000 at most.
[[nodiscard]] SheetExtent MeasureSheet(const Spreadsheet& sheet, int numberOfColumns);

/// How many rows there are up to the first whose first cell is blank, which ends an import.
[[nodiscard]] std::size_t CountImportRows(const Spreadsheet& sheet);

}  // namespace lorvane
