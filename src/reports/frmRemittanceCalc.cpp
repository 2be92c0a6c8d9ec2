#include "reports/frmRemittanceCalc.h"

#include <algorithm>
#include <array>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "company/cIndustry.h"
#include "reports/frmReports.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/YearQuestion.h"
#include "screen/modForm.h"

namespace lorvane {
namespace {

constexpr const char* kAssessment = "Assessment";
constexpr const char* kRemittanceSection = "Remittance";
constexpr const char* kAll = "(All)";

constexpr int kFirstYear = 2000;
constexpr int kLastYear = 2020;
constexpr double kLatestYear = 9999;

// A setting is taken by the place of its line and cut out from a character's place on: the order of
// the keys is part of the file's format.
std::string Setting(const std::vector<std::string>& lines, std::size_t line, std::size_t from) {
  if (line >= lines.size()) {
    throw RuntimeError(error_number::kSubscriptOutOfRange);
  }
  return Mid(lines[line], from);
}

std::string CurrentYearOf(const std::vector<std::string>& assessment) {
  constexpr std::size_t kLine = 3;
  constexpr std::size_t kFrom = 13;
  return Setting(assessment, kLine, kFrom);
}

// The same day of another year; of 29 February the day before, where the year has none.
DateTime InYear(const DateTime& date, int year) {
  const std::optional<DateTime> same = MakeDate(year, date.month, date.day);
  return same ? *same : DateTime{year, date.month, date.day - 1};
}

/// Shows a progress bar for as long as it lives.
class ShownProgress {
 public:
  explicit ShownProgress(ProgressBar& progress) : progress_(progress) {
    progress_.SetVisible(true);
  }
  ShownProgress(const ShownProgress&) = delete;
  ShownProgress& operator=(const ShownProgress&) = delete;
  ~ShownProgress() { progress_.SetVisible(false); }

