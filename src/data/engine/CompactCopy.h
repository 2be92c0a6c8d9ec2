#pragma once

#include <string>

#include "data/engine/Database.h"

namespace lorvane::sql {

/// Writes what the open file holds, without its gaps and with its protection, to a new file. Raises
/// 58 when there is one of that name; a failure leaves no file behind.
void WriteCompactCopy(Database& database, const std::string& path);

}  // namespace lorvane::sql
