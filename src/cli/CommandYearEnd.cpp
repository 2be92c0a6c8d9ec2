#include <chrono>
#include <iostream>
#include <optional>
#include <utility>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Statements.h"
#include "company/cIndustry.h"
#include "data/FolderTurn.h"
#include "shell/YearEndCommands.h"
#include "yearend/cYearEnd.h"

namespace lorvane {
namespace {

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

// What closing empties, to tell afterwards whether it came to that.
std::string Payroll(CommandProgram& program) {
  std::string sums;
  for (const char* statement : {"SELECT Count(*) AS Payments FROM tblEmpHistory",
                                "SELECT Count(*) AS Payments FROM tblSubHistory",
                                "SELECT Sum(AccWages) AS Wages FROM tblEmployees"}) {
    sums += FirstValue(program.Connection(), statement) + '\n';
  }
  return sums;
}

/// One try at closing a year, and what is said and put back when it fails.
class Closing {
 public:
  Closing(CommandProgram& program, std::string year)
      : program_(program),
        year_(std::move(year)),
        folder_(GetPathPart(program.GetSession().gConfigFile) + year_),
        currentYear_(CurrentYear()),
        payroll_(Payroll(program)) {
    if (FolderExists()) {
      throw CommandFailure("'" + folder_ + "' is there already: is " + year_ +
                           " closed? If it isn't, the folder has to go first.");
    }
    program.Services().OnBox("Year End Folder", [this](const std::string&) {
      othersFolder_ = true;
      return false;
    });
  }

  /// Raises CommandFailure when the year is still open.
  void Run() {
    YearEndOutcome outcome;
    try {
      outcome = RunYearEnd(program_.Context(), year_);
    } catch (const RuntimeError& error) {
      CommandProgram::Warn(ErrorSentence(error.Number(), error.Description()));
      if (!PayrollIsAsItWas()) {
        throw CommandFailure("The year may be closed in part. Keep the folder '" + folder_ +
                             "': it holds the company as it was.");
      }
      Fail();
    }
    CommandProgram::Warn(outcome.noBackup);
    if (!outcome.closed) {
      Fail();
    }
    std::cout << "Closed " << year_ << ": the archive is " << folder_ << "/" << year_ << ".mdb.\n";
  }

 private:
  [[nodiscard]] std::string CurrentYear() const {
    return program_.GetSession().Ini().KeyGet("Assessment", "CurrentYear", "");
  }
  [[nodiscard]] bool FolderExists() const { return program_.GetSession().files.Exists(folder_); }

  [[nodiscard]] bool PayrollIsAsItWas() const {
    try {
      return payroll_ == Payroll(program_);
    } catch (const RuntimeError&) {
      return false;
    }
  }

  // The window's procedure steps the year on all the same. That one step is taken back: another
  // program that closes the year meanwhile takes its own.
  void TakeStepBack() const {
    const std::optional<double> now = ParseNumber(CurrentYear());
    if (now && *now > ToDouble(currentYear_)) {
      program_.GetSession().Ini().KeySave(ShortestText(*now - 1), "Assessment", "CurrentYear");
    }
  }

  [[noreturn]] void Fail() const {
    TakeStepBack();
    std::string advice;
    if (othersFolder_) {
      advice = " Another program has made the folder '" + folder_ +
               "' meanwhile. Keep it, and look at the company again.";
    } else if (FolderExists()) {
      advice = " Remove the folder '" + folder_ + "' before you try again.";
    }
    throw CommandFailure(
        "The year was not closed" +
        (othersFolder_ ? " here." + advice : ": payments and wages are as they were." + advice));
  }

  CommandProgram& program_;
  std::string year_;
  std::string folder_;
  std::string currentYear_;
  std::string payroll_;
  /// The folder was made by another program after this one had looked.
  bool othersFolder_ = false;
};

// Two programs that close a year at once would each step the current year on.
FolderTurn TurnToClose(const std::string& dataFile) {
  try {
    return FolderTurn(GetPathPart(dataFile), std::chrono::milliseconds(0));
  } catch (const RuntimeError&) {
    throw CommandFailure("Another program is closing a year of '" + dataFile +
                         "' at this moment. Nothing was changed.");
  }
}

}  // namespace

int RunCloseYear(const CommandOptions& options, const std::string& givenYear) {
  if (!givenYear.empty()) {
    static_cast<void>(YearOfArgument(givenYear));
  }
  CommandProgram program(options);
  program.OpenCompanyForPayments();
  if (!AgreesToYearEnd(program.Context())) {
    return program.Refused();
  }
  const std::string year = givenYear.empty() ? GetYearEndYear(program.Context()) : givenYear;
  if (year.empty()) {
    return program.Refused();
  }
  static_cast<void>(YearOfArgument(year));
  const FolderTurn turn = TurnToClose(program.File());
  Closing(program, year).Run();
  return 0;
}

int RunRollRates(const CommandOptions& options, const std::string& year) {
  static_cast<void>(YearOfArgument(year));
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
