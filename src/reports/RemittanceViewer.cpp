#include "reports/RemittanceViewer.h"

#include <utility>

#include "reports/ReportDesigns.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"

namespace lorvane {
namespace {

constexpr const char* kClearEmployees = "DELETE * FROM tblEmpRemittance";
constexpr const char* kClearSubContractors = "DELETE * FROM tblSubRemittance";

constexpr std::int16_t kAllIndustries = 1;
constexpr std::int16_t kAnnual = 0;

}  // namespace

RemittanceViewer::RemittanceViewer(ScreenContext context, std::string name, std::string caption,
                                   const char* clearing)
    : ReportScreen(context, std::move(name), std::move(caption)), clearing_(clearing) {
  properties_.Add("StartDate", &StartDate);
  properties_.Add("EndDate", &EndDate);
  properties_.Add("Identifier", &Identifier);
  properties_.Add("IndustryDesc", &IndustryDesc);
  properties_.Add("CompanyName", &CompanyName);
  properties_.Add("Export", &Export);
  properties_.Add("NavButtons", &NavButtons);
  properties_.Add("Progress", &Progress);
  properties_.Add("RefreshButton", &RefreshButton);
  properties_.Add("Search", &Search);
  properties_.Add("Zoom", &Zoom);
}

void RemittanceViewer::SwitchButtonsOn() {
  ReportViewer::Buttons buttons = CRViewer1.ShownButtons();
  buttons.exporting |= Export;
  buttons.navigation |= NavButtons;
  buttons.progress |= Progress;
  buttons.refresh |= RefreshButton;
  buttons.search |= Search;
  buttons.zoom |= Zoom;
  CRViewer1.SetButtons(buttons);
  if (Zoom) {
    CRViewer1.SetZoom(ReportViewer::kNaturalZoom);
  }
}

void RemittanceViewer::SwitchPrintOn() {
  ReportViewer::Buttons buttons = CRViewer1.ShownButtons();
  buttons.print = true;
  CRViewer1.SetButtons(buttons);
}

Report RemittanceViewer::RemittanceReport(const ReportDesign& design, bool all) const {
  Report report(design);
  report.DiscardSavedData();
  report.SetText("period", "From: " + StartDate + " To: " + EndDate);
  report.SetText("industry", all ? "For All Industries" : "For: " + IndustryDesc);
  report.SetText("businessNumber", "Business No.: " + Identifier);
  report.SetText("company", CompanyName);
  return report;
}

void RemittanceViewer::Unload() { context_.session.gDataConn->Connection().Execute(clearing_); }

frmrptEmp::frmrptEmp(ScreenContext context)
    : RemittanceViewer(context, "frmrptEmp", "Employee Remittance Calculation", kClearEmployees) {
  // The one viewer whose design has the print button: it isn't switched on later.
  SwitchPrintOn();
}

void frmrptEmp::Load() {
  ShowReport();
  SwitchButtonsOn();
}

Report frmrptEmp::MakeReport() {
  return RemittanceReport(DesignOfType({crptEmp, crpEmpIndAll}),
                          SelectReportType == kAllIndustries);
}

frmRptSub::frmRptSub(ScreenContext context)
    : RemittanceViewer(context, "frmRptSub", "Sub-Contractor Remittance Calculation",
                       kClearSubContractors) {}

void frmRptSub::Load() {
  ShowReport();
  SwitchButtonsOn();
  SwitchPrintOn();
}

Report frmRptSub::MakeReport() {
  return RemittanceReport(DesignOfType({crptSub, crpSubIndAll}),
                          SelectReportType == kAllIndustries);
}

frmSubQtrSumm::frmSubQtrSumm(ScreenContext context)
    : RemittanceViewer(context, "frmSubQtrSumm", "Annual Sub-Contractor Report",
                       kClearSubContractors) {
  properties_.Add("ReportingYear", &ReportingYear);
  properties_.Add("Address", &Address);
  CRViewer1.OnPrint = [this](bool& useDefault) {
    useDefault = false;
    PrintReport();
  };
}

void frmSubQtrSumm::Load() {
  context_.services.SetPointer(pointer::kHourglass);
  if (SelectReportType != kAnnual) {
    SetCaption("Annual Quarterly Sub-Contractor Remittance Summary");
  }
  ShowReport();
  SwitchButtonsOn();
  SwitchPrintOn();
  context_.services.SetPointer(pointer::kDefault);
}

Report frmSubQtrSumm::MakeReport() {
  Report report(DesignOfType({crpAnnualSub, crpQSubSumm}));
  report.DiscardSavedData();
  report.SetText("reportingYear", ReportingYear);
  if (SelectReportType == kAnnual) {
    report.SetText("company", "Firm Name: " + CompanyName);
    report.SetText("businessNumber", "Business Number: " + Identifier);
    report.SetText("address", "Address: " + Address);
  } else {
    report.SetText("company", CompanyName + " " + Address);
    report.SetText("businessNumber", Identifier);
  }
  return report;
}

void SetUpSummary(frmSubQtrSumm& viewer, const CompanyHeading& company, int year) {
  // Every payment on file is counted; the summaries don't show the period.
  viewer.StartDate = "January 1, 2000";
  viewer.EndDate = "December 31, 2000";
  viewer.CompanyName = company.name;
  viewer.Address = company.address;
  viewer.ReportingYear = viewer.SelectReportType == kAnnual
                             ? "Reporting Year: " + std::to_string(year)
                             : "For the " + std::to_string(year) + " Year";
}

}  // namespace lorvane
