#pragma once

#include <string>
#include <vector>

#include "data/DataConnection.h"
#include "import/ImportTarget.h"

namespace lorvane {

struct PreviewRow {
  /// The row's number in the spreadsheet, the texts as they will be stored, and what will be lost
  /// of them.
  std::vector<std::string> texts;
};

/// The first rows of a spreadsheet as an import would store them.
struct ImportPreview {
  static constexpr std::size_t kRows = 50;

  std::vector<PreviewRow> rows;
  /// How many rows an import goes through, and what it would lose or pass over, as sentences.
  std::string summary;
};

/// Looks through the spreadsheet without changing anything. Raises 53 and 75 as ReadSpreadsheet
/// does.
[[nodiscard]] ImportPreview PreviewImport(const DataConnection& session, const std::string& path,
                                          int numberOfColumns, const ImportTarget& target,
                                          bool skipPeopleOnFile);

}  // namespace lorvane
