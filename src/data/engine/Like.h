#pragma once

#include <string_view>

namespace lorvane::sql {

/// Whether the whole text fits the pattern, without regard to case: % stands for any characters, _
/// for one, [a-f] for one of a list and [!a-f] for one that isn't in it.
[[nodiscard]] bool FitsPattern(std::string_view text, std::string_view pattern);

}  // namespace lorvane::sql
