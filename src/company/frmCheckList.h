#pragma once

#include <string>

#include "screen/Buttons.h"
#include "screen/Menu.h"
#include "screen/Screen.h"

namespace lorvane {

/// The check list of a new company: its files, its information, sub-contractors, employees. Only
/// the first step must be done; each step can be taken when the one before it is done, and once.
///
/// The struck-through labels say which steps are done.
class frmCheckList : public Screen {
 public:
  explicit frmCheckList(ScreenContext context);

  Label lblInfo{*this, "lblInfo",
                "The most important step is that you create your company data files.  The other "
                "options can be completed later.  This checklist, however, will not appear the "
                "next time you open your company files."};
  Command cmdCompanyDataFiles{*this, "cmdCompanyDataFiles", "Create company data files."};
  Label lblCompanyDataFiles{*this, "lblCompanyDataFiles", "Create company data files."};
  Command cmdCompanyInfo{*this, "cmdCompanyInfo", "Enter company information."};
  Label lblCompanyInfo{*this, "lblCompanyInfo", "Enter company information."};
  Command cmdSubContractors{*this, "cmdSubContractors", "Enter sub-contractors."};
  Label lblSubCon{*this, "lblSubCon", "Enter sub-contractors."};
  Command cmdEmployees{*this, "cmdEmployees", "Enter employees."};
  Label lblEmployees{*this, "lblEmployees", "Enter employees."};
  Command cmdOK{*this, "cmdOK", "&Done"};
  MenuEntry mnuFile{*this, "mnuFile", "&File"};
  MenuEntry mnuCompany{mnuFile, "mnuCompany", "Company &Information"};
  MenuEntry mnuFSubContractors{mnuFile, "mnuFSubContractors", "S&ub-Contractors"};
  MenuEntry mnuFEmployees{mnuFile, "mnuFEmployees", "E&mployees"};
  MenuEntry mnuFExit{mnuFile, "mnuFExit", "E&xit"};
  MenuEntry mnuHelp{*this, "mnuHelp", "&Help"};
  MenuEntry mnuHContents{mnuHelp, "mnuHContents", "&Contents..."};
  MenuEntry mnuHabout{mnuHelp, "mnuHabout", "&About..."};

  void Load() override;

 private:
  /// A step that opens a window: its button and menu entry, the label that it strikes through, and
  /// the button and entry of the step behind it, null for the last.
  struct WindowStep {
    Command& command;
    MenuEntry& entry;
    Label& label;
    const WindowStep* next;
  };

  void ConnectControls();
  void CreateDataFiles();
  /// The file of the new company; empty when the user cancels. Asks again for a folder that holds a
  /// company.
  [[nodiscard]] std::string AskForDataFile();
  void MakeFiles(const std::string& file);
  void TakeStep(const WindowStep& step, const char* screen);
  static void Allow(const WindowStep& step, bool allowed);
  void Finish();

  WindowStep employees_{cmdEmployees, mnuFEmployees, lblEmployees, nullptr};
  WindowStep subContractors_{cmdSubContractors, mnuFSubContractors, lblSubCon, &employees_};
  WindowStep company_{cmdCompanyInfo, mnuCompany, lblCompanyInfo, &subContractors_};
};

}  // namespace lorvane
