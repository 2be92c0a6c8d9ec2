#pragma once

#include "screen/ScreenContext.h"

namespace lorvane {

/// Opens the manual, with the hourglass meanwhile, and tells the user when that fails.
void ShowManual(ScreenContext context);
/// Opens the window that tells the version.
void ShowAbout(ScreenContext context);

}  // namespace lorvane
