#include "data/engine/RowReader.h"

#include <sqlcipher/sqlite3.h>

#include <limits>
#include <string>
#include <string_view>

#include "data/engine/Conversion.h"

namespace lorvane::sql {
namespace {

std::string_view TextAt(sqlite3_stmt* row, int place) {
  const void* text = sqlite3_column_blob(row, place);
  return text == nullptr
             ? std::string_view()
             : std::string_view(static_cast<const char*>(text),
                                static_cast<std::size_t>(sqlite3_column_bytes(row, place)));
}

Value NumberAt(sqlite3_stmt* row, int place, int storage) {
  if (storage == SQLITE_FLOAT) {
    return sqlite3_column_double(row, place);
  }
  const std::int64_t whole = sqlite3_column_int64(row, place);
  const bool fits = whole >= std::numeric_limits<std::int32_t>::min() &&
                    whole <= std::numeric_limits<std::int32_t>::max();
  return fits ? Value(static_cast<std::int32_t>(whole)) : Value(static_cast<double>(whole));
}

Value TypedNumber(sqlite3_stmt* row, int place, int storage, ColumnType type) {
  const double number = sqlite3_column_double(row, place);
  switch (type) {
    case ColumnType::kCurrency:
      if (const std::optional<Currency> amount = AmountOf(number)) {
        return *amount;
      }
      return number;
    case ColumnType::kDouble:
      return number;
    case ColumnType::kYesNo:
      return number != 0;
    case ColumnType::kDate:
      if (const std::optional<DateTime> date = DateOfSerial(number)) {
        return *date;
      }
      return number;
    default:
      return NumberAt(row, place, storage);
  }
}

}  // namespace

Value ReadValue(sqlite3_stmt* row, int place, ColumnType type) {
  const int storage = sqlite3_column_type(row, place);
  if (storage == SQLITE_NULL) {
    return {};
  }
  if (storage == SQLITE_INTEGER || storage == SQLITE_FLOAT) {
    return TypedNumber(row, place, storage, type);
  }
  const std::string_view text = TextAt(row, place);
  if (type == ColumnType::kDate) {
    if (const std::optional<DateTime> date = DateOf(text)) {
      return *date;
    }
  }
  return std::string(text);
}

}  // namespace lorvane::sql
