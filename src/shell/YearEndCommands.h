#pragma once

#include <optional>
#include <string>

#include "screen/ScreenContext.h"
#include "yearend/Compaction.h"

namespace lorvane {

// The main window's commands that close a year and keep the data file in shape. Each works on the
// open company.

/// Compact Database: asks and compacts. Nothing when the user doesn't want it. The result stands in
/// the status bar.
std::optional<Compaction> CompactDatabase(ScreenContext context);

/// Year End Procedure: asks, and closes the year that is agreed on. An error of a step that tells
/// none itself is raised.
void PerformYearEnd(ScreenContext context);
/// The first question of it; true for Yes.
[[nodiscard]] bool AgreesToYearEnd(ScreenContext context);
/// Proposes the year of the last entry and asks for another when it isn't right. Empty, and told,
/// when the procedure must not go on. Raises 13 when the date of the last entry is none.
[[nodiscard]] std::string GetYearEndYear(ScreenContext context);
/// Four digits as a user writes a year.
[[nodiscard]] bool IsYear(const std::string& text);
/// Closes the year, steps the current year on and compacts. The last two are done whether or not
/// the first succeeded; nothing at all for an empty year. True when the year was closed.
bool RunYearEnd(ScreenContext context, const std::string& year);

/// Reset Maximum Contribution: asks for the amount and sets it for every employee. True when done.
bool ResetMaximumContribution(ScreenContext context);

}  // namespace lorvane
