#pragma once

#include <memory>

#include "reports/ReportPainter.h"

namespace lorvane {

/// Writes PDF where there is no display and no desktop program. Fonts are looked for at the first
/// use, so that whoever writes none waits for none. One at a time.
[[nodiscard]] std::unique_ptr<ReportPainter> MakeOffscreenPainter();

}  // namespace lorvane
