#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "data/DataConnection.h"
#include "import/ImportProgress.h"
#include "import/ImportTarget.h"

namespace lorvane {

/// A spreadsheet's row that isn't in the table afterwards.
struct RefusedRow {
  /// Its number in the spreadsheet.
  std::size_t row = 0;
  /// A sentence.
  std::string reason;
};

/// What came of an import.
struct ImportOutcome {
  enum class End { kNoData, kMissingColumns, kImported };

  End end = End::kNoData;
  /// Why the spreadsheet couldn't be read, as a sentence: it then counts as one with no data. Empty
  /// when it could.
  std::string unreadable;
  /// How many columns the spreadsheet has, up to the number asked for.
  int columns = 0;
  /// The rows gone through, refused ones included.
  int rows = 0;
  /// Those among them that were passed over since they are on file already.
  int onFile = 0;
  std::vector<RefusedRow> refused;
};

/// What an import may do besides.
struct ImportWishes {
  /// Passes over rows whose first column, SIN or business number, is on file already.
  bool skipPeopleOnFile = false;
  /// Called for each value that is taken, with its place in the layout.
  std::function<void(std::size_t place)> onTaken;
  /// Nothing is told of a spreadsheet that isn't imported.
  ImportProgress progress;
};

/// Imports a spreadsheet into a table of the company that `session` has open, through a connection
/// of its own. Each row becomes a new row with the target's defaults. The first row whose first
/// cell is blank ends the import; a row that is there twice is imported twice.
///
/// Nothing is raised: a row that the table refuses is left out and told of. At the end the key of
/// the table's last row becomes the table's key counter, unless it is above 32,767, which the
/// counter's reader can't take.
[[nodiscard]] ImportOutcome ImportFromExcel(const DataConnection& session, const std::string& path,
                                            int numberOfColumns, const ImportTarget& target,
                                            const ImportWishes& wishes = {});

}  // namespace lorvane
