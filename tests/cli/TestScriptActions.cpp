#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "ScriptTestRun.h"

namespace lorvane {
namespace {

using testing::HasSubstr;

// Runs the lines in the small window.
ScriptOutcome InWindow(const std::string& lines) {
  return RunOnSmallScreens("menu mnuFWindow\n" + lines);
}

struct Story {
  const char* title;
  const char* lines;
};

void PrintTo(const Story& story, std::ostream* out) { *out << story.title; }

class ScriptActionHolds : public testing::TestWithParam<Story> {};

TEST_P(ScriptActionHolds, InTheWindow) {
  const ScriptOutcome outcome = InWindow(GetParam().lines);
  EXPECT_TRUE(outcome.holds) << outcome.out;
}

constexpr Story kStories[] = {
    {"typing replaces the text and leaving runs the old field's event",
     "type txtName \"Cöté\"\nexpect txtName \"Cöté\"\nexpect lblLog entered\n"
     "click chkOn\nexpect lblLog \"entered, left\"\nexpect focus CHKON\nexpect Changed true"},
    {"typing nothing empties", "type txtName \"\"\nexpect txtName \"\""},
    {"typing into a mask",
     "type txtMasked \"41-6\"\nexpect txtMasked \"41-6\"\n"
     "type txtMasked \"\"\nexpect txtMasked \"__-_\""},
    {"keys are added, Enter moves on",
     "key txtName \"xy\"\nexpect txtName \"xybefore\"\nkey txtName Enter\nexpect focus txtDate"},
    {"leaving a field that has no focus yet",
     "leave txtName\nexpect focus txtDate\nexpect lblLog \"entered, left\""},
    {"Escape closes the window", "key txtName Escape\nexpect active frmMain"},
    {"a refused validation keeps the focus and the click undone",
     "type txtDate \"soon\"\nclick chkOn\nexpect chkOn.checked false\nexpect focus txtDate\n"
     "type txtDate \"1/5/2026\"\nclick chkOn\nexpect chkOn.checked true"},
    {"ticks only where the state differs",
     "tick chkOn\ntick chkOn\nexpect chkOn.checked true\nuntick chkOn\nexpect chkOn.checked false\n"
     "tick optB\nexpect optB.checked true\nexpect optA.checked false"},
    {"a list by index and by text, with its line break",
     "select lstItems 1\nexpect lstItems.index 1\nexpect lstItems \"two\\nlines\"\n"
     "select lstItems one\nexpect lstItems.index 0\nselect lstItems \"two\\nlines\"\n"
     "expect lstItems.index 1\nexpect lstItems[1] \"two\\nlines\"\nexpect lstItems.count 2"},
    {"a combo that fills itself when dropped down",
     "expect cboKind.count 0\nselect cboKind \"later\"\nexpect cboKind later\n"
     "select cboKind 0\nexpect cboKind late"},
    {"a combo with a field takes any text",
     "select cboFree \"2031\"\nexpect cboFree 2031\ntype cboFree \"2032\"\nexpect cboFree 2032"},
    {"rows by index and by the texts of their first places",
     "select lvwRows \"Burke\"\nexpect lvwRows.index 2\nselect lvwRows \"9\"\n"
     "expect lvwRows.index 1\nrows lvwRows 0 2\nexpect lvwRows.index 2\nrows lvwRows\n"
     "expect lvwRows.index -1\nexpect lvwRows[0,1] Doe\nexpect lvwRows[1] 9"},
    {"headings sort", "click lvwRows.column_1\nexpect lvwRows[0,1] \"Archer\""},
    {"double clicks",
     "doubleclick lstItems 0\ndoubleclick lvwRows Archer\n"
     "expect lblLog \"opened one, row 9\""},
    {"the right button and its menu",
     "rightclick lvwRows\nmenu mnuPoSort\nexpect lblLog \"right, sorted\""},
    {"dates",
     "pick dtpDay \"3/4/2026\"\nexpect dtpDay 3/4/2026\npick dtpDay \"3/4/2031\"\n"
     "expect dtpDay 3/4/2026\npick calDay 2026-02-03\nexpect calDay 2/3/2026"},
    {"pages turn by select, not by click",
     "select tabPages 1\nexpect tabPages \"Second\"\nclick tabPages\nselect tabPages \"First\"\n"
     "expect tabPages.index 0\nexpect tabPages[1] Second"},
    {"what can't be used is left alone",
     "click cmdOff\nclick cmdHidden\nexpect cmdHidden.visible false\nexpect cmdOff.enabled false\n"
     "expect lblLog \"\"\nexpect focus \"\""},
    {"properties of the screen and of a report", "expect Changed false\nexpect report.period May"},
};

INSTANTIATE_TEST_SUITE_P(Stories, ScriptActionHolds, testing::ValuesIn(kStories));

TEST(ScriptActions, TellWhyAControlWasLeftAlone) {
  const ScriptOutcome outcome = RunOnSmallScreens(
      "menu mnuOInside\nmenu mnuFWindow\nclick cmdOff\nclick cmdHidden\ntype txtDate \"x\"\n"
      "click cmdOK");
  EXPECT_TRUE(outcome.holds) << outcome.out;
  EXPECT_EQ(outcome.err,
            "[script] line 1: mnuOInside: mnuOff is disabled\n"
            "[script] line 3: cmdOff is disabled\n"
            "[script] line 4: cmdHidden is hidden\n"
            "[script] line 6: txtDate keeps the focus\n");
}

TEST(ScriptActions, RefuseWhatAUserCouldNotDo) {
  constexpr Story kFaults[] = {
      {"there is no txtNone on frmSmall", "type txtNone \"x\""},
      {"there is no mnuFWindow on frmSmall", "menu mnuFWindow"},
      {"cmdOK is no menu entry", "menu cmdOK"},
      {"cmdOK takes no text", "type cmdOK \"x\""},
      {"optA can't be unticked", "untick optA"},
      {"lstItems has no entry 2", "select lstItems 2"},
      {"lstItems has no entry \"none\"", "select lstItems \"none\""},
      {"lvwRows has no entry 3", "rows lvwRows 0 3"},
      {"cboKind has no entry \"none\"", "select cboKind \"none\""},
      {"cmdOK offers nothing to select", "select cmdOK 0"},
      {"there is no column lvwRows.column_2", "click lvwRows.column_2"},
      {"there is no key Return", "key txtName Return"},
      {"\"32/32/2026\" is no date", "pick calDay \"32/32/2026\""},
      {"txtName has no dates", "pick txtName \"1/1/2026\""},
      {"lstItems has no entry 2, only 2 entries", "expect lstItems[2] \"x\""},
      {"there is no lstItems.colour on frmSmall", "expect lstItems.colour blue"},
      {"there is no Nothing on frmSmall", "print Nothing"},
  };
  for (const Story& fault : kFaults) {
    const ScriptOutcome outcome = InWindow(fault.lines);
    EXPECT_FALSE(outcome.holds) << fault.lines;
    EXPECT_EQ(outcome.out, std::string("story:2: ") + fault.title + "\n");
  }
}

TEST(ScriptActions, PrintAndDumpShowTheScreen) {
  const ScriptOutcome outcome = InWindow("focus txtName\nprint txtName\nprint focus\ndump");
  EXPECT_TRUE(outcome.holds) << outcome.out;
  EXPECT_THAT(outcome.out, HasSubstr("before\ntxtName\nfrmSmall \"Small\"\n"
                                     "  txtName \"before\" focus\n"));
  EXPECT_THAT(outcome.out, HasSubstr("  cmdOff \"\" disabled\n  cmdHidden \"\" hidden\n"));
  EXPECT_THAT(outcome.out, HasSubstr("    1   \"two\\nlines\"\n"));
}

}  // namespace
}  // namespace lorvane
