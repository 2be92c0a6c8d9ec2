#pragma once

#include <string>

#include "data/Files.h"
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

/// Whether the folder of that file holds a company already.
[[nodiscard]] bool HoldsCompany(Files& files, const std::string& dataFile);

/// Makes both files of a new company. After a failure, which is told, there is none of them and the
/// session is as before.
[[nodiscard]] bool MakeCompanyFiles(ScreenContext context, const std::string& dataFile);

/// Opens the company whose files were just made, in place of the one that was open. When its data
/// file can't be opened, or is damaged, that is told, both files go, and the connection is closed
/// for good: the program must end.
[[nodiscard]] bool OpenNewCompany(ScreenContext context, const std::string& dataFile);

}  // namespace lorvane
