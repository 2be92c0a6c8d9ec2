#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "reports/CompanyHeading.h"
#include "reports/RemittanceFill.h"
#include "reports/RemittanceViewer.h"
#include "screen/Buttons.h"
#include "screen/Dates.h"
#include "screen/Lists.h"
#include "screen/ProgressBar.h"
#include "screen/Screen.h"
#include "screen/TextBox.h"

namespace lorvane {

/// The window from which remittance reports and the employer's year-end reports are asked for. The
/// caller chooses its face with SelectReportOptions before it is loaded.
class frmRemittanceCalc : public Screen {
 public:
  static constexpr std::int16_t kRemittance = 0;
  static constexpr std::int16_t kUpdate = 1;
  static constexpr std::int16_t kAssetLog = 2;
  static constexpr std::int16_t kPrincipals = 3;

  explicit frmRemittanceCalc(ScreenContext context);

  std::int16_t SelectReportOptions = kRemittance;

  Frame fraRemittance{*this, "fraRemittance", "Type"};
  OptionButton optEmployee{*this, "optEmployee", "fraRemittance", "Employee"};
  OptionButton optSubContractor{*this, "optSubContractor", "fraRemittance", "Sub-Contractor"};
  Command cmdSummary{*this, "cmdSummary", "&Quarterly  Summary",
                     "Quarterly summary of payments for each subcontractor."};
  Command cmdAnnualSubCon{*this, "cmdAnnualSubCon", "Annual Subcontractor",
                          "Annual subcontractor report required by Lorvane."};

  Frame fraSelection{*this, "fraSelection", "Period"};
  Label lblIndustry{*this, "lblIndustry", "Industry:"};
  ComboBox cboIndustries{*this, "cboIndustries"};
  Label lblStarting{*this, "lblStarting", "Starting:"};
  DatePicker dtpStarting;
  Label lblEnding{*this, "lblEnding", "Ending:"};
  DatePicker dtpEnding;

  Frame fraOptions{*this, "fraOptions", "Preview Options"};
  CheckBox chkExport{*this, "chkExport", "Export"};
  CheckBox chkNav{*this, "chkNav", "Navigation buttons"};
  CheckBox chkProgress{*this, "chkProgress", "Progress bar"};
  CheckBox chkRefresh{*this, "chkRefresh", "Refresh"};
  CheckBox chkSearch{*this, "chkSearch", "Search"};
  CheckBox chkZoom{*this, "chkZoom", "Zoom %"};

  Frame fraYearEnd{*this, "fraYearEnd", "Employer Update"};
  Label lblPlease{*this, "lblPlease",
                  "Please indicate if any of the information below has changed from last year."};
  CheckBox chkEmployerName{*this, "chkEmployerName", "Employer Name"};
  CheckBox chkOpAs{*this, "chkOpAs", "Trade Name"};
  CheckBox chkBusinessNumber{*this, "chkBusinessNumber", "Business Number"};
  CheckBox chkMainBusiness{*this, "chkMainBusiness", "Main Business Activity"};
  CheckBox chkSIC{*this, "chkSIC", "SIC Code"};
  CheckBox chkClaim{*this, "chkClaim", "Claim Related Contact"};
  CheckBox chkFinancial{*this, "chkFinancial", "Financial Related Contact"};
  Label lblCurrentYear{*this, "lblCurrentYear", "Current year:"};
  TextBox txtCurrentYear{*this, "txtCurrentYear"};
  Label lblYear{*this, "lblYear", "Reporting year:"};
  /// Years outside the list can be typed.
  ComboBox cboYear{*this, "cboYear", ComboBox::Style::kDropDown};

  ProgressBar prgReport{*this, "prgReport"};
  Command cmdOK{*this, "cmdOK", "&OK"};
  Command cmdCancel{*this, "cmdCancel", "Close"};

  void Load() override;
  void Unload() override;
  [[nodiscard]] std::optional<std::string> Property(std::string_view name) const override;
  bool SetProperty(std::string_view name, std::string_view value) override;

 private:
  // Opening.
  void ReadCompany();
  void FillIndustries();
  void RestoreSettings();
  void ReadSettings();
  void SetDateLimits();
  /// Limits both pickers to the year of this text. Raises 13 when it is no part of a date.
  void LimitDatesTo(const std::string& year);
  void RestoreKind();
  void RestoreOptions();
  void RestoreDates();
  /// Asks until a year from 2000 to 2100 is given, while the current year is 0.
  void AskYear();
  void LayOutFace();
  void FillYears();

  // The commands.
  void Run();
  void Calculate();
  [[nodiscard]] bool FillScratchTable(RemittanceFill& fill);
  void Summarise(std::int16_t reportType, bool clearingCounts);
  [[nodiscard]] RemittanceFill MakeFill() { return RemittanceFill(context_, &prgReport); }

  void ShowRemittance(RemittanceViewer& viewer);
  void ShowSummary(std::int16_t reportType);
  void ShowYearEnd(std::int16_t reportType);
  void SetUp(RemittanceViewer& viewer) const;

  [[nodiscard]] bool ShowsAllIndustries() const;

  CompanyHeading company_;
  RemittanceHeadings headings_;
  DateTime startingDate_;
  DateTime endingDate_;
  std::int16_t currentYear_ = 0;
  /// Of the last industry listed; kept for callers.
  double lastIndustryRate_ = 0;
  std::vector<std::string> assessmentSettings_;
  std::vector<std::string> remittanceSettings_;
};

/// The year that is reported in a current year: a year is reported after it has ended, but for
/// 2000, the first of all.
[[nodiscard]] int ReportedYear(int currentYear);

}  // namespace lorvane
