#include "shell/frmMain.h"

#include <array>

#include "Version.h"
#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/modForm.h"
#include "screen/modHelp.h"
#include "screen/modStatus.h"
#include "shell/TableUpgrades.h"
#include "shell/YearEndCommands.h"
#include "shell/modLorvane.h"

namespace lorvane {
namespace {

constexpr int kWhite = 0xFFFFFF;

struct WindowProperty {
  const char* name = "";
  const char* value = "";
};

// Entries that open a window and do nothing else.
struct WindowEntry {
  const char* entry;
  const char* screen;
  std::array<WindowProperty, 2> properties{};
};

constexpr std::array kWindowEntries{
    WindowEntry{"mnuFEnterPayments", "frmSelectAssessment"},
    WindowEntry{"mnuFEmployerUpdate", "frmOptions"},
    WindowEntry{"mnuFAssetLog", "frmAssets"},
    WindowEntry{"mnuFSubContractors", "frmSubContractor"},
    WindowEntry{"mnuFEmployees", "frmEmployees"},
    WindowEntry{"mnuFUserSettings", "frmCompany"},
    WindowEntry{"mnuFContractTypes", "frmContracts"},
    WindowEntry{"mnuFIEmployees", "frmImport", {{{"Employee", "true"}, {"Excel", "true"}}}},
    WindowEntry{"mnuFISExcel", "frmImport", {{{"Employee", "false"}, {"Excel", "true"}}}},
    WindowEntry{"mnuFISCompany", "frmImportExisting"},
    WindowEntry{"mnuRRAnnualSubCon", "frmRemittanceCalc"},
    WindowEntry{"mnuRREmpRemitt", "frmRemittanceCalc"},
    WindowEntry{"mnuRRSubConRemitt", "frmRemittanceCalc"},
    WindowEntry{"mnuRRQSubCon", "frmRemittanceCalc"},
    WindowEntry{"mnuREmployerYEUpdate", "frmRemittanceCalc", {{{"SelectReportOptions", "1"}}}},
    WindowEntry{"mnuRPrincipalReport", "frmRemittanceCalc", {{{"SelectReportOptions", "3"}}}},
    WindowEntry{"mnuRAssetLog", "frmRemittanceCalc", {{{"SelectReportOptions", "2"}}}},
    WindowEntry{"mnuRClearance", "frmReports", {{{"SelectReportType", "3"}}}},
};

// Commands of the main window itself that need nothing of it.
struct CommandEntry {
  const char* entry;
  void (*run)(ScreenContext);
};

template <WindowArrangement arrangement>
void Arrange(ScreenContext context) {
  context.services.ArrangeWindows(arrangement);
}

constexpr std::array kCommandEntries{
    CommandEntry{"mnuFCompactDataBase", [](ScreenContext context) { CompactDatabase(context); }},
    CommandEntry{"mnuFYEProcedure", PerformYearEnd},
    CommandEntry{"mnuFResetMaxContrib",
                 [](ScreenContext context) { ResetMaximumContribution(context); }},
    CommandEntry{"mnuWHorizontal", Arrange<WindowArrangement::kHorizontal>},
    CommandEntry{"mnuWVertical", Arrange<WindowArrangement::kVertical>},
    CommandEntry{"mnuWCascade", Arrange<WindowArrangement::kCascade>},
    CommandEntry{"mnuWArrange", Arrange<WindowArrangement::kIcons>},
    CommandEntry{"mnuHContents", ShowManual},
    CommandEntry{"mnuHabout", ShowAbout},
};

}  // namespace

std::string MainTitle() { return std::string("Lorvane Assessment for Windows ") + kVersionText; }

std::string VersionLine() { return std::string("Version: ") + kVersionText; }

frmMain::frmMain(ScreenContext context) : Screen(context, "frmMain", MainTitle()), menu_(*this) {
  ConnectMenu();
}

void frmMain::ConnectMenu() {
  for (const WindowEntry& window : kWindowEntries) {
    menu_.Entry(window.entry).OnClick = [this, &window] {
      ScreenArguments arguments;
      for (const WindowProperty& property : window.properties) {
        if (!std::string_view(property.name).empty()) {
          arguments.emplace_back(property.name, property.value);
        }
      }
      context_.services.OpenScreen(window.screen, arguments);
    };
  }
  for (const CommandEntry& command : kCommandEntries) {
    menu_.Entry(command.entry).OnClick = [this, &command] { command.run(context_); };
  }
  menu_.Entry("mnuFNewCompany").OnClick = [this] { NewCompany(); };
  menu_.Entry("mnuFOpenCompany").OnClick = [this] { mnuFOpenCompany_Click(); };
  menu_.Entry("mnuFExit").OnClick = [this] { Close(); };
}

void frmMain::Load() {
  SetCaption(MainTitle() + " <No Company Selected>");
  StatusMsg(context_, Caption());
  StatusForm(context_, Name());
  StatusAssessment(context_, "Employee");
}

bool frmMain::QueryUnload() { ShutDown(context_); }

std::optional<std::string> frmMain::Property(std::string_view name) const {
  if (EqualsNoCase(name, "CompanyName")) {
    return CompanyName;
  }
  return std::nullopt;
}

bool frmMain::Call(std::string_view operation) {
  if (operation == "mnuFOpenCompany_Click") {
    mnuFOpenCompany_Click();
    return true;
  }
  if (operation == "ActivateMenu") {
    ActivateMenu();
    return true;
  }
  if (operation == "RefreshCompanyCaption") {
    RefreshCompanyCaption();
    return true;
  }
  if (operation == "UpdateRates") {
    UpdateRates(context_);
    return true;
  }
  return false;
}

void frmMain::NewCompany() {
  try {
    context_.services.OpenModeless("frmCheckList");
  } catch (const RuntimeError& error) {
    if (error.Number() == error_number::kTypeMismatch) {
      context_.services.MsgBox(
          "The was a problem setting up this company.\r\n\r\n"
          "Please close the application and try again.",
          box::kExclamation, "Company");
    } else {
      ShowError(context_, error, box::kExclamation);
    }
  }
}

void frmMain::mnuFOpenCompany_Click() {
  try {
    OpenChosenCompany();
  } catch (const RuntimeError& error) {
    if (error.Number() == error_number::kTypeMismatch) {
      context_.services.MsgBox(
          "You have either selected an invalid data source\r\n"
          "or there is a problem with your configuration\r\n"
          "files.  Please try selecting the database again.\r\n"
          "If the problem persists please contact your \r\n"
          "software vendor.",
          box::kExclamation, "Error");
    } else {
      ShowError(context_, error, box::kExclamation);
    }
    context_.services.SetPointer(pointer::kDefault);
  }
}

void frmMain::OpenChosenCompany() {
  Session& session = context_.session;
  const std::string file = context_.services.AskForFile(
      {"Data Location", "Microsoft Database Files(*.mdb)|*.mdb", session.programFolder});
  session.gDataConn->DataSource = file;
  context_.services.SetPointer(pointer::kHourglass);
  StatusMsg(context_, "Checking data files...");
  // A file that doesn't open is passed over in silence; the company before it is closed by now.
  if (session.gDataConn->DataOpen()) {
    session.gConfigFile = GetPathPart(file) + "LorvaneConfig.ini";
    // So is one whose tables nobody knows, though it stays open.
    if (VerifyCompanyTables(context_).empty()) {
      StatusMsg(context_, Caption());
      RefreshCompanyCaption();
      StatusMsg(context_, Caption());
      ActivateMenu();
      CheckAssetTable(context_);
      CheckPrincipalTable(context_);
    }
  }
  context_.services.SetPointer(pointer::kDefault);
  StatusMsg(context_, Caption());
}

void frmMain::RefreshCompanyCaption() {
  cINI ini = context_.session.Ini();
  SetCaption(MainTitle() + " for: " + ini.KeyGet("Environment", "Name", ""));
  const std::string byDefault = ini.KeyGet("Assessment", "Default", "");
  // A company without its file means the employees; a file with nothing in that place is broken.
  const bool hasFile = context_.session.files.Exists(FindWithoutCase(ini.ConfigName));
  const bool subContractors = hasFile && ToDouble(byDefault) != 0;
  StatusAssessment(context_, subContractors ? "Sub-Contractor" : "Employee");
}

bool frmMain::IsYearEndFile() const {
  return context_.session.Ini().KeyGet("DataBase", "YE", "") == "1";
}

void frmMain::ActivateMenu() {
  const bool yearEndFile = IsYearEndFile();
  if (yearEndFile) {
    context_.services.MsgBox(
        "Please note that you have opened a \r\nyear end file.  Some functions may\r\n"
        "not be available.",
        box::kInformation, "Year End Files");
  }
  menu_.Activate(yearEndFile);
  backColour_ = yearEndFile ? std::optional<int>(kWhite) : std::nullopt;
  if (OnPropertyChanged) {
    OnPropertyChanged();
  }
}

}  // namespace lorvane
