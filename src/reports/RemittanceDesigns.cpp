#include "basic/Text.h"
#include "data/modDataAccess.h"
#include "reports/DesignCells.h"
#include "reports/ReportDesigns.h"

namespace lorvane {
namespace {

// A pass over all industries doesn't keep a row's own.
Value IndustryOf(const Value& letter) {
  const std::string text = TextOf(letter);
  return text == "Z" ? "All" : text;
}

// Both statements begin with the payee's key.
constexpr std::size_t kPayeeId = 0;

template <std::string (*nameOf)(const DataRow&)>
DesignGroup ByPayee() {
  return {[](const DataRow& row) { return row[kPayeeId]; }, false,
          [](const DataRow& row) { return PayeeHeading(nameOf(row), row[kPayeeId]); },
          [](const DataRow& row) { return "Total " + nameOf(row); }};
}

namespace employee {

constexpr const char* kRows =
    "SELECT EmployeeId, LastName, FirstName, Initial, Date, Industry, Amount, AssessAmt, AssessRt "
    "FROM tblEmpRemittance ORDER BY LastName, FirstName, EmployeeId, Date, Id";
enum Place : std::size_t {
  kId,
  kLastName,
  kFirstName,
  kInitial,
  kDate,
  kIndustry,
  kAmount,
  kAssessable,
  kRate
};

std::string NameOf(const DataRow& row) {
  const std::string lastName = NullToText(row[kLastName]);
  if (lastName.empty()) {
    return kNotOnFile;
  }
  const std::string given = Trim(NullToText(row[kFirstName]) + " " + NullToText(row[kInitial]));
  return given.empty() ? lastName : lastName + ", " + given;
}

std::vector<DesignColumn> Columns() {
  return {
      {"Id", ReportFormat::kText, 40, Read<kId>, false, true},
      {"Name", ReportFormat::kText, 140,
       [](const DataRow& row, const FillMoment&) -> Value { return NameOf(row); }, false, true},
      {"Date", ReportFormat::kDate, 80, Read<kDate>},
      {"Industry", ReportFormat::kText, 60,
       [](const DataRow& row, const FillMoment&) { return IndustryOf(row[kIndustry]); }},
      {"Amount", ReportFormat::kMoney, 90, ReadAmount<kAmount>, true},
      {"Assessable", ReportFormat::kMoney, 90, ReadAmount<kAssessable>, true},
      {"Rate", ReportFormat::kNumber, 50, Read<kRate>},
      {"Assessment", ReportFormat::kMoney, 90,
       [](const DataRow& row, const FillMoment&) {
         return AssessmentOf(row[kRate], row[kAssessable]);
       },
       true},
  };
}

}  // namespace employee

namespace contractor {

constexpr const char* kRows =
    "SELECT SubContractId, Name, PayDate, Industry, Amount, PercentLabour, AssessAmt, Rate "
    "FROM tblSubRemittance ORDER BY Name, SubContractId, PayDate, Id";
enum Place : std::size_t { kId, kName, kDate, kIndustry, kAmount, kPercent, kAssessable, kRate };

std::string NameOf(const DataRow& row) {
  const std::string name = NullToText(row[kName]);
  return name.empty() ? kNotOnFile : name;
}

std::vector<DesignColumn> Columns() {
  return {
      {"Id", ReportFormat::kText, 40, Read<kId>, false, true},
      {"Name", ReportFormat::kText, 140,
       [](const DataRow& row, const FillMoment&) -> Value { return NameOf(row); }, false, true},
      {"Date", ReportFormat::kDate, 75, Read<kDate>},
      {"Industry", ReportFormat::kText, 55,
       [](const DataRow& row, const FillMoment&) { return IndustryOf(row[kIndustry]); }},
      {"Amount", ReportFormat::kMoney, 85, ReadAmount<kAmount>, true},
      {"% Labour", ReportFormat::kNumber, 55, Read<kPercent>},
      {"Assessable", ReportFormat::kMoney, 85, ReadAmount<kAssessable>, true},
      {"Rate", ReportFormat::kNumber, 45, Read<kRate>},
      {"Assessment", ReportFormat::kMoney, 85,
       [](const DataRow& row, const FillMoment&) {
         return AssessmentOf(row[kRate], row[kAssessable]);
       },
       true},
  };
}

}  // namespace contractor

constexpr std::size_t kNameColumn = 1;

ReportDesign Listing(const char* title, std::vector<std::string> tables, const char* statement,
                     std::vector<DesignColumn> columns, DesignGroup group) {
  ReportDesign design;
  design.title = title;
  design.tables = std::move(tables);
  design.texts = {{"company", DesignText::Place::kHeading},
                  {"businessNumber", DesignText::Place::kHeading},
                  {"period", DesignText::Place::kStated},
                  {"industry", DesignText::Place::kStated}};
  design.sections = {DesignList{"", statement, std::move(columns), group, nullptr, kNameColumn,
                                "payment", "payments"}};
  design.method = {kAssessmentMethod};
  return design;
}

constexpr const char* kEmployeeTitle = "Employee Remittance Calculation";
constexpr const char* kSubContractorTitle = "Sub-Contractor Remittance Calculation";

}  // namespace

const ReportDesign& crptEmp() {
  static const ReportDesign design =
      Listing(kEmployeeTitle, {"tblEmpRemittance", "tblIndustries", "tblCompany"}, employee::kRows,
              employee::Columns(), ByPayee<employee::NameOf>());
  return design;
}

const ReportDesign& crpEmpIndAll() {
  static const ReportDesign design =
      Listing(kEmployeeTitle, {"tblEmpRemittance", "tblCompany"}, employee::kRows,
              employee::Columns(), ByPayee<employee::NameOf>());
  return design;
}

const ReportDesign& crptSub() {
  static const ReportDesign design =
      Listing(kSubContractorTitle, {"tblSubRemittance", "tblIndustries", "tblCompany"},
              contractor::kRows, contractor::Columns(), ByPayee<contractor::NameOf>());
  return design;
}

const ReportDesign& crpSubIndAll() {
  static const ReportDesign design =
      Listing(kSubContractorTitle, {"tblSubRemittance", "tblCompany"}, contractor::kRows,
              contractor::Columns(), ByPayee<contractor::NameOf>());
  return design;
}

}  // namespace lorvane
