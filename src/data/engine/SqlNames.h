#pragma once

namespace lorvane::sql {

// What the rendered statements use beyond the data file's own language. Each connection registers
// them; the file itself holds none of them, so that other tools can read it.

inline constexpr const char* kTextCollation = "lorvane_text";
/// store(value, column type, size, column name): the value as the column stores it.
inline constexpr const char* kStoreFunction = "lorvane_store";
/// The number in a text; the text of a number; the stored date in a text.
inline constexpr const char* kNumberFunction = "lorvane_number";
inline constexpr const char* kTextFunction = "lorvane_words";
inline constexpr const char* kDateFunction = "lorvane_date";
/// The serial number and the short form of a stored date.
inline constexpr const char* kSerialFunction = "lorvane_serial";
inline constexpr const char* kShortDateFunction = "lorvane_shortdate";
/// divide(left, right); like(text, pattern).
inline constexpr const char* kDivideFunction = "lorvane_divide";
inline constexpr const char* kLikeFunction = "lorvane_like";

}  // namespace lorvane::sql
