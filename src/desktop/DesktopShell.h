#pragma once

#include "screen/ScreenServices.h"

namespace lorvane {

/// Hands a document, an address, a folder or a program to the desktop. "calc.exe" is the first
/// desktop calculator that is found. Raises 53 when a program or document can't be found.
[[nodiscard]] ShellResult RunOnDesktop(const ShellRequest& request);

/// Whether a process that RunOnDesktop started still runs.
[[nodiscard]] bool IsProcessRunning(int process);

}  // namespace lorvane
