#pragma once

namespace lorvane::sql {

class Database;

/// Registers what rendered statements use: the text collation and the functions of SqlNames.h.
void RegisterFunctions(Database& database);

}  // namespace lorvane::sql
