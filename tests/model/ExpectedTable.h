#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Book.h"

namespace lorvane {
class EngineConnection;
}

namespace lorvane::model {

/// The rows that a table must hold, as texts: null is empty, flags are -1 and 0.
struct ExpectedTable {
  std::string table;
  /// The first one is the key, which orders the rows.
  std::vector<std::string> columns;
  std::vector<std::vector<std::string>> rows;
  /// What stands behind the columns in the statement, such as a grouping.
  std::string grouping;
};

/// Where a file holds something else than the book.
struct Difference {
  /// One value that differs.
  std::string statement;
  std::string expected;
  std::string found;
};

/// The first difference between the table and what it must hold.
[[nodiscard]] std::optional<Difference> Compare(EngineConnection& connection,
                                                const ExpectedTable& expected);

/// The tables of record of a book. `created` is when its payments were posted.
[[nodiscard]] std::vector<ExpectedTable> TablesOf(const Book& book, const DateTime& created);

}  // namespace lorvane::model
