#include "import/frmImportExisting.h"

#include "basic/RuntimeError.h"
#include "import/ImportSubContractors.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/modForm.h"
#include "screen/modStatus.h"
#include "screen/modTextBox.h"
#include "yearend/BackUpFirst.h"

namespace lorvane {

frmImportExisting::frmImportExisting(ScreenContext context)
    : Screen(context, "frmImportExisting", "Import Subcontractors from an Existing Company") {
  cmdImport.SetEnabled(false);
  ShowProgress(false);
  txtSource.OnGotFocus = [this] { SelectText(txtSource); };
  txtSource.OnKeyPress = [this](int& key) { EnterActsAsTab(*this, key); };
  cmdFrom.OnClick = [this] { ChooseSource(); };
  cmdImport.OnClick = [this] { ImportData(); };
  cmdOK.OnClick = cmdClose.OnClick = [this] { Close(); };
}

void frmImportExisting::Load() { CentreForm(*this); }

void frmImportExisting::ChooseSource() {
  // A cancelled dialog keeps the file that was chosen before.
  const std::string path =
      context_.services.AskForFile({"Select the location of the existing data",
                                    "Microsoft Database Files(*.mdb)|*.mdb", txtSource.Text()});
  if (!path.empty()) {
    txtSource.SetText(path);
  }
  if (!txtSource.Text().empty()) {
    cmdImport.SetEnabled(true);
  }
}

void frmImportExisting::ImportData() {
  ShowProgress(true);
  context_.services.SetPointer(pointer::kHourglass);
  try {
    Copy();
    lblImporting.SetCaption("Importing...complete.");
    context_.services.SetPointer(pointer::kDefault);
  } catch (const RuntimeError& error) {
    ShowProgress(false);
    context_.services.SetPointer(pointer::kDefault);
    ShowError(context_, error, box::kExclamation);
  }
}

void frmImportExisting::ShowProgress(bool shown) {
  prgBar.SetVisible(shown);
  lblImporting.SetVisible(shown);
}

void frmImportExisting::Copy() {
  ImportProgress progress;
  progress.onCount = [this](std::size_t rows) {
    // Nothing is added then, and a bar has no maximum of 0.
    if (rows == 0) {
      return;
    }
    if (const std::string noBackup = BackUpFirst(context_); !noBackup.empty()) {
      StatusMsg(context_, noBackup);
    }
    prgBar.SetMaximum(static_cast<double>(rows));
  };
  progress.onRow = [this](std::size_t row) { prgBar.SetValue(static_cast<double>(row)); };
  ImportSubContractors(*context_.session.gDataConn, txtSource.Text(), progress);
}

}  // namespace lorvane
