#include "shell/MainMenu.h"

#include <algorithm>
#include <array>
#include <optional>

#include "basic/RuntimeError.h"
#include "basic/Text.h"

namespace lorvane {
namespace {

enum class Designed { kOn, kDisabled, kHidden, kDisabledAndHidden };

struct EntryDesign {
  const char* parent;
  const char* name;
  const char* caption;
  const char* shortcut;
  Designed state;
};

constexpr const char* kBar = "";
constexpr const char* kLine = MenuEntry::kSeparator;

constexpr std::array kDesign{
    EntryDesign{kBar, "mnuFile", "&File", "", Designed::kOn},
    EntryDesign{"mnuFile", "mnuFNewCompany", "&New Company", "Ctrl+N", Designed::kOn},
    EntryDesign{"mnuFile", "mnuFOpenCompany", "&Open Company", "Ctrl+O", Designed::kOn},
    EntryDesign{"mnuFile", "mnuFSep1", kLine, "", Designed::kDisabled},
    EntryDesign{"mnuFile", "mnuFImport", "&Import", "", Designed::kDisabled},
    EntryDesign{"mnuFImport", "mnuFIEmployees", "E&mployees", "", Designed::kOn},
    EntryDesign{"mnuFImport", "mnuFISep1", kLine, "", Designed::kDisabled},
    EntryDesign{"mnuFImport", "mnuFISubContractors", "S&ub-Contractors", "", Designed::kOn},
    EntryDesign{"mnuFISubContractors", "mnuFISCompany", "&Existing Company", "", Designed::kOn},
    EntryDesign{"mnuFISubContractors", "mnuFISSep", kLine, "", Designed::kOn},
    EntryDesign{"mnuFISubContractors", "mnuFISExcel", "&MS Excel", "", Designed::kOn},
    EntryDesign{"mnuFile", "mnuFSave", "Sa&ve", "", Designed::kDisabledAndHidden},
    EntryDesign{"mnuFile", "mnuFCompactDataBase", "Compact &Database...", "", Designed::kDisabled},
    EntryDesign{"mnuFile", "mnuFSep4", kLine, "", Designed::kDisabled},
    EntryDesign{"mnuFile", "mnuFEnterPayments", "&Enter Payments", "Ctrl+E", Designed::kDisabled},
    EntryDesign{"mnuFile", "mnuFSep5", kLine, "", Designed::kDisabled},
    EntryDesign{"mnuFile", "mnuFYEProcedure", "&Year End Procedure", "Ctrl+Y", Designed::kDisabled},
    EntryDesign{"mnuFile", "mnuFResetMaxContrib", "Reset &Maximum Contribution", "Ctrl+M",
                Designed::kDisabled},
    EntryDesign{"mnuFile", "mnuFEmployerUpdate", "Employer Update Options", "",
                Designed::kDisabled},
    EntryDesign{"mnuFile", "mnuFAssetLog", "Asset &Log", "", Designed::kDisabled},
    EntryDesign{"mnuFile", "mnuFSep3", kLine, "", Designed::kDisabled},
    EntryDesign{"mnuFile", "mnuFSubContractors", "S&ub-Contractors", "F2", Designed::kDisabled},
    EntryDesign{"mnuFile", "mnuFEmployees", "E&mployees", "F3", Designed::kDisabled},
    EntryDesign{"mnuFile", "mnuFUserSettings", "Company &Information", "F4", Designed::kDisabled},
    EntryDesign{"mnuFile", "mnuFContractTypes", "Contract Types", "", Designed::kDisabled},
    EntryDesign{"mnuFile", "mnuFSep2", kLine, "", Designed::kOn},
    EntryDesign{"mnuFile", "mnuFExit", "E&xit", "", Designed::kOn},
    EntryDesign{kBar, "mnuEdit", "&Edit", "", Designed::kHidden},
    EntryDesign{"mnuEdit", "mnuEUndo", "&Undo", "Ctrl+Z", Designed::kHidden},
    EntryDesign{"mnuEdit", "mnuERefresh", "&Refresh", "F5", Designed::kHidden},
    EntryDesign{"mnuEdit", "mnuECut", "Cu&t", "Ctrl+X", Designed::kHidden},
    EntryDesign{"mnuEdit", "mnuECopy", "&Copy", "Ctrl+C", Designed::kHidden},
    EntryDesign{"mnuEdit", "mnuEPaste", "&Paste", "Ctrl+V", Designed::kHidden},
    EntryDesign{"mnuEdit", "mnuESelectAll", "Select &All", "Ctrl+A", Designed::kHidden},
    EntryDesign{"mnuEdit", "mnuEFind", "&Find...", "Ctrl+F", Designed::kHidden},
    EntryDesign{kBar, "mnuReports", "&Reports", "", Designed::kHidden},
    EntryDesign{"mnuReports", "mnuFRemittanceCalc", "Remittance &Reports", "", Designed::kOn},
    EntryDesign{"mnuFRemittanceCalc", "mnuRRAnnualSubCon", "&Annual Sub-contractor Report", "",
                Designed::kOn},
    EntryDesign{"mnuFRemittanceCalc", "mnuRREmpRemitt", "&Employee Remittance", "", Designed::kOn},
    EntryDesign{"mnuFRemittanceCalc", "mnuRRSubConRemitt", "&Sub-contractor Remittance", "",
                Designed::kOn},
    EntryDesign{"mnuFRemittanceCalc", "mnuRRQSubCon",
                "&Quarterly Sub-contractor Remittance Summary", "", Designed::kOn},
    EntryDesign{"mnuReports", "mnuREmployerYEUpdate", "&Employer Year-end Update", "",
                Designed::kOn},
    EntryDesign{"mnuReports", "mnuRPrincipalReport", "&Principal Report", "", Designed::kOn},
    EntryDesign{"mnuReports", "mnuRAssetLog", "&Asset Log", "", Designed::kOn},
    EntryDesign{"mnuReports", "mnuRClearance", "Clearance &Letter Expiries", "", Designed::kOn},
    EntryDesign{kBar, "mnuWindow", "&Window", "", Designed::kOn},
    EntryDesign{"mnuWindow", "mnuWHorizontal", "Tile &Horizontal", "", Designed::kOn},
    EntryDesign{"mnuWindow", "mnuWVertical", "Tile &Vertical", "", Designed::kOn},
    EntryDesign{"mnuWindow", "mnuWCascade", "&Cascade", "", Designed::kOn},
    EntryDesign{"mnuWindow", "mnuWArrange", "&Arrange Icons", "", Designed::kOn},
    EntryDesign{kBar, "mnuHelp", "&Help", "", Designed::kOn},
    EntryDesign{"mnuHelp", "mnuHContents", "&Contents...", "", Designed::kOn},
    EntryDesign{"mnuHelp", "mnuHabout", "&About...", "", Designed::kOn},
};

// What an opened file does to an entry's enabled state.
struct Activation {
  const char* name;
  std::optional<bool> ordinary;
  std::optional<bool> yearEnd;
};

constexpr std::array kActivations{
    Activation{"mnuFSave", true, false},
    // The one entry that a year-end file leaves as it was.
    Activation{"mnuFCompactDataBase", true, std::nullopt},
    Activation{"mnuFEnterPayments", true, false},
    Activation{"mnuFYEProcedure", true, false},
    Activation{"mnuFSep1", true, false},
    Activation{"mnuFSep2", true, true},
    Activation{"mnuFSep3", true, false},
    Activation{"mnuFSep4", true, true},
    Activation{"mnuFSep5", true, false},
    Activation{"mnuFResetMaxContrib", true, false},
    Activation{"mnuFImport", true, false},
    Activation{"mnuFSubContractors", true, false},
    Activation{"mnuFEmployees", true, false},
    Activation{"mnuFUserSettings", true, false},
    Activation{"mnuFContractTypes", true, false},
    Activation{"mnuFEmployerUpdate", true, true},
    Activation{"mnuFAssetLog", true, true},
    Activation{"mnuFRemittanceCalc", true, true},
};

}  // namespace

MainMenu::MainMenu(Screen& screen) {
  for (const EntryDesign& design : kDesign) {
    const bool onBar = std::string_view(design.parent).empty();
    entries_.push_back(onBar ? std::make_unique<MenuEntry>(screen, design.name, design.caption)
                             : std::make_unique<MenuEntry>(Entry(design.parent), design.name,
                                                           design.caption, design.shortcut));
    MenuEntry& entry = *entries_.back();
    entry.SetEnabled(design.state == Designed::kOn || design.state == Designed::kHidden);
    entry.SetVisible(design.state == Designed::kOn || design.state == Designed::kDisabled);
  }
}

MenuEntry& MainMenu::Entry(std::string_view name) const {
  const auto found = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const auto& entry) { return entry->Name() == name; });
  if (found == entries_.end()) {
    throw RuntimeError(error_number::kItemNotFound);
  }
  return **found;
}

void MainMenu::Activate(bool yearEndFile) {
  Entry("mnuEdit").SetVisible(true);
  for (const Activation& activation : kActivations) {
    if (const std::optional<bool> enabled =
            yearEndFile ? activation.yearEnd : activation.ordinary) {
      Entry(activation.name).SetEnabled(*enabled);
    }
  }
  Entry("mnuReports").SetVisible(true);
}

}  // namespace lorvane
