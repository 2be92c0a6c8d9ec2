#pragma once

#include <string>

#include "reports/CompanyHeading.h"
#include "reports/ReportScreen.h"

namespace lorvane {

/// What the viewers of scratch tables share: the texts and button options that their caller sets,
/// and that closing one empties its table.
class RemittanceViewer : public ReportScreen {
 public:
  /// As they are shown.
  std::string StartDate;
  std::string EndDate;
  std::string Identifier;
  std::string IndustryDesc;
  std::string CompanyName;

  // Which buttons the viewer gets.
  bool Export = false;
  bool NavButtons = false;
  bool Progress = false;
  bool RefreshButton = false;
  bool Search = false;
  bool Zoom = false;

  void Unload() override;

 protected:
  /// `clearing` empties the scratch table.
  RemittanceViewer(ScreenContext context, std::string name, std::string caption,
                   const char* clearing);

  /// Switches on what the options ask for, and nothing off.
  void SwitchButtonsOn();
  void SwitchPrintOn();
  /// A remittance report with its heading lines; the industry of `all` is every one.
  [[nodiscard]] Report RemittanceReport(const ReportDesign& design, bool all) const;

 private:
  const char* clearing_;
};

/// Employee remittance: SelectReportType 0 of one industry, 1 of all.
class frmrptEmp : public RemittanceViewer {
 public:
  explicit frmrptEmp(ScreenContext context);
  void Load() override;

 protected:
  Report MakeReport() override;
};

/// Sub-contractor remittance: SelectReportType 0 of one industry, 1 of all.
class frmRptSub : public RemittanceViewer {
 public:
  explicit frmRptSub(ScreenContext context);
  void Load() override;

 protected:
  Report MakeReport() override;
};

/// The sub-contractor summaries: SelectReportType 0 of the year, 1 by quarter.
class frmSubQtrSumm : public RemittanceViewer {
 public:
  explicit frmSubQtrSumm(ScreenContext context);

  std::string ReportingYear;
  std::string Address;

  void Load() override;

 protected:
  Report MakeReport() override;
};

/// Sets a summary's texts: the company, and the year after the words of its SelectReportType.
void SetUpSummary(frmSubQtrSumm& viewer, const CompanyHeading& company, int year);

}  // namespace lorvane
