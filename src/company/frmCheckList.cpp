#include "company/frmCheckList.h"

#include "basic/RuntimeError.h"
#include "company/modNewCompany.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/modForm.h"
#include "screen/modHelp.h"
#include "screen/modStatus.h"

namespace lorvane {

frmCheckList::frmCheckList(ScreenContext context) : Screen(context, "frmCheckList", "Check List") {
  ConnectControls();
}

void frmCheckList::ConnectControls() {
  cmdCompanyDataFiles.OnClick = [this] { CreateDataFiles(); };
  const auto companyInformation = [this] { TakeStep(company_, "frmCompany"); };
  const auto subContractors = [this] { TakeStep(subContractors_, "frmSubContractor"); };
  const auto employees = [this] { TakeStep(employees_, "frmEmployees"); };
  cmdCompanyInfo.OnClick = mnuCompany.OnClick = companyInformation;
  cmdSubContractors.OnClick = mnuFSubContractors.OnClick = subContractors;
  cmdEmployees.OnClick = mnuFEmployees.OnClick = employees;
  cmdOK.OnClick = [this] { Finish(); };
  mnuFExit.OnClick = [this] { Close(); };
  mnuHContents.OnClick = [this] { ShowManual(context_); };
  mnuHabout.OnClick = [this] { ShowAbout(context_); };
  for (const WindowStep* step = &company_; step != nullptr; step = step->next) {
    Allow(*step, false);
  }
}

void frmCheckList::Load() { CentreForm(*this); }

void frmCheckList::CreateDataFiles() {
  try {
    const std::string file = AskForDataFile();
    if (!file.empty()) {
      MakeFiles(file);
    }
  } catch (const RuntimeError& error) {
    context_.services.SetPointer(pointer::kDefault);
    ShowError(context_, error, box::kExclamation);
  }
}

std::string frmCheckList::AskForDataFile() {
  while (true) {
    FileDialog dialog{"New Company Location", "Microsoft Database Files(*.mdb)|*.mdb",
                      context_.session.programFolder + "/Data.mdb"};
    dialog.newFile = true;
    std::string file = context_.services.AskForFile(dialog);
    if (file.empty() || !HoldsCompany(context_.session.files, file)) {
      return file;
    }
    context_.services.MsgBox(
        "Data files already exist in the specified location.\r\n\r\n"
        "Each new company must be set up in its own folder.  Please\r\n"
        "refer to the online help for assistance.",
        box::kExclamation, "Data Files");
  }
}

void frmCheckList::MakeFiles(const std::string& file) {
  ScreenServices& services = context_.services;
  services.SetPointer(pointer::kHourglass);
  const std::string status = StatusPush(context_, "Please wait...creating program files.");
  const bool made = MakeCompanyFiles(context_, file);
  StatusPop(context_, status, false);
  if (!made) {
    services.SetPointer(pointer::kDefault);
    return;
  }
  if (!OpenNewCompany(context_, file)) {
    throw ProgramEnded{1};
  }
  lblCompanyDataFiles.SetStrikeThrough(true);
  Allow(company_, true);
  SetFocus(cmdCompanyInfo);
  cmdCompanyDataFiles.SetEnabled(false);
  if (Screen* main = services.FindScreen("frmMain")) {
    main->Call("ActivateMenu");
  }
  services.SetPointer(pointer::kDefault);
}

void frmCheckList::TakeStep(const WindowStep& step, const char* screen) {
  // Only the company window has the property; the others pass over it.
  context_.services.OpenScreen(screen, {{"Setup", "true"}});
  step.label.SetStrikeThrough(true);
  if (step.next != nullptr) {
    Allow(*step.next, true);
    SetFocus(step.next->command);
  }
  Allow(step, false);
}

void frmCheckList::Allow(const WindowStep& step, bool allowed) {
  step.command.SetEnabled(allowed);
  step.entry.SetEnabled(allowed);
}

void frmCheckList::Finish() {
  if (!lblCompanyDataFiles.StrikeThrough()) {
    context_.services.MsgBox("You have not created the new company's \r\ndata files.",
                             box::kInformation, "Create Data Files");
    return;
  }
  cINI ini = context_.session.Ini();
  ini.KeySave("-1", "Environment", "Datafiles");
  if (lblSubCon.StrikeThrough()) {
    ini.KeySave("-1", "Environment", "SubContractors");
  }
  if (lblEmployees.StrikeThrough()) {
    ini.KeySave("-1", "Environment", "Employees");
  }
  if (Screen* main = context_.services.FindScreen("frmMain")) {
    main->Call("RefreshCompanyCaption");
  }
  Close();
}

}  // namespace lorvane
