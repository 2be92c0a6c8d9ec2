#pragma once

#include <optional>
#include <string>

#include "screen/ScreenContext.h"
#include "yearend/Compaction.h"

namespace lorvane {

// The main window's commands that close a year and keep the data file in shape. Each works on the
// open company.

struct CompactionOutcome {
  Compaction compaction;
  /// Why there is no backup of what was before; empty when there is one or none is due.
  std::string noBackup;
};

/// Compact Database: asks, makes a backup and compacts. Nothing when the user doesn't want it. The
/// outcome stands in the status bar.
std::optional<CompactionOutcome> CompactDatabase(ScreenContext context);

/// Year End Procedure: asks, and closes the year that is agreed on. An error of a step that tells
/// none itself is raised.
void PerformYearEnd(ScreenContext context);
/// The first question of it; true for Yes.
[[nodiscard]] bool AgreesToYearEnd(ScreenContext context);
/// Proposes the year of the last entry and asks for another when it isn't right. Empty, and told,
/// when the procedure must not go on. Raises 13 when the date of the last entry is none.
[[nodiscard]] std::string GetYearEndYear(ScreenContext context);
struct YearEndOutcome {
  /// The year was archived and closed.
  bool closed = false;
  /// As that of a compaction.
  std::string noBackup;
};

/// Makes a backup, closes the year, steps the current year on and compacts. The last two are done
/// whether or not the year could be closed; nothing at all for an empty year.
YearEndOutcome RunYearEnd(ScreenContext context, const std::string& year);

/// Takes the company's rates from the published table of its current year. What came of it is told,
/// an error too.
void UpdateRates(ScreenContext context);

/// Reset Maximum Contribution: asks for the amount and sets it for every employee. True when done.
bool ResetMaximumContribution(ScreenContext context);

}  // namespace lorvane
