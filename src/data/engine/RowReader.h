#pragma once

#include "data/engine/Database.h"
#include "data/engine/Value.h"

namespace lorvane::sql {

/// The value at a place of the current row, stored as a column of that type stores it. What another
/// tool wrote there and no value of the type can be is given as it stands, a number or a text.
[[nodiscard]] Value ReadValue(sqlite3_stmt* row, int place, ColumnType type);

}  // namespace lorvane::sql
