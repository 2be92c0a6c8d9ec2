#include <iostream>

#include "cli/Commands.h"
#include "shell/YearEndCommands.h"

namespace lorvane {

int RunCompact(const CommandOptions& options) {
  CommandProgram program(options);
  program.OpenCompany();
  const std::optional<CompactionOutcome> outcome = CompactDatabase(program.Context());
  if (!outcome) {
    return 1;
  }
  CommandProgram::Warn(outcome->noBackup);
  if (!outcome->compaction.done) {
    throw CommandFailure(DescribeCompaction(outcome->compaction));
  }
  std::cout << DescribeCompaction(outcome->compaction) << ".\n";
  return 0;
}

int RunResetMaximum(const CommandOptions& options, const std::string& amount) {
  CommandProgram program(options);
  program.OpenCompanyToChange();
  program.Services().OnInput("Reset Maximum Contribution", amount);
  if (!ResetMaximumContribution(program.Context())) {
    return 1;
  }
  program.RaiseEngineError();
  const Value count = program.QueryValue("SELECT Count(*) AS Rows FROM tblEmployees");
  std::cout << "Set the maximum contribution of " << TextOf(count) << " employees.\n";
  return 0;
}

}  // namespace lorvane
