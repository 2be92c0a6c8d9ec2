#include <iostream>

#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "import/ImportReport.h"
#include "import/ImportSubContractors.h"
#include "import/frmImport.h"
#include "yearend/BackUpFirst.h"

namespace lorvane {
namespace {

void TellOutcome(const ImportOutcome& outcome) {
  if (!outcome.unreadable.empty()) {
    throw CommandFailure(outcome.unreadable);
  }
  for (const RefusedRow& refused : outcome.refused) {
    std::cerr << "row " << refused.row << ": " << refused.reason << '\n';
  }
  if (const std::string besides = DescribeOutcome(outcome); !besides.empty()) {
    std::cerr << besides << '\n';
  }
  if (outcome.end == ImportOutcome::End::kImported) {
    const auto rows = static_cast<std::size_t>(outcome.rows - outcome.onFile);
    std::cout << "Imported " << Counted(rows - outcome.refused.size(), "row", "rows") << ".\n";
  }
}

}  // namespace

int RunImportSheet(const CommandOptions& options, const ImportOptions& import) {
  if (import.columns && *import.columns < 1) {
    throw UsageFailure("--columns takes a number from 1 on, not " +
                       std::to_string(*import.columns) + ".");
  }
  CommandProgram program(options);
  program.OpenCompanyToChange();
  std::optional<ImportOutcome> outcome;
  program.Services().OnModal("frmImport", [&](Screen& screen) {
    auto& window = dynamic_cast<frmImport&>(screen);
    window.ChooseSource(import.sheet);
    if (import.columns) {
      window.txtNumberCols.SetText(std::to_string(*import.columns));
    }
    window.chkSkip.SetChecked(import.skipPeopleOnFile);
    window.cmdImportExcel.UserClick();
    outcome = window.Outcome();
    CommandProgram::Warn(window.NoBackup());
  });
  program.Services().OpenScreen(
      "frmImport", {{"Employee", import.employees ? "true" : "false"}, {"Excel", "true"}});
  if (!outcome) {
    return program.Refused();
  }
  TellOutcome(*outcome);
  return outcome->end == ImportOutcome::End::kImported && outcome->refused.empty() ? 0 : 1;
}

int RunImportCompany(const CommandOptions& options, const std::string& source) {
  CommandProgram program(options);
  program.OpenCompanyToChange();
  ImportProgress progress;
  progress.onCount = [&](std::size_t count) {
    if (count > 0) {
      CommandProgram::Warn(BackUpFirst(program.Context()));
    }
  };
  const std::size_t rows =
      ImportSubContractors(*program.GetSession().gDataConn, AbsolutePath(source), progress);
  std::cout << "Imported " << Counted(rows, "sub-contractor", "sub-contractors") << ".\n";
  return 0;
}

}  // namespace lorvane
