#include "reports/frmReports.h"

#include "reports/ReportDesigns.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"

namespace lorvane {
namespace {

constexpr std::int16_t kUpdate = 0;
constexpr std::int16_t kAssetLog = 1;
constexpr std::int16_t kPrincipals = 2;

// The clearance report has none.
std::string CaptionOf(std::int16_t reportType) {
  switch (reportType) {
    case kUpdate:
      return "Employer Year-end Update";
    case kAssetLog:
      return "Employer Year-end Asset Log";
    case kPrincipals:
      return "Employer Year-end Principal Information";
    default:
      return {};
  }
}

void SetContact(Report& report, const std::string& prefix, const EmployerContact& contact) {
  report.SetText(prefix + "Name", contact.Name);
  report.SetText(prefix + "Street", contact.Street);
  report.SetText(prefix + "City", contact.City);
  report.SetText(prefix + "Province", contact.Province);
  report.SetText(prefix + "PostalCode", contact.PostalCode);
  report.SetText(prefix + "Phone", contact.Phone);
  report.SetText(prefix + "Fax", contact.Fax);
}

void SetOptionTexts(Report& report, const EmployerOptions& options) {
  report.SetText("mainBusiness", options.MainBusiness);
  SetContact(report, "claim", options.Claim);
  SetContact(report, "financial", options.Finan);
  report.SetText("payroll",
                 options.Internal == cOptions::kYes
                     ? "Our payroll is prepared internally"
                     : "Our payroll is prepared externally by " + options.ServiceProvider);
  report.SetText("financialInstitution", options.FinancialInstitution);
  report.SetText("accountNumber", options.AcctNo);
  report.SetText("locationStreet", options.Loc.Street);
  report.SetText("locationCity", options.Loc.City);
  report.SetText("locationProvince", options.Loc.Province);
  report.SetText("locationPostalCode", options.Loc.PostalCode);
}

}  // namespace

frmReports::frmReports(ScreenContext context)
    : ReportScreen(context, "frmReports", ""), options_(context) {
  properties_.Add("EmployerName", &EmployerName);
  properties_.Add("TradeName", &TradeName);
  properties_.Add("BusinessNumber", &BusinessNumber);
  properties_.Add("MainBusiness", &MainBusiness);
  properties_.Add("Sic", &Sic);
  properties_.Add("ClaimContact", &ClaimContact);
  properties_.Add("FinanContact", &FinanContact);
  properties_.Add("ReportingYear", &ReportingYear);
  // Nobody chooses this viewer's buttons: its design has them.
  CRViewer1.SetButtons({.exporting = true,
                        .navigation = true,
                        .progress = true,
                        .refresh = true,
                        .search = true,
                        .zoom = true,
                        .print = true});
}

void frmReports::Load() {
  context_.services.SetPointer(pointer::kHourglass);
  SetCaption(CaptionOf(SelectReportType));
  ReadSources();
  CRViewer1.SetZoom(ReportViewer::kNaturalZoom);
  ShowReport();
  context_.services.SetPointer(pointer::kDefault);
}

// What can't be read is told, and the report is shown with the rest.
void frmReports::ReadSources() {
  ScreenServices& services = context_.services;
  DataConnection* connection = context_.session.gDataConn.get();
  company_.SetDataConnection(connection);
  industries_.SetDataConnection(connection);
  if (!options_.GetOptions(context_.session.gConfigFile)) {
    services.MsgBox("Failed to retrieve options.", box::kExclamation, "Options");
  }
  if (!company_.OpenRecordset()) {
    services.MsgBox("Failed to open your company information.", box::kExclamation, "Company");
  }
  if (!industries_.OpenRecordset()) {
    services.MsgBox("Failed to open your industry information.", box::kExclamation, "Industry");
  }
}

Report frmReports::MakeReport() {
  Report report(
      DesignOfType({crptEmployerYEUpdate, crptAssetLog, crptPrincipals, crptClearanceExpiry}));
  report.DiscardSavedData();
  report.SetText("legalName", company_.LegalName);
  if (SelectReportType == kUpdate) {
    SetUpdateTexts(report);
    BlankMarks(report);
  } else if (SelectReportType == kAssetLog || SelectReportType == kPrincipals) {
    report.SetText("reportingYear", "For the " + std::to_string(ReportingYear) + " Year");
  }
  return report;
}

// A slot counts by its rate. Without one for slot A both lists start with their separator, and
// that is how they have always been filed.
std::string frmReports::BusinessNumbers() const {
  std::string numbers;
  for (const IndustrySlot slot : kAllSlots) {
    if (industries_.Rate[slot] > 0) {
      numbers += (slot == IndustrySlot::kA ? "" : ", ") + company_.BusNum + company_.PrgIdentifier +
                 industries_.Identifier[slot];
    }
  }
  return numbers;
}

std::string frmReports::SicCodes() const {
  std::string codes;
  for (const IndustrySlot slot : kAllSlots) {
    if (industries_.Rate[slot] > 0) {
      codes += (slot == IndustrySlot::kA ? "" : " | ") + industries_.Sic[slot] + " " +
               industries_.Desc[slot];
    }
  }
  return codes;
}

void frmReports::SetUpdateTexts(Report& report) const {
  report.SetText("tradeName", company_.OpAs);
  report.SetText("businessNumber", BusinessNumbers());
  report.SetText("sicCodes", SicCodes());
  SetOptionTexts(report, options_);
  report.SetText("reportingYear", "For the Year " + std::to_string(ReportingYear));
}

void frmReports::BlankMarks(Report& report) const {
  const auto blankUnless = [&](bool changed, const char* mark) {
    if (!changed) {
      report.SetText(mark, " ");
    }
  };
  blankUnless(EmployerName, "markEmployerName");
  blankUnless(TradeName, "markTradeName");
  blankUnless(BusinessNumber, "markBusinessNumber");
  blankUnless(ClaimContact, "markClaim");
  blankUnless(FinanContact, "markFinancial");
  blankUnless(MainBusiness || Sic, "markBusiness");
}

}  // namespace lorvane