 private:
  ProgressBar& progress_;
};

}  // namespace

frmRemittanceCalc::frmRemittanceCalc(ScreenContext context)
    : Screen(context, "frmRemittanceCalc", "Lorvane Remittance Reports"),
      dtpStarting(*this, "dtpStarting", context.services.Now()),
      dtpEnding(*this, "dtpEnding", context.services.Now()) {
  txtCurrentYear.SetReadOnly(true);
  txtCurrentYear.SetTabStop(false);
  prgReport.SetVisible(false);
  cmdOK.SetButtonRole(Command::Role::kDefault);
  cmdCancel.SetButtonRole(Command::Role::kCancel);
  cmdOK.OnClick = [this] { Run(); };
  cmdAnnualSubCon.OnClick = [this] { Summarise(0, true); };
  cmdSummary.OnClick = [this] { Summarise(1, false); };
  cmdCancel.OnClick = [this] { Close(); };
}

void frmRemittanceCalc::Load() {
  CentreForm(*this);
  ReadCompany();
  FillIndustries();
  RestoreSettings();
  LayOutFace();
}

// One broken setting doesn't keep the others from being restored; the first that is met is told.
void frmRemittanceCalc::RestoreSettings() {
  ReadSettings();
  std::optional<RuntimeError> first;
  for (const auto step : {&frmRemittanceCalc::SetDateLimits, &frmRemittanceCalc::RestoreKind,
                          &frmRemittanceCalc::RestoreOptions, &frmRemittanceCalc::RestoreDates}) {
    try {
      (this->*step)();
    } catch (const RuntimeError& error) {
      first = first.value_or(error);
    }
  }
  if (first) {
    ShowError(context_, *first, box::kExclamation);
  }
}

void frmRemittanceCalc::ReadCompany() {
  try {
    company_ = ReadCompanyHeading(context_.session.gDataConn->Connection());
  } catch (const RuntimeError& error) {
    if (error.Number() == error_number::kNoCurrentRow) {
      context_.services.MsgBox(
          "In order for your reports to display properly\r\n"
          "you should fill in your company information.",
          box::kInformation, "Company Information");
    } else {
      ShowError(context_, error, box::kExclamation);
    }
  }
}

void frmRemittanceCalc::FillIndustries() {
  cIndustry industries;
  industries.SetDataConnection(context_.session.gDataConn.get());
  industries.OpenRecordset();
  for (const IndustrySlot slot : kAllSlots) {
    if (industries.Ind[slot]) {
      cboIndustries.Add(industries.Desc[slot], NumberOf(slot));
      lastIndustryRate_ = industries.Rate[slot];
    }
  }
  cboIndustries.Add(kAll, RemittanceFill::kAllIndustries);
  cboIndustries.SetListIndex(0);
}

void frmRemittanceCalc::ReadSettings() {
  cINI ini = context_.session.Ini();
  assessmentSettings_ = ini.SectionGet(kAssessment);
  remittanceSettings_ = ini.SectionGet(kRemittanceSection);
}

void frmRemittanceCalc::SetDateLimits() {
  try {
    const std::string year = CurrentYearOf(assessmentSettings_);
    LimitDatesTo(year);
    currentYear_ = ToInteger(year);
  } catch (const RuntimeError& error) {
    if (error.Number() != error_number::kTypeMismatch) {
      throw;
    }
    context_.session.Ini().KeySave("0", kAssessment, "CurrentYear");
    currentYear_ = 0;
    AskYear();
    ReadSettings();
    // The answer holds even where the file couldn't be written.
    LimitDatesTo(std::to_string(currentYear_));
  }
}

void frmRemittanceCalc::LimitDatesTo(const std::string& year) {
  const DateTime latest = ToDate("12/31/" + year).Day();
  const DateTime earliest = ToDate("01/01/" + year).Day();
  for (DatePicker* picker : {&dtpStarting, &dtpEnding}) {
    picker->SetLimits(earliest, latest);
    picker->SetDate(std::clamp(picker->Date(), earliest, latest));
  }
}

void frmRemittanceCalc::AskYear() {
  while (currentYear_ == 0) {
    try {
      const std::int16_t year = ToInteger(context_.services.InputBox(
          "What is the reporting year?", "Year", std::to_string(context_.services.Now().year)));
      if (AcceptYear(context_, year, "Remittances were only required after 2000.")) {
        currentYear_ = year;
        context_.session.Ini().KeySave(std::to_string(year), kAssessment, "CurrentYear");
      }
    } catch (const RuntimeError& error) {
      if (error.Number() != error_number::kOverflow &&
          error.Number() != error_number::kTypeMismatch) {
        throw;
      }
      context_.services.MsgBox("Please enter a valid year.", box::kExclamation, "Year");
    }
  }
}

void frmRemittanceCalc::RestoreKind() {
  constexpr std::size_t kDefaultLine = 1;
  constexpr std::size_t kDefaultFrom = 9;
  if (ToDouble(Setting(assessmentSettings_, kDefaultLine, kDefaultFrom)) == 0) {
    optEmployee.Choose();
  } else {
    optSubContractor.Choose();
  }
}

void frmRemittanceCalc::RestoreOptions() {
  struct Option {
    CheckBox& box;
    std::size_t line;
    std::size_t from;
  };
  for (const Option& option :
       {Option{chkExport, 2, 8}, Option{chkNav, 3, 5}, Option{chkProgress, 4, 10},
        Option{chkRefresh, 5, 9}, Option{chkSearch, 6, 8}, Option{chkZoom, 7, 6}}) {
    option.box.SetChecked(Setting(remittanceSettings_, option.line, option.from) == "-1");
  }
}

void frmRemittanceCalc::RestoreDates() {
  constexpr std::size_t kFromLine = 8;
  constexpr std::size_t kFromFrom = 6;
  constexpr std::size_t kToLine = 9;
  constexpr std::size_t kToFrom = 4;
  const DateTime starting = ToDate(Setting(remittanceSettings_, kFromLine, kFromFrom));
  const DateTime ending = ToDate(Setting(remittanceSettings_, kToLine, kToFrom));
  try {
    dtpStarting.SetDate(starting);
    dtpEnding.SetDate(ending);
  } catch (const RuntimeError& error) {
    if (error.Number() != error_number::kDateOutOfRange) {
      throw;
    }
    const int year = dtpStarting.Earliest()->year;
    dtpStarting.SetDate(InYear(starting, year));
    dtpEnding.SetDate(InYear(ending, year));
  }
}

void frmRemittanceCalc::LayOutFace() {
  constexpr std::array kCaptions{"Lorvane Remittance Reports", "Employer Year-end Update",
                                 "Employer Year-end Asset Log",
                                 "Employer Year-end Principal Information"};
  const bool yearEnd = SelectReportOptions != kRemittance;
  if (SelectReportOptions >= 0 &&
      static_cast<std::size_t>(SelectReportOptions) < kCaptions.size()) {
    SetCaption(kCaptions[static_cast<std::size_t>(SelectReportOptions)]);
  }
  for (Control* control : std::initializer_list<Control*>{
           &fraRemittance, &optEmployee, &optSubContractor, &cmdSummary, &cmdAnnualSubCon,
           &fraSelection, &lblIndustry, &cboIndustries, &lblStarting, &dtpStarting, &lblEnding,
           &dtpEnding, &fraOptions, &chkExport, &chkNav, &chkProgress, &chkRefresh, &chkSearch,
           &chkZoom}) {
    control->SetVisible(!yearEnd);
  }
  for (Control* control : std::initializer_list<Control*>{&fraYearEnd, &lblCurrentYear,
                                                          &txtCurrentYear, &lblYear, &cboYear}) {
    control->SetVisible(yearEnd);
  }
  for (Control* control :
       std::initializer_list<Control*>{&lblPlease, &chkEmployerName, &chkOpAs, &chkBusinessNumber,
                                       &chkMainBusiness, &chkSIC, &chkClaim, &chkFinancial}) {
    control->SetVisible(SelectReportOptions == kUpdate);
  }
  if (yearEnd) {
    FillYears();
  }
}

void frmRemittanceCalc::FillYears() {
  txtCurrentYear.SetText(std::to_string(currentYear_));
  for (int year = kFirstYear; year <= kLastYear; ++year) {
    cboYear.Add(std::to_string(year));
  }
  const int reported = ReportedYear(currentYear_);
  if (reported < kFirstYear || reported > kLastYear) {
    txtCurrentYear.SetText("????");
    cboYear.SetText(std::to_string(context_.services.Now().year - 1));
  } else {
    cboYear.SetText(std::to_string(reported));
  }
}

void frmRemittanceCalc::Run() {
  context_.services.SetPointer(pointer::kHourglass);
  if (SelectReportOptions == kRemittance) {
    Calculate();
  } else {
    ShowYearEnd(static_cast<std::int16_t>(SelectReportOptions - kUpdate));
  }
  context_.services.SetPointer(pointer::kDefault);
}

void frmRemittanceCalc::Calculate() {
  const ShownProgress shown(prgReport);
  RemittanceFill fill = MakeFill();
  if (!FillScratchTable(fill)) {
    context_.services.MsgBox(
        "There is nothing to view for the selected date range.\r\n\r\n"
        "Please select a new starting and ending date.",
        box::kInformation, "No Records");
    return;
  }
  if (ShowsAllIndustries()) {
    fill.AllIdentifiers(headings_);
  } else {
    fill.IndustryHeading(cboIndustries.ItemData(cboIndustries.ListIndex()), headings_);
  }
  if (optEmployee.Chosen()) {
    frmrptEmp viewer(context_);
    ShowRemittance(viewer);
  } else {
    frmRptSub viewer(context_);
    ShowRemittance(viewer);
  }
}

bool frmRemittanceCalc::FillScratchTable(RemittanceFill& fill) {
  const int industryItem = cboIndustries.ItemData(cboIndustries.ListIndex());
  startingDate_ = dtpStarting.Date();
  endingDate_ = dtpEnding.Date();
  if (optEmployee.Chosen()) {
    fill.ClearEmployeeRemittance();
    return fill.FillEmployeeRemittance(startingDate_, endingDate_, industryItem);
  }
  bool cleared = false;
  fill.ClearSubContractorRemittance(cleared);
  return fill.FillSubContractorRemittance(startingDate_, endingDate_, industryItem);
}

void frmRemittanceCalc::Summarise(std::int16_t reportType, bool clearingCounts) {
  const ShownProgress shown(prgReport);
  RemittanceFill fill = MakeFill();
  bool cleared = false;
  fill.ClearSubContractorRemittance(cleared);
  if ((cleared || !clearingCounts) && fill.FillSubContractorSummary()) {
    fill.AllIdentifiers(headings_);
    ShowSummary(reportType);
  } else {
    // The title is the same for both summaries.
    context_.services.MsgBox("There is nothing to view.", box::kExclamation,
                             "Annual Subcontractor Report");
  }
}

bool frmRemittanceCalc::ShowsAllIndustries() const { return cboIndustries.Text() == kAll; }

void frmRemittanceCalc::SetUp(RemittanceViewer& viewer) const {
  viewer.Identifier = company_.businessNumber + headings_.Identifier;
  viewer.IndustryDesc = headings_.IndustryDesc;
  viewer.Export = chkExport.Checked();
  viewer.NavButtons = chkNav.Checked();
  viewer.Progress = chkProgress.Checked();
  viewer.RefreshButton = chkRefresh.Checked();
  viewer.Search = chkSearch.Checked();
  viewer.Zoom = chkZoom.Checked();
}

void frmRemittanceCalc::ShowRemittance(RemittanceViewer& viewer) {
  SetUp(viewer);
  viewer.SelectReportType = ShowsAllIndustries() ? 1 : 0;
  viewer.StartDate = LongDate(startingDate_);
  viewer.EndDate = LongDate(endingDate_);
  viewer.CompanyName = company_.name + " " + company_.address;
  context_.services.ShowModal(viewer);
}

void frmRemittanceCalc::ShowSummary(std::int16_t reportType) {
  frmSubQtrSumm viewer(context_);
  SetUp(viewer);
  viewer.SelectReportType = reportType;
  SetUpSummary(viewer, company_, currentYear_);
  context_.services.ShowModal(viewer);
}

void frmRemittanceCalc::ShowYearEnd(std::int16_t reportType) {
  const std::optional<double> year = ParseNumber(cboYear.Text());
  if (!year || *year < 0 || *year > kLatestYear) {
    context_.services.SetPointer(pointer::kDefault);
    context_.services.MsgBox("Please enter a valid year.", box::kExclamation, "Year");
    return;
  }
  frmReports viewer(context_);
  viewer.SelectReportType = reportType;
  viewer.ReportingYear = ToInteger(*year);
  if (SelectReportOptions == kUpdate) {
    viewer.EmployerName = chkEmployerName.Checked();
    viewer.TradeName = chkOpAs.Checked();
    viewer.BusinessNumber = chkBusinessNumber.Checked();
    viewer.MainBusiness = chkMainBusiness.Checked();
    viewer.Sic = chkSIC.Checked();
    viewer.ClaimContact = chkClaim.Checked();
    viewer.FinanContact = chkFinancial.Checked();
  }
  context_.services.ShowModal(viewer);
}

void frmRemittanceCalc::Unload() {
  cINI ini = context_.session.Ini();
  const auto save = [&](const char* key, const CheckBox& option) {
    ini.KeySave(option.Checked() ? "-1" : "0", kRemittanceSection, key);
  };
  save("Export", chkExport);
  save("Nav", chkNav);
  save("Progress", chkProgress);
  save("Refresh", chkRefresh);
  save("Search", chkSearch);
  save("Zoom", chkZoom);
  ini.KeySave(ShortDate(dtpStarting.Date()), kRemittanceSection, "From");
  ini.KeySave(ShortDate(dtpEnding.Date()), kRemittanceSection, "To");
}

std::optional<std::string> frmRemittanceCalc::Property(std::string_view name) const {
  if (EqualsNoCase(name, "SelectReportOptions")) {
    return std::to_string(SelectReportOptions);
  }
  if (EqualsNoCase(name, "CurrentYear")) {
    return std::to_string(currentYear_);
  }
  return std::nullopt;
}

bool frmRemittanceCalc::SetProperty(std::string_view name, std::string_view value) {
  if (EqualsNoCase(name, "SelectReportOptions")) {
    SelectReportOptions = ToInteger(value);
    return true;
  }
  return false;
}

int ReportedYear(int currentYear) {
  return currentYear == kFirstYear ? kFirstYear : currentYear - 1;
}

}  // namespace lorvane
