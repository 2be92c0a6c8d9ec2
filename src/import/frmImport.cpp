#include "import/frmImport.h"

#include <fmt/format.h>

#include <filesystem>
#include <fstream>
#include <limits>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "import/ImportPreview.h"
#include "import/ImportReport.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/modForm.h"
#include "screen/modStatus.h"
#include "screen/modTextBox.h"
#include "yearend/BackUpFirst.h"

namespace lorvane {
namespace {

constexpr int kMostColumns = std::numeric_limits<std::int16_t>::max();
// Those of the widest sheet.
constexpr std::size_t kColumnDigits = 5;
constexpr int kRowWidth = 600;
constexpr int kCellWidth = 1700;
constexpr int kSentenceWidth = 4500;

bool FlagOf(std::string_view text) { return EqualsNoCase(text, "true"); }

}  // namespace

frmImport::frmImport(ScreenContext context) : Screen(context, "frmImport", "Import Data") {
  for (TextBox* shown : {&txtTo, &txtTableName, &txtStarting}) {
    shown->SetReadOnly(true);
  }
  txtNumberCols.SetMaxLength(kColumnDigits);
  cmdImportExcel.SetEnabled(false);
  cmdPreview.SetEnabled(false);
  cmdReport.SetEnabled(false);
  for (Control* control : Controls()) {
    control->SetVisible(control == &cmdOK || control == &cmdClose);
  }
  ConnectControls();
}

void frmImport::ConnectControls() {
  for (TextBox* box : {&txtExcelSource, &txtNumberCols, &txtTo, &txtTableName, &txtStarting}) {
    box->OnGotFocus = [box] { SelectText(*box); };
    box->OnKeyPress = [this](int& key) { EnterActsAsTab(*this, key); };
  }
  cmdFromExcel.OnClick = [this] {
    // A cancelled dialog names no file.
    const std::string path =
        context_.services.AskForFile({"", "(*.xls)|*.xls|(*.*)|*.*", txtExcelSource.Text()});
    if (!path.empty()) {
      ChooseSource(WithUsualEnding(path));
    }
  };
  cmdImportExcel.OnClick = [this] { ImportData(); };
  cmdPreview.OnClick = [this] { ShowPreview(); };
  cmdReport.OnClick = [this] { SaveReport(); };
  cmdHlpExcel.OnClick = [this] {
    context_.services.OpenScreen("frmImportHlp", {{"Employee", FlagText(Employee)}});
  };
  cmdOK.OnClick = cmdClose.OnClick = [this] { Close(); };
}

void frmImport::Load() {
  CentreForm(*this);
  txtTo.SetText(context_.session.gDataConn->DataSource);
  if (Excel) {
    ShowLayout();
  } else {
    context_.services.MsgBox("Add frames for ASCII transfer");
  }
}

void frmImport::ShowLayout() {
  const ImportTarget& target = Target();
  for (Control* control : Controls()) {
    control->SetVisible(true);
  }
  prgBar.SetVisible(false);
  const std::vector<CheckBox*> checks = ColumnChecks();
  for (std::size_t place = 0; place < checks.size(); ++place) {
    const bool used = place < target.columns.size();
    checks[place]->SetVisible(used);
    checks[place]->SetCaption(used ? target.columns[place].caption : std::string());
  }
  txtNumberCols.SetText(std::to_string(target.columns.size()));
  lblFormatExcel.SetCaption("You have chosen to import your " + target.people +
                            " from a Microsoft(R) Excel spreadsheet.  The spreadsheet should be "
                            "formatted as follows:");
  txtTableName.SetText(target.table);
  txtStarting.SetText(target.columns.front().column);
  SetPreviewColumns();
}

const ImportTarget& frmImport::Target() const {
  return Employee ? EmployeeTarget() : SubContractorTarget();
}

std::vector<CheckBox*> frmImport::ColumnChecks() {
  return {&chkCol_0, &chkCol_1, &chkCol_2, &chkCol_3, &chkCol_4, &chkCol_5};
}

std::optional<std::string> frmImport::Property(std::string_view name) const {
  if (EqualsNoCase(name, "Employee")) {
    return FlagText(Employee);
  }
  if (EqualsNoCase(name, "Excel")) {
    return FlagText(Excel);
  }
  return std::nullopt;
}

bool frmImport::SetProperty(std::string_view name, std::string_view value) {
  if (EqualsNoCase(name, "Employee")) {
    Employee = FlagOf(value);
    return true;
  }
  if (EqualsNoCase(name, "Excel")) {
    Excel = FlagOf(value);
    return true;
  }
  return false;
}

bool frmImport::IsFileThere(const std::string& path) {
  std::error_code ignored;
  return !std::filesystem::is_directory(path, ignored) && std::ifstream(path).is_open();
}

std::string frmImport::WithUsualEnding(const std::string& path) {
  const bool hasEnding = GetNamePart(path).find('.') != std::string::npos;
  return hasEnding || IsFileThere(path) ? path : path + ".xls";
}

void frmImport::ChooseSource(const std::string& path) {
  if (!IsFileThere(path)) {
    context_.services.MsgBox(path + " not found");
    return;
  }
  txtExcelSource.SetText(path);
  cmdImportExcel.SetEnabled(true);
  cmdPreview.SetEnabled(true);
  SetFocus(txtNumberCols);
}

bool frmImport::HasEntries() {
  ScreenServices& services = context_.services;
  constexpr const char* kLocation = "Spreadsheet Location";
  if (txtExcelSource.Text().empty()) {
    services.MsgBox(
        "Please specify the location of the Excel\r\nspreadsheet containing the data you wish\r\n"
        "to import.",
        box::kExclamation, kLocation);
  } else if (!IsFileThere(txtExcelSource.Text())) {
    services.MsgBox(
        "The Excel spreadsheet could not be found\r\nat the specified location.\r\n\r\n"
        "Please try again.",
        box::kExclamation, kLocation);
  } else if (txtNumberCols.Text().empty()) {
    services.MsgBox("\"No. of columns\" not entered yet");
  } else {
    return true;
  }
  return false;
}

int frmImport::NumberOfColumns() const {
  try {
    return ToInteger(txtNumberCols.Text());
  } catch (const RuntimeError&) {
    return kMostColumns;
  }
}

void frmImport::ImportData() {
  if (!HasEntries()) {
    return;
  }
  context_.services.SetPointer(pointer::kHourglass);
  noBackup_.clear();
  outcome_ = ImportFromExcel(*context_.session.gDataConn, txtExcelSource.Text(), NumberOfColumns(),
                             Target(), Wishes());
  prgBar.SetVisible(false);
  context_.services.SetPointer(pointer::kDefault);
  ShowRefused();
  Tell(*outcome_);
}

ImportWishes frmImport::Wishes() {
  ImportWishes wishes;
  wishes.skipPeopleOnFile = chkSkip.Checked();
  wishes.onTaken = [this, checks = ColumnChecks()](std::size_t place) {
    chkRemove.SetChecked(true);
    checks[place]->SetChecked(true);
  };
  wishes.progress.onCount = [this](std::size_t rows) {
    noBackup_ = BackUpFirst(context_);
    if (!noBackup_.empty()) {
      StatusMsg(context_, noBackup_);
    }
    prgBar.SetMaximum(static_cast<double>(rows));
    prgBar.SetValue(0);
    prgBar.SetVisible(true);
  };
  wishes.progress.onRow = [this](std::size_t row) { prgBar.SetValue(static_cast<double>(row)); };
  return wishes;
}

void frmImport::Tell(const ImportOutcome& outcome) {
  ScreenServices& services = context_.services;
  switch (outcome.end) {
    case ImportOutcome::End::kNoData:
      services.MsgBox("The specified spreadsheet does not contain any data.", box::kExclamation,
                      "No Data");
      break;
    case ImportOutcome::End::kMissingColumns:
      services.MsgBox(fmt::format("Only {} columns found in Excel table\r\nwhich is less then "
                                  "\"No. of Columns\" entered.",
                                  outcome.columns),
                      box::kExclamation, "Missing Columns");
      break;
    case ImportOutcome::End::kImported:
      services.MsgBox(fmt::format("Imported {} rows", outcome.rows - outcome.onFile),
                      box::kInformation, "Import Data");
      cmdImportExcel.SetEnabled(false);
      break;
  }
}

// The rows that were refused take the preview's place.
void frmImport::ShowRefused() {
  lvwPreview.Clear();
  cmdReport.SetEnabled(!outcome_->refused.empty());
  lblResult.SetCaption(DescribeOutcome(*outcome_));
  if (outcome_->refused.empty()) {
    return;
  }
  lvwPreview.SetColumns(
      {{"Row", kRowWidth, ListView::Alignment::kRight}, {"Not taken because", kSentenceWidth}});
  std::vector<ListView::Row> rows;
  for (const RefusedRow& refused : outcome_->refused) {
    rows.push_back({{std::to_string(refused.row), refused.reason}});
  }
  lvwPreview.AddRows(std::move(rows));
}

void frmImport::ShowPreview() {
  if (!HasEntries()) {
    return;
  }
  lvwPreview.Clear();
  SetPreviewColumns();
  try {
    const ImportPreview preview = PreviewImport(*context_.session.gDataConn, txtExcelSource.Text(),
                                                NumberOfColumns(), Target(), chkSkip.Checked());
    std::vector<ListView::Row> rows;
    for (const PreviewRow& row : preview.rows) {
      rows.push_back({row.texts});
    }
    lvwPreview.AddRows(std::move(rows));
    lblResult.SetCaption(preview.summary);
  } catch (const RuntimeError& error) {
    lblResult.SetCaption(error.Description());
  }
}

void frmImport::SetPreviewColumns() {
  std::vector<ListView::ViewColumn> columns{{"Row", kRowWidth, ListView::Alignment::kRight}};
  for (const ImportColumn& column : Target().columns) {
    columns.push_back({column.Heading(), kCellWidth});
  }
  columns.push_back({"Note", kSentenceWidth});
  lvwPreview.SetColumns(std::move(columns));
}

void frmImport::SaveReport() {
  const std::string path = context_.services.AskForFile(
      {"Save Report", "(*.csv)|*.csv|(*.*)|*.*", txtExcelSource.Text() + ".refused.csv", true});
  if (path.empty()) {
    return;
  }
  Files& files = context_.session.files;
  if (files.Exists(path) &&
      context_.services.MsgBox(path + " is there already.\r\nDo you wish to replace it?",
                               box::kYesNo | box::kQuestion, "Save Report") != answer::kYes) {
    return;
  }
  try {
    files.Write(path, RefusedReport(outcome_->refused));
  } catch (const RuntimeError& error) {
    ShowError(context_, error, box::kExclamation);
  }
}

}  // namespace lorvane
