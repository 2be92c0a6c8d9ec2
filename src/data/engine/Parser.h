#pragma once

#include <string_view>

#include "data/engine/Ast.h"

namespace lorvane::sql {

/// Reads one statement, with at most one semicolon behind it. Raises the engine's command error for
/// anything else. The result holds views into the text.
[[nodiscard]] Statement Parse(std::string_view text);

}  // namespace lorvane::sql
