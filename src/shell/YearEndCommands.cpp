#include "shell/YearEndCommands.h"

#include "basic/Date.h"
#include "basic/Money.h"
#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/modForm.h"
#include "screen/modStatus.h"
#include "yearend/BackUpFirst.h"
#include "yearend/cYearEnd.h"
#include "yearend/modYearEnd.h"

namespace lorvane {
namespace {

bool AskYesNoCancel(ScreenContext context, const std::string& text, const char* title) {
  return context.services.MsgBox(text, box::kYesNoCancel | box::kQuestion, title) == answer::kYes;
}

// Four characters that make a number.
bool IsYear(const std::string& text) {
  constexpr std::size_t kDigits = 4;
  return IsNumeric(text) && Length(text) == kDigits;
}

void TellNoChange(ScreenContext context) {
  context.services.MsgBox("No change has been made.", box::kExclamation, "No Change");
}

bool AskAndResetMaximum(ScreenContext context) {
  const double amount = ToDouble(context.services.InputBox(
      "Enter the new maximum contribution amount.", "Reset Maximum Contribution"));
  if (amount <= 0) {
    TellNoChange(context);
    return false;
  }
  if (!AskYesNoCancel(context,
                      "You are about to change the current maximum\r\n"
                      "contribution amount for all employees to $" +
                          Money(amount) + ".\r\n\r\nAre you sure you want to continue?",
                      "Confirm New Amount") ||
      !ResetAllMaxContrib(*context.session.gDataConn, amount)) {
    return false;
  }
  context.services.MsgBox("Maximum contributions have been reset.", box::kInformation, "Complete");
  return true;
}

}  // namespace

std::optional<CompactionOutcome> CompactDatabase(ScreenContext context) {
  if (!AskYesNoCancel(context,
                      "This routine will compress your database and \r\n"
                      "improve your application's overall performance. \r\n"
                      "Please note that no information will be lost.\r\n\r\n"
                      "Do you wish to continue?",
                      "Compact Data")) {
    return std::nullopt;
  }
  context.services.SetPointer(pointer::kHourglass);
  CompactionOutcome outcome;
  outcome.noBackup = BackUpFirst(context);
  outcome.compaction = cYearEnd(context).ShowCompactDatabase_ADO();
  context.services.SetPointer(pointer::kDefault);
  StatusMsg(context, DescribeCompaction(outcome.compaction) +
                         (outcome.noBackup.empty() ? "" : ". " + outcome.noBackup));
  return outcome;
}

void PerformYearEnd(ScreenContext context) {
  if (!AgreesToYearEnd(context)) {
    return;
  }
  const std::string saved = StatusPush(context, "Performing year end procedure....please wait");
  const YearEndOutcome outcome = RunYearEnd(context, GetYearEndYear(context));
  StatusPop(context, saved, true);
  if (!outcome.noBackup.empty()) {
    StatusMsg(context, outcome.noBackup);
  }
}

bool AgreesToYearEnd(ScreenContext context) {
  return AskYesNoCancel(context,
                        "You are about to perform the year end procedure.\r\n"
                        "All of the current year's information will be compressed\r\n"
                        "and stored in a year end folder.\r\n\r\nDo you wish to continue?",
                        "Year End");
}

std::string GetYearEndYear(ScreenContext context) {
  ScreenServices& services = context.services;
  cINI ini = context.session.Ini();
  if (!ini.KeyGet("DataBase", "YE", "").empty()) {
    services.MsgBox(
        "You cannot perform a year end while\r\nviewing information from a previous\r\nyear.",
        box::kExclamation, "Unable to Perform Year End");
    return {};
  }
  std::string proposed = std::to_string(ToDate(ini.KeyGet("Assessment", "LastEntry", "")).year);
  if (services.MsgBox("The year end will be " + proposed + ".\r\n\r\nIs this year correct?",
                      box::kYesNo | box::kQuestion, "Year End") == answer::kYes) {
    return proposed;
  }
  std::string given = services.InputBox(
      "Please enter only the year of year end date. In other words, enter 2000 as the year end not "
      "December 31, 2000.",
      "Year End");
  if (!IsYear(given)) {
    services.MsgBox(
        "Invalid year. Please ensure that the four\r\n"
        "digit year (i.e. 2000) is entered correctly.",
        box::kExclamation, "Year");
    return {};
  }
  return given;
}

YearEndOutcome RunYearEnd(ScreenContext context, const std::string& year) {
  YearEndOutcome outcome;
  if (!year.empty()) {
    context.services.SetPointer(pointer::kHourglass);
    outcome.noBackup = BackUpFirst(context);
    cYearEnd yearEnd(context);
    yearEnd.Year = year;
    yearEnd.Destination = GetPathPart(context.session.gConfigFile);
    outcome.closed = yearEnd.PerformYE();
    yearEnd.ResetCurrentYear();
    yearEnd.ShowCompactDatabase_ADO();
  }
  context.services.SetPointer(pointer::kDefault);
  return outcome;
}

void UpdateRates(ScreenContext context) {
  try {
    cYearEnd yearEnd(context);
    // The class takes the rates of the year that follows the one being closed.
    const std::string current = context.session.Ini().KeyGet("Assessment", "CurrentYear", "");
    yearEnd.Year = std::to_string(ToInteger(current) - 1);
    static_cast<void>(yearEnd.UpdateRates());
  } catch (const RuntimeError& error) {
    ShowError(context, error, box::kExclamation);
  }
}

bool ResetMaximumContribution(ScreenContext context) {
  try {
    return AskAndResetMaximum(context);
  } catch (const RuntimeError& error) {
    if (error.Number() == error_number::kTypeMismatch) {
      TellNoChange(context);
    } else {
      ShowError(context, error, box::kExclamation);
    }
    return false;
  }
}

}  // namespace lorvane
