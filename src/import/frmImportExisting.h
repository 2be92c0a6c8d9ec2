#pragma once

#include "screen/Buttons.h"
#include "screen/Labelled.h"
#include "screen/ProgressBar.h"
#include "screen/Screen.h"
#include "screen/TextBox.h"

namespace lorvane {

/// Copies the sub-contractors of another company's data file into the open company.
class frmImportExisting : public Screen {
 public:
  explicit frmImportExisting(ScreenContext context);

  Label lblNotice{*this, "lblNotice", "Please select the location of your subcontractor data."};
  Labelled<TextBox> txtSource{*this, "txtSource", "Location of the data"};
  Command cmdFrom{*this, "cmdFrom", "...", "Choose the data file"};
  Command cmdImport{*this, "cmdImport", "&Import Data"};
  ProgressBar prgBar{*this, "prgBar"};
  Label lblImporting{*this, "lblImporting", "Importing..."};
  Command cmdOK{*this, "cmdOK", "&OK"};
  Command cmdClose{*this, "cmdClose", "Close"};

  void Load() override;

  void ChooseSource();
  /// Makes a backup first, when there are rows to copy. A failure is told, and nothing is added
  /// then.
  void ImportData();

 private:
  void ShowProgress(bool shown);
  void Copy();
};

}  // namespace lorvane
