#pragma once

#include <cstddef>
#include <string>

#include "data/DataConnection.h"
#include "import/ImportProgress.h"

namespace lorvane {

/// Copies all sub-contractors of another company's data file into the company that `session` has
/// open, and gives their number. The source is opened with the session's password, or else with
/// none, and not changed. The new rows are numbered by the engine; the key counter isn't touched;
/// nobody who is on file already is looked for, so a second copy doubles the rows.
///
/// Raises the engine's error, and 6 past 32,766 rows, for which the counter has no room; then
/// nothing is added.
std::size_t ImportSubContractors(const DataConnection& session, const std::string& sourcePath,
                                 const ImportProgress& progress = {});

}  // namespace lorvane
