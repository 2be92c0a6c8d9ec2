#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "data/engine/Value.h"

namespace lorvane::sql {

/// The type of that name, as statements and data files write it; nothing when there is none.
[[nodiscard]] std::optional<ColumnType> TypeNamed(std::string_view name);

/// Type and size of a column as the file declares it: TEXT(75), CURRENCY. Both are unknown for
/// declarations of other tools that we can't name.
void ReadDeclaredType(std::string_view declared, Column& column);

/// How the file declares the column: its name, type and what holds when no value is given.
[[nodiscard]] std::string ColumnDeclaration(const Column& column);

/// The type in words, for error texts.
[[nodiscard]] std::string_view TypeWord(ColumnType type);

}  // namespace lorvane::sql
