#pragma once

#include <string>
#include <string_view>

#include "basic/RuntimeError.h"

namespace lorvane::sql {

/// The error of a failed call of the database library. `message` is the library's own text, which
/// names tables and columns at most.
[[nodiscard]] RuntimeError ErrorOf(int extendedCode, const std::string& path,
                                   const std::string& message);

/// Whether the library's text means damage although its code is that of a wrong statement: the
/// description of the tables can't be read, or a page isn't what was written, which has no words of
/// its own.
[[nodiscard]] bool TellsOfDamage(std::string_view message);

}  // namespace lorvane::sql
