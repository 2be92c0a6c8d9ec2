#include "basic/Number.h"
#include "data/modDataAccess.h"
#include "reports/DesignCells.h"
#include "reports/ReportDesigns.h"

namespace lorvane {
namespace {

constexpr const char* kRows =
    "SELECT SubContractId, Name, PayDate, Amount, PercentLabour, AssessAmt, Rate "
    "FROM tblSubRemittance ORDER BY Name, SubContractId, PercentLabour, Rate, PayDate, Id";
enum Place : std::size_t { kId, kName, kDate, kAmount, kPercent, kAssessable, kRate };

constexpr const char* kEverything =
    "Every sub-contractor payment in the current data is counted, of all industries and whatever "
    "its date.";

Value NameOf(const DataRow& row, const FillMoment& /*moment*/) {
  const std::string name = NullToText(row[kName]);
  return name.empty() ? kNotOnFile : name;
}

Value AssessmentOfRow(const DataRow& row, const FillMoment& /*moment*/) {
  return AssessmentOf(row[kRate], row[kAssessable]);
}

bool SamePayee(const DataRow& left, const DataRow& right) { return left[kId] == right[kId]; }

bool SameTerms(const DataRow& left, const DataRow& right) {
  return SamePayee(left, right) && left[kPercent] == right[kPercent] && left[kRate] == right[kRate];
}

constexpr int kMonthsOfQuarter = 3;

int QuarterOf(const DateTime& date) { return (date.month - 1) / kMonthsOfQuarter + 1; }

// Quarters in their order through the years; payments without a date come first.
Value QuarterKey(const DataRow& row) {
  constexpr int kMoreThanQuarters = 10;
  const auto* date = std::get_if<DateTime>(&row[kDate]);
  return date == nullptr ? std::int32_t{0} : date->year * kMoreThanQuarters + QuarterOf(*date);
}

std::string QuarterName(const DataRow& row) {
  const auto* date = std::get_if<DateTime>(&row[kDate]);
  if (date == nullptr) {
    return "Undated payments";
  }
  const int first = (QuarterOf(*date) - 1) * kMonthsOfQuarter + 1;
  static constexpr const char* kMonths[] = {"January to March", "April to June",
                                            "July to September", "October to December"};
  return "Quarter " + std::to_string(QuarterOf(*date)) + " of " + std::to_string(date->year) +
         ", " + kMonths[first / kMonthsOfQuarter];
}

// The assessment of a payment in one quarter's column.
template <int quarter>
Value InQuarter(const DataRow& row, const FillMoment& moment) {
  const auto* date = std::get_if<DateTime>(&row[kDate]);
  const int found = date == nullptr ? 0 : QuarterOf(*date);
  return found == quarter ? AssessmentOfRow(row, moment) : Value();
}

DesignList PaymentsByQuarter() {
  constexpr std::size_t kLabel = 2;
  DesignList list;
  list.heading = "Payments by quarter";
  list.statement = kRows;
  list.columns = {
      {"Quarter", ReportFormat::kText, 120,
       [](const DataRow& row, const FillMoment&) -> Value { return QuarterName(row); }, false,
       true},
      {"Id", ReportFormat::kText, 40, Read<kId>},
      {"Sub-contractor", ReportFormat::kText, 180, NameOf},
      {"Payments", ReportFormat::kNumber, 55, CountOne, true},
      {"Contract payments", ReportFormat::kMoney, 90, ReadAmount<kAmount>, true},
      {"Assessable part", ReportFormat::kMoney, 90, ReadAmount<kAssessable>, true},
      {"Assessment", ReportFormat::kMoney, 85, AssessmentOfRow, true},
  };
  list.group = DesignGroup{QuarterKey, true, QuarterName,
                           [](const DataRow& row) { return "Total " + QuarterName(row); }};
  list.alike = SamePayee;
  list.labelColumn = kLabel;
  list.one = "payment";
  list.several = "payments";
  return list;
}

DesignList AssessmentsOfQuarters() {
  DesignList list;
  list.heading = "Assessments of each sub-contractor";
  list.statement = kRows;
  list.columns = {
      {"Id", ReportFormat::kText, 40, Read<kId>},
      {"Sub-contractor", ReportFormat::kText, 150, NameOf},
      {"Quarter 1", ReportFormat::kMoney, 70, InQuarter<1>, true},
      {"Quarter 2", ReportFormat::kMoney, 70, InQuarter<2>, true},
      {"Quarter 3", ReportFormat::kMoney, 70, InQuarter<3>, true},
      {"Quarter 4", ReportFormat::kMoney, 70, InQuarter<4>, true},
      {"Undated", ReportFormat::kMoney, 60, InQuarter<0>, true, false, true},
      {"Assessment", ReportFormat::kMoney, 75, AssessmentOfRow, true},
  };
  list.alike = SamePayee;
  list.labelColumn = 1;
  list.one = "payment";
  list.several = "payments";
  return list;
}

DesignList PaymentsOfYear() {
  DesignList list;
  list.statement = kRows;
  list.columns = {
      {"Id", ReportFormat::kText, 40, Read<kId>},
      {"Sub-contractor", ReportFormat::kText, 150, NameOf},
      {"Payments", ReportFormat::kNumber, 55, CountOne, true},
      {"Contract payments", ReportFormat::kMoney, 90, ReadAmount<kAmount>, true},
      {"% Labour", ReportFormat::kNumber, 55, Read<kPercent>},
      {"Assessable part", ReportFormat::kMoney, 90, ReadAmount<kAssessable>, true},
      {"Rate", ReportFormat::kNumber, 45, Read<kRate>},
      {"Assessment", ReportFormat::kMoney, 85, AssessmentOfRow, true},
  };
  list.alike = SameTerms;
  list.labelColumn = 1;
  list.one = "payment";
  list.several = "payments";
  return list;
}

}  // namespace

const ReportDesign& crpAnnualSub() {
  static const ReportDesign design{
      "Annual Sub-Contractor Report",
      PageOrientation::kLandscape,
      {"tblSubRemittance", "tblCompany"},
      {{"company", DesignText::Place::kHeading},
       {"businessNumber", DesignText::Place::kHeading},
       {"address", DesignText::Place::kHeading},
       {"reportingYear", DesignText::Place::kStated}},
      {PaymentsOfYear()},
      {kAssessmentMethod, kEverything,
       "A sub-contractor has a line for each labour percentage and rate of his payments."}};
  return design;
}

const ReportDesign& crpQSubSumm() {
  static const ReportDesign design{
      "Quarterly Sub-Contractor Remittance Summary",
      PageOrientation::kLandscape,
      {"tblSubRemittance", "tblCompany"},
      {{"company", DesignText::Place::kHeading},
       {"businessNumber", DesignText::Place::kHeading},
       {"reportingYear", DesignText::Place::kStated}},
      {PaymentsByQuarter(), AssessmentsOfQuarters()},
      {kAssessmentMethod, kEverything, "A payment belongs to the quarter of its date."}};
  return design;
}

}  // namespace lorvane
