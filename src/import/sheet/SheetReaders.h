#pragma once

#include <string>

#include "import/sheet/Spreadsheet.h"
#include "import/sheet/ZipFile.h"

namespace lorvane {

// The readers that ReadSpreadsheet chooses from. Each reads the sheet in front and raises 75 when
// the file can't be taken.

/// A workbook of the Office Open XML kind, with or without macros, which are never run.
[[nodiscard]] Spreadsheet ReadXlsx(ZipFile& archive);
/// An OpenDocument spreadsheet.
[[nodiscard]] Spreadsheet ReadOds(ZipFile& archive);
/// A workbook of the binary kind that came before both, from 1997 on.
[[nodiscard]] Spreadsheet ReadXls(const std::string& path);

}  // namespace lorvane
