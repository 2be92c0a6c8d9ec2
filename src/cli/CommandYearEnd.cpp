#include <iostream>

#include "basic/Number.h"
#include "basic/Text.h"
#include "cli/Commands.h"
#include "company/cIndustry.h"
#include "shell/YearEndCommands.h"
#include "yearend/cYearEnd.h"

namespace lorvane {
namespace {

void RequireYear(const std::string& year) {
  if (!IsYear(year) || year.find_first_not_of("0123456789") != std::string::npos) {
    throw CommandFailure("'" + year + "' is no year of four digits.");
  }
}

void PrintRates(const CommandProgram& program, Session& session) {
  cIndustry industries;
  industries.SetDataConnection(session.gDataConn.get());
  industries.SelectFilter = cIndustry::kSelectRates;
  if (!industries.OpenRecordset()) {
    throw CommandFailure("The rates of '" + program.File() + "' can't be read.");
  }
  for (const IndustrySlot slot : kAllSlots) {
    if (!industries.Sic[slot].empty()) {
      std::cout << "Industry " << LetterOf(slot) << ": SIC " << industries.Sic[slot] << ", rate "
                << ShortestText(industries.Rate[slot]) << " per $100\n";
    }
  }
}

}  // namespace

int RunCloseYear(const CommandOptions& options, const std::string& givenYear) {
  if (!givenYear.empty()) {
    RequireYear(givenYear);
  }
  CommandProgram program(options);
  program.OpenCompanyForPayments();
  Session& session = program.GetSession();
  if (!AgreesToYearEnd(program.Context())) {
    return 1;
  }
  const std::string year = givenYear.empty() ? GetYearEndYear(program.Context()) : givenYear;
  if (year.empty()) {
    return 1;
  }
  const std::string folder = GetPathPart(session.gConfigFile) + year;
  if (session.files.Exists(folder)) {
    throw CommandFailure("'" + folder + "' is there already: is " + year +
                         " closed? If it isn't, the folder has to go first.");
  }
  const std::string currentYear = session.Ini().KeyGet("Assessment", "CurrentYear", "");
  const YearEndOutcome outcome = RunYearEnd(program.Context(), year);
  CommandProgram::Warn(outcome.noBackup);
  if (!outcome.closed) {
    // The window's procedure steps the year on all the same.
    session.Ini().KeySave(currentYear, "Assessment", "CurrentYear");
    throw CommandFailure("The year was not closed: payments and wages are as they were." +
                         (session.files.Exists(folder)
                              ? " Remove the folder '" + folder + "' before you try again."
                              : std::string()));
  }
  std::cout << "Closed " << year << ": the archive is " << folder << "/" << year << ".mdb.\n";
  return 0;
}

int RunRollRates(const CommandOptions& options, const std::string& year) {
  RequireYear(year);
  CommandProgram program(options);
  program.OpenCompanyToChange();
  cYearEnd yearEnd(program.Context());
  yearEnd.Year = year;
  if (!yearEnd.UpdateRates()) {
    return 1;
  }
  PrintRates(program, program.GetSession());
  return 0;
}

}  // namespace lorvane
