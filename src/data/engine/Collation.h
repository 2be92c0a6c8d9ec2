#pragma once

#include <string_view>

namespace lorvane {

/// Orders two texts as the data engine does: by letters first, accents second, case not at all.
/// Negative, zero or positive.
[[nodiscard]] int CompareTexts(std::string_view left, std::string_view right);

}  // namespace lorvane
