#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "basic/Date.h"
#include "basic/Money.h"

namespace lorvane {

/// Types of the columns of a company's data file.
enum class ColumnType { kUnknown, kLong, kText, kYesNo, kCurrency, kDouble, kDate };

/// A column's value. Null is the first alternative; a computed column gives a Long, a double or a
/// text.
using Value =
    std::variant<std::monostate, bool, std::int32_t, double, Currency, DateTime, std::string>;

[[nodiscard]] inline bool IsNull(const Value& value) {
  return std::holds_alternative<std::monostate>(value);
}

/// The value as text: numbers in their shortest text, dates in the short form, flags as "True" and
/// "False"; null gives the empty text.
[[nodiscard]] std::string TextOf(const Value& value);

/// As TextOf, but with flags as the engine stores them, -1 and 0: for listings of a statement's
/// rows.
[[nodiscard]] std::string ListingTextOf(const Value& value);

/// A column of a table or of a statement's result.
struct Column {
  std::string name;
  ColumnType type = ColumnType::kUnknown;
  /// Characters that a Text column holds; 0 for no limit.
  int size = 0;
  /// The table's key: numbered by the engine when an insert gives no value.
  bool isKey = false;
};

/// A statement's rows, read whole.
struct ResultTable {
  std::vector<Column> columns;
  std::vector<std::vector<Value>> rows;
};

}  // namespace lorvane
