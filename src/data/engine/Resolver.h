#pragma once

#include "data/engine/Ast.h"
#include "data/engine/Catalog.h"

namespace lorvane::sql {

/// Finds the columns that the expressions name and gives every expression its type: a column's, or
/// that of the value it computes. With no table no name is known.
///
/// Raises 0x80040E10 for an unknown column, 0x80040E14 for a sum inside a sum and the like, and
/// 0x80040E07 for a sum of texts.
void Resolve(Statement& statement, const Table* table);

/// Raises the error of a column that the statement names and the table doesn't have.
[[noreturn]] void FailUnknownColumn(std::string_view column);

}  // namespace lorvane::sql
