#pragma once

#include <string>
#include <utility>
#include <vector>

#include "import/sheet/SheetCell.h"

namespace lorvane {

using SheetRows = std::vector<std::vector<SheetCell>>;

/// Writes an Office Open XML workbook with one sheet.
void WriteXlsx(const std::string& path, const SheetRows& rows);

/// The entries of an archive, by name, in their order.
using ZipEntries = std::vector<std::pair<std::string, std::string>>;

void WriteZip(const std::string& path, const ZipEntries& entries);

/// The entries of an Office Open XML workbook whose sheets hold this XML, rows and all.
[[nodiscard]] ZipEntries XlsxEntries(const std::vector<std::string>& sheets, int front = 0);
/// The entries of an OpenDocument spreadsheet with these tables, each named "Sheet1" and so on.
[[nodiscard]] ZipEntries OdsEntries(const std::vector<std::string>& tables,
                                    const std::string& front = {});

}  // namespace lorvane
