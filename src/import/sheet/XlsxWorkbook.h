#pragma once

#include <string>
#include <vector>

#include "import/sheet/ZipFile.h"

namespace lorvane {

/// What the parts of an Office Open XML workbook round its sheets tell.
struct XlsxWorkbook {
  /// The archive's entry of the sheet in front.
  std::string sheet;
  /// The texts that cells refer to by their place.
  std::vector<std::string> texts;
  /// For each cell style whether it shows numbers as dates.
  std::vector<bool> datesByStyle;
  /// Days are counted from 1904 instead of 1899.
  bool countsFrom1904 = false;
};

[[nodiscard]] XlsxWorkbook ReadXlsxWorkbook(ZipFile& archive);

}  // namespace lorvane
