#pragma once

#include <string>
#include <variant>

#include "basic/Date.h"

namespace lorvane {

/// A cell that shows an error instead of a value: #N/A, say.
struct SheetError {
  std::string code;

  friend bool operator==(const SheetError&, const SheetError&) = default;
};

/// What a cell of a spreadsheet holds; a formula's cell holds its value. The first alternative is a
/// cell with nothing in it.
using SheetCell = std::variant<std::monostate, std::string, double, bool, DateTime, SheetError>;

/// The date of a cell that shows its number as one, as workbooks count days; the number itself when
/// there is no such date.
[[nodiscard]] SheetCell CellOfSerial(double serial, bool countsFrom1904);

/// Whether nothing is in the cell, or a text of no characters.
[[nodiscard]] bool IsBlank(const SheetCell& cell);

/// The cell as text: numbers in their shortest text, dates in the short form, flags as "True" and
/// "False", an error by its code; empty for an empty cell.
[[nodiscard]] std::string CellText(const SheetCell& cell);

}  // namespace lorvane
