#pragma once

#include <string>

namespace lorvane {

/// Raises 75 with a sentence about a file that can't be taken as a spreadsheet: its name in quotes,
/// a blank and the reason.
[[noreturn]] void RefuseSheet(const std::string& path, const std::string& reason);

}  // namespace lorvane
