#pragma once

#include <string>

#include "cli/CommandProgram.h"
#include "reports/CompanyHeading.h"
#include "reports/ReportScreen.h"

namespace lorvane {

// What the commands that make reports share.

/// Raises UsageFailure for a file whose ending names no kind, CommandFailure for one whose folder
/// isn't there; an empty path is standard output.
void CheckOutput(CommandProgram& program, const std::string& path);

/// The company's heading; empty when its information was never filled in.
[[nodiscard]] CompanyHeading CompanyOf(CommandProgram& program);

/// Shows the window and gives the report that it made. Raises what stopped it.
[[nodiscard]] ReportDocument ReportOf(CommandProgram& program, ReportScreen& viewer);

/// Writes the report to the file, or as text to standard output.
void WriteOutput(CommandProgram& program, const ReportDocument& report, const std::string& path);

}  // namespace lorvane
