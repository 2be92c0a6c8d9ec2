#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "data/engine/Value.h"

namespace lorvane::sql {

/// A statement in the data file's own language. Literals are parameters, so that statements of one
/// shape have one text.
struct Rendered {
  std::string sql;
  /// In the form in which they are stored: null, whole numbers, doubles and texts.
  std::vector<Value> parameters;
  /// The last parameter, where one row is meant: a row's number may be beyond a Long.
  std::optional<std::int64_t> rowNumber;
  /// Of a SELECT. A column with a type is stored as that type's columns are.
  std::vector<Column> columns;
  /// Whether a value met on the way can end it when some of its rows are changed already.
  bool mayFailMidway = false;
};

}  // namespace lorvane::sql
