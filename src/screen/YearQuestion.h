#pragma once

#include <cstdint>

#include "screen/ScreenContext.h"

namespace lorvane {

/// Whether a year that the user gave can be a company's current year: 2000 to 2100. The user is
/// told when not; `tooEarly` is the sentence for the years 1000 to 1999.
[[nodiscard]] bool AcceptYear(ScreenContext context, std::int16_t year, const char* tooEarly);

}  // namespace lorvane
