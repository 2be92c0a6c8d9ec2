#pragma once

#include "data/engine/Ast.h"
#include "data/engine/Catalog.h"
#include "data/engine/Engine.h"
#include "data/engine/Rendered.h"

namespace lorvane::sql {

// From statements of the system's dialect, whose tables are known, to the data file's own language.
// Each resolves the statement's names first and raises as Resolve does; literals that are written
// are converted and raise as ToStored does.

/// `table` is nullptr for a SELECT without one.
[[nodiscard]] Rendered RenderSelect(Statement& statement, const Table* table);
/// The rows' own numbers come first. Raises 0x80040E14 unless the statement lists plain columns.
[[nodiscard]] Rendered RenderSelectForUpdate(Statement& statement, const Table& table);
[[nodiscard]] Rendered RenderInsert(Statement& statement, const Table& table);
[[nodiscard]] Rendered RenderUpdate(Statement& statement, const Table& table);
[[nodiscard]] Rendered RenderDelete(Statement& statement, const Table& table);

/// One row, by its own number.
[[nodiscard]] Rendered RenderRowUpdate(const Table& table, std::int64_t rowNumber,
                                       const ColumnValues& values);
[[nodiscard]] Rendered RenderRowInsert(const Table& table, const ColumnValues& values);

}  // namespace lorvane::sql
