#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "ScriptTestRun.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

using testing::HasSubstr;

void ExpectHolds(const std::string& script, const std::string& folder = {}) {
  const ScriptOutcome outcome = RunOnSmallScreens(script, folder);
  EXPECT_TRUE(outcome.holds) << outcome.out << "in:\n" << script;
  EXPECT_EQ(outcome.out, "");
}

// The script fails with just that line on standard output.
void ExpectFails(const std::string& reason, const std::string& script) {
  const ScriptOutcome outcome = RunOnSmallScreens(script);
  EXPECT_FALSE(outcome.holds) << script;
  EXPECT_EQ(outcome.out, "story:" + reason + "\n");
}

TEST(ScriptRunner, LinesInsideAWindowRunBeforeItsOpenerGoesOn) {
  ExpectHolds(
      "menu mnuFWindow\n"
      "click cmdChild\n"
      "click cmdChild\n"
      "expect lblLog \"\"\n"
      "close\n"
      "expect lblLog \"child closed\"\n"
      "click cmdOK\n"
      "expect active frmSmall\n"
      "expect lblLog \"child closed\"\n"
      "close\n"
      "expect active frmMain\n"
      "expect title Main");
}

TEST(ScriptRunner, ARefusedClosingLeavesTheWindow) {
  ExpectHolds(
      "menu mnuFWindow\ntype txtName \"x\"\nanswer no\nclose\nexpect active frmSmall\n"
      "answer yes\nclose\nexpect active frmMain\nexpect box Small \"Leave\\nwithout saving?\"\n"
      "expect box * \"Leave\\nwithout saving?\"\nexpect nobox");
}

TEST(ScriptRunner, OpenWindowsAreLeftWithoutAQuestionAtTheEnd) {
  ExpectHolds("menu mnuFWindow\nclick cmdChild\ntype txtName \"unsaved\"");
}

TEST(ScriptRunner, RestartUnwindsEveryWindow) {
  ExpectHolds(
      "menu mnuFWindow\nclick cmdChild\ntype txtName \"unsaved\"\nrestart\nexpect active frmMain\n"
      "menu mnuFWindow\nexpect txtName before\nclose\nexpect active frmMain");
}

TEST(ScriptRunner, FailsTakesInTheLinesOfTheWindowsItOpens) {
  ExpectHolds(
      "fails 0x80040E14 menu mnuFFail\n"
      "expect active frmMain\n"
      "fails 13 menu mnuFWindow\n"
      "click cmdChild\n"
      "click cmdFail\n"
      "expect active frmMain\n"
      "expect nobox");
}

TEST(ScriptRunner, FailsSaysWhatCameInstead) {
  ExpectFails("1: expected run-time error 13 but there was none", "fails 13 menu mnuOff");
  ExpectFails("1: expected run-time error 13 but it was run-time error 0x80040E14: bad / line",
              "fails 13 menu mnuFFail");
  ExpectFails("1: expected run-time error 13 but the program was started afresh",
              "fails 13 menu mnuFWindow\nrestart");
  ExpectFails("1: expected run-time error 13 but the script came to its end",
              "fails 13 menu mnuFWindow\nexpect active frmSmall");
  ExpectFails("1: expected run-time error 13 but the program ended", "fails 13 menu mnuFExit");
}

TEST(ScriptRunner, AnUnhandledErrorEndsTheProgramBehindItsBox) {
  const ScriptOutcome outcome = RunOnSmallScreens("menu mnuFWindow\n\nclick cmdFail\nprint title");
  EXPECT_FALSE(outcome.holds);
  EXPECT_EQ(outcome.out, "story:3: run-time error 13: Type mismatch\n");
  EXPECT_THAT(outcome.err, HasSubstr("[Error] 13 / Type mismatch\n"));
}

// The handler of the window's opener is none for the window's own events.
TEST(ScriptRunner, AnOpenersHandlerDoesNotTakeAWindowsError) {
  ExpectHolds("fails 13 menu mnuFGuarded\nclick cmdFail\nexpect nobox");
}

TEST(ScriptRunner, AnEndedProgramCanOnlyBeStartedAgain) {
  ExpectHolds(
      "answer yes\nmenu mnuFAsk\nmenu mnuFWindow\nkey txtName Escape\nmenu mnuFExit\n"
      "expect box Ask *\n"
      "restart\nexpect active frmMain");
  ExpectHolds("menu mnuFExit\nopen \"/none.mdb\"\nexpect active frmMain");
  ExpectFails("2: the program has ended", "close\nexpect title Main");
  ExpectFails("2: the program has ended", "menu mnuFExit\nmenu mnuFAsk");
}

