#include "data/engine/ColumnTypes.h"

#include <array>
#include <charconv>
#include <utility>

#include "data/engine/Names.h"

namespace lorvane::sql {
namespace {

constexpr std::array<std::pair<std::string_view, ColumnType>, 20> kTypeNames{{
    {"INTEGER", ColumnType::kLong},   {"LONG", ColumnType::kLong},
    {"INT", ColumnType::kLong},       {"TEXT", ColumnType::kText},
    {"VARCHAR", ColumnType::kText},   {"CHAR", ColumnType::kText},
    {"MEMO", ColumnType::kText},      {"YESNO", ColumnType::kYesNo},
    {"BIT", ColumnType::kYesNo},      {"LOGICAL", ColumnType::kYesNo},
    {"BOOLEAN", ColumnType::kYesNo},  {"CURRENCY", ColumnType::kCurrency},
    {"MONEY", ColumnType::kCurrency}, {"DOUBLE", ColumnType::kDouble},
    {"FLOAT", ColumnType::kDouble},   {"REAL", ColumnType::kDouble},
    {"NUMBER", ColumnType::kDouble},  {"DATE", ColumnType::kDate},
    {"DATETIME", ColumnType::kDate},  {"TIMESTAMP", ColumnType::kDate},
}};

std::string DeclaredType(const Column& column) {
  switch (column.type) {
    case ColumnType::kLong:
      return column.isKey ? "INTEGER PRIMARY KEY" : "INTEGER";
    case ColumnType::kText:
      return column.size > 0 ? "TEXT(" + std::to_string(column.size) + ")" : "TEXT";
    case ColumnType::kYesNo:
      return "YESNO NOT NULL DEFAULT 0";
    case ColumnType::kCurrency:
      return "CURRENCY";
    case ColumnType::kDouble:
      return "DOUBLE";
    case ColumnType::kDate:
      return "DATE";
    case ColumnType::kUnknown:
      break;
  }
  return "BLOB";
}

}  // namespace

std::optional<ColumnType> TypeNamed(std::string_view name) {
  for (const auto& [typeName, type] : kTypeNames) {
    if (SameName(typeName, name)) {
      return type;
    }
  }
  return std::nullopt;
}

void ReadDeclaredType(std::string_view declared, Column& column) {
  const std::string_view word = declared.substr(0, declared.find_first_of(" ("));
  column.type = TypeNamed(word).value_or(ColumnType::kUnknown);
  const std::size_t bracket = declared.find('(');
  if (column.type == ColumnType::kText && bracket != std::string_view::npos) {
    const std::string_view digits = declared.substr(bracket + 1);
    std::from_chars(digits.data(), digits.data() + digits.size(), column.size);
  }
}

std::string ColumnDeclaration(const Column& column) {
  std::string declaration = QuotedName(column.name) + " " + DeclaredType(column);
  if (column.isKey && column.type != ColumnType::kLong) {
    declaration += " PRIMARY KEY";
  }
  return declaration;
}

std::string_view TypeWord(ColumnType type) {
  switch (type) {
    case ColumnType::kLong:
      return "whole number";
    case ColumnType::kYesNo:
      return "yes or no";
    case ColumnType::kCurrency:
      return "amount";
    case ColumnType::kDouble:
      return "number";
    case ColumnType::kDate:
      return "date";
    case ColumnType::kText:
    case ColumnType::kUnknown:
      break;
  }
  return "text";
}

}  // namespace lorvane::sql
