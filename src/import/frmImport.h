#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "import/ImportFromExcel.h"
#include "screen/Buttons.h"
#include "screen/Labelled.h"
#include "screen/ListView.h"
#include "screen/ProgressBar.h"
#include "screen/Screen.h"
#include "screen/TextBox.h"

namespace lorvane {

/// Brings employees or sub-contractors into the open company from a spreadsheet with a fixed order
/// of columns and no heading row. The check boxes of the columns are no options: the import ticks
/// them as it goes.
class frmImport : public Screen {
 public:
  explicit frmImport(ScreenContext context);

  /// Employees, or else sub-contractors.
  bool Employee = false;
  /// From a spreadsheet: the only source that there is.
  bool Excel = false;

  Frame fraExcelFrom{*this, "fraExcelFrom", "From"};
  Label lblNotice{*this, "lblNotice",
                  "It is important that your Excel spreadsheet be formatted properly before "
                  "importing the data."};
  Labelled<TextBox> txtExcelSource{*this, "txtExcelSource", "Location of the spreadsheet"};
  Command cmdFromExcel{*this, "cmdFromExcel", "...", "Choose the spreadsheet"};
  Labelled<TextBox> txtNumberCols{*this, "txtNumberCols", "No. of columns"};
  Label lblFormatExcel{*this, "lblFormatExcel"};
  CheckBox chkRemove{*this, "chkRemove", "Remove all column headings"};
  CheckBox chkCol_0{*this, "chkCol_0"};
  CheckBox chkCol_1{*this, "chkCol_1"};
  CheckBox chkCol_2{*this, "chkCol_2"};
  CheckBox chkCol_3{*this, "chkCol_3"};
  CheckBox chkCol_4{*this, "chkCol_4"};
  CheckBox chkCol_5{*this, "chkCol_5"};
  Frame fraExcelTo{*this, "fraExcelTo", "To"};
  Labelled<TextBox> txtTo{*this, "txtTo", "Company"};
  Labelled<TextBox> txtTableName{*this, "txtTableName", "Table"};
  Labelled<TextBox> txtStarting{*this, "txtStarting", "Starting with"};
  CheckBox chkSkip{*this, "chkSkip", "&Skip people already on file"};
  Command cmdPreview{*this, "cmdPreview", "&Preview", "Show the first rows as they will be stored"};
  ListView lvwPreview{*this, "lvwPreview", false};
  ProgressBar prgBar{*this, "prgBar"};
  /// What came of the preview or the import besides what the boxes tell.
  Label lblResult{*this, "lblResult"};
  Command cmdImportExcel{*this, "cmdImportExcel", "&Import Data"};
  Command cmdReport{*this, "cmdReport", "Save &Report...",
                    "Save the rows that were not taken, with the reasons, as CSV"};
  Command cmdHlpExcel{*this, "cmdHlpExcel", "&Help"};
  Command cmdOK{*this, "cmdOK", "&OK"};
  Command cmdClose{*this, "cmdClose", "Close"};

  void Load() override;
  [[nodiscard]] std::optional<std::string> Property(std::string_view name) const override;
  bool SetProperty(std::string_view name, std::string_view value) override;

  /// Whether the file can be read.
  [[nodiscard]] static bool IsFileThere(const std::string& path);
  /// A name without an ending is that of an .xls file.
  [[nodiscard]] static std::string WithUsualEnding(const std::string& path);
  /// Takes a spreadsheet's path as chosen; one that isn't there is told of.
  void ChooseSource(const std::string& path);
  /// Makes a backup first, when there are rows to import.
  void ImportData();
  /// Why the last import had no backup made first, as a sentence; empty when it had, or needed
  /// none.
  [[nodiscard]] const std::string& NoBackup() const { return noBackup_; }
  /// What came of the last import that got as far as the spreadsheet.
  [[nodiscard]] const std::optional<ImportOutcome>& Outcome() const { return outcome_; }

 private:
  void ConnectControls();
  void ShowLayout();
  [[nodiscard]] const ImportTarget& Target() const;
  [[nodiscard]] std::vector<CheckBox*> ColumnChecks();
  /// Tells what is missing before anything is read; false when something is.
  [[nodiscard]] bool HasEntries();
  /// The number of columns as entered. What is no number is more than any sheet has.
  [[nodiscard]] int NumberOfColumns() const;
  [[nodiscard]] ImportWishes Wishes();
  void Tell(const ImportOutcome& outcome);
  void ShowRefused();
  void SetPreviewColumns();
  void ShowPreview();
  void SaveReport();

  std::string noBackup_;
  std::optional<ImportOutcome> outcome_;
};

}  // namespace lorvane