TEST(ScriptRunner, AnswersAreTakenInTurnAndMustFit) {
  ExpectHolds(
      "answer yes\nanswer no\nmenu mnuFAsk\nmenu mnuFAsk\nexpect box Ask \"Shall\\nit?\"\n"
      "expect box Told done\nexpect box * \"Shall\\nit?\"\nexpect box Told left\nexpect nobox");
  ExpectHolds(
      "answer \"Burke\"\nanswer cancel\nanswer ok\nmenu mnuFFind\nmenu mnuFFind\nmenu mnuFFind\n"
      "expect box Lorvane Burke\nexpect box Lorvane \"\"\nexpect box Lorvane Doe\n"
      "expect input Find \"Whom?\"\nexpect input * *");
  ExpectFails("2: no answer is left for \"Ask\" \"Shall\\nit?\"", "expect pointer 0\nmenu mnuFAsk");
  ExpectFails("1: the answer \"yes\" is left over", "answer \"yes\"\nexpect nobox");
  ExpectFails("2: \"Ask\" \"Shall\\nit?\" can't be answered with cancel",
              "answer cancel\nmenu mnuFAsk");
  ExpectFails("2: \"Ask\" \"Shall\\nit?\" can't be answered with \"yes\"",
              "answer \"yes\"\nmenu mnuFAsk");
  ExpectFails("2: \"Find\" \"Whom?\" can't be answered with no", "answer no\nmenu mnuFFind");
}

TEST(ScriptRunner, BoxesAreComparedInTheirOrder) {
  ExpectFails("3: expected box \"Told\" \"done\" but it is \"Ask\" \"Shall\\nit?\"",
              "answer yes\nmenu mnuFAsk\nexpect box Told done");
  ExpectFails("2: expected box \"*\" \"x\" but there is none", "expect nobox\nexpect box * x");
  ExpectFails("3: expected no box but there is \"Ask\" \"Shall\\nit?\"",
              "answer yes\nmenu mnuFAsk\nexpect nobox");
  ExpectFails("1: expected input \"Find\" \"Whom?\" but there is none",
              "expect input Find \"Whom?\"");
}

TEST(ScriptRunner, RefusesAWholeScriptBeforeItsFirstStep) {
  ExpectFails("3: there is no step \"clack\"", "menu mnuFAsk\n\nclack cmdOK");
  ExpectFails("2: click stands with the wrong number of words", "menu mnuFAsk\nclick");
  ExpectFails("2: expect stands with the wrong number of words", "menu mnuFAsk\nexpect box x");
  ExpectFails("2: fails takes an error's number and a line", "menu mnuFAsk\nfails often close");
  ExpectFails("2: there is no step \"nothing\"", "menu mnuFAsk\nfails 13 nothing");
  ExpectFails("1: there is no screen frmMissing", "menu mnuFMissing");
}

TEST(ScriptRunner, OpensACompanyReadsAndWritesIt) {
  TestCompany company;
  company.Execute(
      "INSERT INTO tblEmployees (EmployeeId, LastName, AccWages) VALUES (7, 'Doe', 12.5)");
  company.GetSession().gDataConn->DataClose();
  ExpectHolds(
      "open \"${DIR}/Data.mdb\"\n"
      "expect sql \"SELECT AccWages FROM tblEmployees\" 12.5\n"
      "sql \"UPDATE tblEmployees SET LastName = Null\"\n"
      "sql \"SELECT LastName FROM tblEmployees\"\n"
      "expect sql \"SELECT LastName FROM tblEmployees\" \"\"\n"
      "expect sql \"SELECT LastName FROM tblEmployees WHERE EmployeeId = 8\" \"\"\n"
      "fails 0x80040E10 sql \"UPDATE tblEmployees SET Nickname = 'x'\"\n"
      "fails 3704 expect sql \"SELECT LastName FROM tblEmployees\" \"\"\n"
      "answer \"${DIR}/Data.mdb\"\n"
      "menu mnuFOpenCompany\n"
      "expect input \"Data Location\" \"Files|*.mdb\"\n"
      "ini Assessment Default NA\n"
      "expect ini Assessment Default NA\n"
      "expect file \"${DIR}/lorvaneconfig.ini\" false\n"
      "expect file \"${DIR}/LorvaneConfig.ini\" true",
      company.Folder());
  ExpectFails("1: no company is open", "ini Assessment Default 1");
}

TEST(ScriptRunner, AFailedExpectationNamesBothTexts) {
  ExpectFails("2: expected txtName to be \"x\" but it is \"before\"",
              "menu mnuFWindow\nexpect txtName \"x\"");
  ExpectFails("1: expected active to be \"frmSmall\" but it is \"frmMain\"",
              "expect active frmSmall");
  ExpectFails("1: expected pointer to be \"11\" but it is \"0\"", "expect pointer 11");
  ExpectFails("1: expected file \"/none\" to be \"true\" but it is \"false\"",
              "expect file /none true");
}

}  // namespace
}  // namespace lorvane
