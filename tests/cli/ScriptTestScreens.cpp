#include "ScriptTestScreens.h"

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/modForm.h"

namespace lorvane {

SmallMain::SmallMain(ScreenContext context)
    : Screen(context, "frmMain", "Main"),
      mnuFile_(*this, "mnuFile", "&File"),
      mnuFOpenCompany_(mnuFile_, "mnuFOpenCompany", "&Open"),
      mnuFWindow_(mnuFile_, "mnuFWindow", "&Window"),
      mnuFGuarded_(mnuFile_, "mnuFGuarded", "&Guarded window"),
      mnuFMissing_(mnuFile_, "mnuFMissing", "&Missing window"),
      mnuFFail_(mnuFile_, "mnuFFail", "F&ail"),
      mnuFAsk_(mnuFile_, "mnuFAsk", "As&k"),
      mnuFFind_(mnuFile_, "mnuFFind", "F&ind"),
      mnuFExit_(mnuFile_, "mnuFExit", "E&xit"),
      mnuOff_(*this, "mnuOff", "O&ff"),
      mnuOInside_(mnuOff_, "mnuOInside", "&Inside") {
  mnuOff_.SetEnabled(false);
  mnuFOpenCompany_.OnClick = [this] { OpenCompany(); };
  mnuFWindow_.OnClick = [this] { context_.services.OpenScreen("frmSmall"); };
  mnuFGuarded_.OnClick = [this] {
    try {
      context_.services.OpenScreen("frmSmall");
    } catch (const RuntimeError& error) {
      ShowError(context_, error, box::kExclamation);
    }
  };
  mnuFMissing_.OnClick = [this] { context_.services.OpenScreen("frmMissing"); };
  mnuFFail_.OnClick = [] { throw RuntimeError(error_number::kEngineCommand, "bad\r\nline"); };
  mnuFAsk_.OnClick = [this] {
    const int given = context_.services.MsgBox("Shall\r\nit?", box::kYesNo | box::kQuestion, "Ask");
    context_.services.MsgBox(given == answer::kYes ? "done" : "left", box::kInformation, "Told");
  };
  mnuFFind_.OnClick = [this] {
    context_.services.MsgBox(context_.services.InputBox("Whom?", "Find", "Doe"));
  };
  mnuFExit_.OnClick = [this] { Close(); };
}

bool SmallMain::QueryUnload() { throw ProgramEnded{}; }

void SmallMain::OpenCompany() {
  Session& session = context_.session;
  session.gDataConn->DataSource =
      context_.services.AskForFile({"Data Location", "Files|*.mdb", "/start/Data.mdb"});
  session.gDataConn->DataOpen();
  session.gConfigFile = GetPathPart(session.gDataConn->DataSource) + "LorvaneConfig.ini";
}

SmallWindow::SmallWindow(ScreenContext context)
    : Screen(context, "frmSmall", "Small"),
      txtName_(*this, "txtName"),
      txtDate_(*this, "txtDate"),
      txtMasked_(*this, "txtMasked", "##-#"),
      chkOn_(*this, "chkOn", "On"),
      optA_(*this, "optA", "group"),
      optB_(*this, "optB", "group"),
      lstItems_(*this, "lstItems"),
      cboKind_(*this, "cboKind"),
      cboFree_(*this, "cboFree", ComboBox::Style::kDropDown),
      lvwRows_(*this, "lvwRows", true),
      dtpDay_(*this, "dtpDay", {2026, 1, 1}),
      calDay_(*this, "calDay"),
      tabPages_(*this, "tabPages", {"First", "Second"}),
      cmdOK_(*this, "cmdOK", "&OK"),
      cmdChild_(*this, "cmdChild"),
      cmdFail_(*this, "cmdFail"),
      cmdOff_(*this, "cmdOff"),
      cmdHidden_(*this, "cmdHidden"),
      lblLog_(*this, "lblLog"),
      mnuPopUp_(*this, "mnuPopUp", "", true),
      mnuPoSort_(mnuPopUp_, "mnuPoSort", "Sort") {
  txtName_.SetText("before");
  txtName_.OnChange = [this] { changed_ = true; };
  txtName_.OnLostFocus = [this] { Log("left"); };
  txtName_.OnGotFocus = [this] { Log("entered"); };
  txtDate_.OnValidate = [this] { return txtDate_.Text().empty() || IsDate(txtDate_.Text()); };
  lstItems_.Add("one", 1);
  lstItems_.Add("two\r\nlines", 2);
  lstItems_.OnDoubleClick = [this] { Log("opened " + lstItems_.ShownText().substr(0, 3)); };
  cboKind_.OnDropDown = [this] {
    cboKind_.Clear();
    cboKind_.Add("late");
    cboKind_.Add("later");
  };
  lvwRows_.SetColumns({{"ID", 0}, {"Name", 1000}});
  lvwRows_.AddRows({{{"7", "Doe"}}, {{"9", "Archer"}}, {{"8", "Burke"}}});
  lvwRows_.OnColumnClick = [this](std::size_t column) { lvwRows_.SortBy(column); };
  lvwRows_.OnDoubleClick = [this] { Log("row " + lvwRows_.ShownText()); };
  lvwRows_.OnMouseUp = [this](MouseButton button) {
    Log(button == MouseButton::kRight ? "right" : "left button");
  };
  dtpDay_.SetLimits(DateTime{2026, 1, 1}, DateTime{2026, 12, 31});
  cmdOK_.OnClick = [this] { Close(); };
  cmdChild_.OnClick = [this] {
    context_.services.OpenScreen("frmSmall");
    Log("child closed");
  };
  cmdFail_.OnClick = [] { throw RuntimeError(error_number::kTypeMismatch); };
  cmdOff_.SetEnabled(false);
  cmdHidden_.SetVisible(false);
  mnuPopUp_.SetVisible(false);
  mnuPoSort_.OnClick = [this] { Log("sorted"); };
}

bool SmallWindow::QueryUnload() {
  return !changed_ || AskYesNo(context_, "Leave\r\nwithout saving?");
}

std::optional<std::string> SmallWindow::Property(std::string_view name) const {
  if (name == "Changed") {
    return FlagText(changed_);
  }
  return name == "report.period" ? std::optional<std::string>("May") : std::nullopt;
}

void SmallWindow::KeyPreview(int& key) {
  if (key == key_code::kEscape) {
    Close();
  } else if (key == key_code::kEnter) {
    key = key_code::kTab;
  }
}

void SmallWindow::Log(const std::string& event) {
  lblLog_.SetCaption(lblLog_.Caption().empty() ? event : lblLog_.Caption() + ", " + event);
}

ScreenRegistry SmallScreens() {
  ScreenRegistry registry;
  registry.Add<SmallMain>("frmMain");
  registry.Add<SmallWindow>("frmSmall");
  return registry;
}

}  // namespace lorvane
