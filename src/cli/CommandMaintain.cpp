#include <iostream>

#include "basic/Money.h"
#include "basic/RuntimeError.h"
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "import/ImportReport.h"
#include "shell/YearEndCommands.h"

namespace lorvane {
namespace {

// What the window would refuse without a reason, or only when it comes to the first employee.
void RequireMaximum(const std::string& text) {
  const std::string refusal = "No change has been made: '" + text + "' ";
  try {
    const Currency amount = Currency::FromDouble(AmountOf(text));
    if (amount <= Currency()) {
      throw UsageFailure(refusal + "is not above zero.");
    }
  } catch (const RuntimeError& error) {
    throw UsageFailure(refusal + (error.Number() == error_number::kOverflow
                                      ? "is too large an amount."
                                      : "is no amount."));
  }
}

}  // namespace

int RunCompact(const CommandOptions& options) {
  CommandProgram program(options);
  program.OpenCompany();
  const std::optional<CompactionOutcome> outcome = CompactDatabase(program.Context());
  if (!outcome) {
    return program.Refused();
  }
  CommandProgram::Warn(outcome->noBackup);
  if (!outcome->compaction.done) {
    throw CommandFailure(DescribeCompaction(outcome->compaction));
  }
  std::cout << DescribeCompaction(outcome->compaction) << ".\n";
  return 0;
}

int RunResetMaximum(const CommandOptions& options, const std::string& amount) {
  RequireMaximum(amount);
  CommandProgram program(options);
  program.OpenCompanyToChange();
  program.Services().OnInput("Reset Maximum Contribution", amount);
  if (!ResetMaximumContribution(program.Context())) {
    return program.Refused();
  }
  program.RaiseEngineError();
  const Value count = program.QueryValue("SELECT Count(*) AS Rows FROM tblEmployees");
  std::cout << "Set the maximum contribution of "
            << Counted(static_cast<std::size_t>(std::get<std::int32_t>(count)), "employee",
                       "employees")
            << ".\n";
  return 0;
}

}  // namespace lorvane
