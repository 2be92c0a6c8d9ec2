#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "data/engine/Value.h"

namespace lorvane {

/// What is done to a spreadsheet's cell on its way into a column.
enum class CellTreatment {
  kCut,       ///< Cut to the first characters.
  kProvince,  ///< Turned to capitals, then to the system's own code.
  kCapitals
};

/// One column of a spreadsheet layout.
struct ImportColumn {
  /// What the checklist calls it.
  std::string caption;
  /// The column of the table that it fills.
  std::string column;
  CellTreatment treatment = CellTreatment::kCut;
  /// Characters that are kept by a cut.
  std::size_t length = 0;

  /// The caption without the number in front: "SIN".
  [[nodiscard]] std::string Heading() const;
};

/// A table that spreadsheets are imported into, with the layout of its spreadsheets.
struct ImportTarget {
  std::string table;
  /// Who the rows are: "employees".
  std::string people;
  /// The columns of the statement that opens the table: the key, the layout's, the defaults'.
  std::string fields;
  /// The spreadsheet's columns from the first on.
  std::vector<ImportColumn> columns;
  /// What every new row gets, whatever the spreadsheet holds behind the layout's columns.
  std::vector<std::pair<std::string, Value>> defaults;
};

[[nodiscard]] const ImportTarget& EmployeeTarget();
[[nodiscard]] const ImportTarget& SubContractorTarget();

}  // namespace lorvane
