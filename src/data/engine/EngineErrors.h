#pragma once

#include <string>

#include "basic/RuntimeError.h"

namespace lorvane::sql {

/// The error of a failed call of the database library. `message` is the library's own text, which
/// names tables and columns at most.
[[nodiscard]] RuntimeError ErrorOf(int extendedCode, const std::string& path,
                                   const std::string& message);

}  // namespace lorvane::sql
