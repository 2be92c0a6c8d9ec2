#pragma once

#include <string>

#include "screen/ScreenContext.h"

namespace lorvane {

/// Copies the empty data file that comes with the program to a new company's place. A file that is
/// there already is never replaced. Failures are told; false then, with nothing left at the
/// destination.
[[nodiscard]] bool CopyTemplateDatabase(ScreenContext context, const std::string& destination);

/// Writes the configuration file beside a new data file, with every key in the order that its
/// readers rely on. The session's path of that file and its data source point to the folder
/// afterwards; the caller sets both to their files. A write that fails goes unnoticed.
void CreateConfigFile(ScreenContext context, const std::string& dataFile);

}  // namespace lorvane
