#pragma once

#include <string>

#include "screen/ScreenContext.h"

namespace lorvane {

/// Makes a backup of the open company before a command that changes much of it, when the disk has
/// room for the backup and for what the command writes itself. The archive of a closed year gets
/// none. Gives the sentence for the status bar when no backup could be made, which stops nobody;
/// empty otherwise.
[[nodiscard]] std::string BackUpFirst(ScreenContext context);

}  // namespace lorvane
