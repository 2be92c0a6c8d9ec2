#include "support/RowsText.h"

#include <vector>

#include "basic/Text.h"
#include "data/engine/Engine.h"

namespace lorvane {

std::string RowsText(EngineConnection& connection, std::string_view statement) {
  std::vector<std::string> rows;
  for (const std::vector<Value>& row : connection.Query(statement).rows) {
    std::vector<std::string> cells;
    cells.reserve(row.size());
    for (const Value& value : row) {
      cells.push_back(ListingTextOf(value));
    }
    rows.push_back(Join(cells, "|"));
  }
  return Join(rows, ";");
}

}  // namespace lorvane
