#include "reports/RemittanceReport.h"

#include <optional>

#include "basic/Money.h"
#include "basic/Text.h"
#include "data/Recordset.h"
#include "data/modDataAccess.h"

namespace lorvane {
namespace {

constexpr const char* kEmployeeRows =
    "SELECT EmployeeId, LastName, FirstName, Initial, Date, Industry, Amount, AssessAmt, AssessRt "
    "FROM tblEmpRemittance ORDER BY LastName, FirstName, EmployeeId, Date, Id";
constexpr const char* kSubContractorRows =
    "SELECT SubContractId, Name, PayDate, Industry, Amount, PercentLabour, AssessAmt, Rate "
    "FROM tblSubRemittance ORDER BY Name, SubContractId, PayDate, Id";

struct Sums {
  Currency amount;
  Currency assessable;
  Currency assessment;
  int payments = 0;

  void Add(const Sums& other) {
    amount += other.amount;
    assessable += other.assessable;
    assessment += other.assessment;
    payments += other.payments;
  }
};

class Listing {
 public:
  Listing(bool employees, ReportDocument& report) : employees_(employees), report_(report) {
    report_.columns = {{"Id"},
                       {"Name"},
                       {"Date", ReportFormat::kDate},
                       {"Industry"},
                       {"Amount", ReportFormat::kMoney}};
    if (!employees_) {
      report_.columns.push_back({"% Labour", ReportFormat::kNumber});
    }
    report_.columns.push_back({"Assessable", ReportFormat::kMoney});
    report_.columns.push_back({"Rate", ReportFormat::kNumber});
    report_.columns.push_back({"Assessment", ReportFormat::kMoney});
  }

  void AddPayment(const Recordset& rows) {
    const std::int32_t id = NullToLong(rows.Field(employees_ ? "EmployeeId" : "SubContractId"));
    if (payee_ && *payee_ != id) {
      EndPayee();
    }
    payee_ = id;
    name_ = NameOf(rows);
    const Value& rate = rows.Field(employees_ ? "AssessRt" : "Rate");
    const Sums payment{
        NullToCurrency(rows.Field("Amount")), NullToCurrency(rows.Field("AssessAmt")),
        Currency::FromDouble(NullToDouble(rate) / 100 * NullToDouble(rows.Field("AssessAmt"))), 1};
    Add(ReportRow::Kind::kDetail, id, name_, rows.Field(employees_ ? "Date" : "PayDate"),
        rows.Field("Industry"), payment, employees_ ? Value() : rows.Field("PercentLabour"), rate);
    ofPayee_.Add(payment);
  }

  void End() {
    if (payee_) {
      EndPayee();
    }
    Add(ReportRow::Kind::kTotal, Value(),
        "Total of " + std::to_string(ofAll_.payments) + " payments", Value(), Value(), ofAll_,
        Value(), Value());
  }

 private:
  [[nodiscard]] std::string NameOf(const Recordset& rows) const {
    if (!employees_) {
      return NullToText(rows.Field("Name"));
    }
    const std::string lastName = NullToText(rows.Field("LastName"));
    if (lastName.empty()) {
      return "(not on file)";
    }
    return Trim(lastName + ", " + NullToText(rows.Field("FirstName")) + " " +
                NullToText(rows.Field("Initial")));
  }

  void EndPayee() {
    Add(ReportRow::Kind::kSubtotal, Value(), "Total " + name_, Value(), Value(), ofPayee_, Value(),
        Value());
    ofAll_.Add(ofPayee_);
    ofPayee_ = {};
  }

  void Add(ReportRow::Kind kind, Value id, const std::string& name, const Value& date,
           const Value& industry, const Sums& sums, const Value& percent, const Value& rate) {
    std::vector<Value> cells{std::move(id), name, date, industry, sums.amount};
    if (!employees_) {
      cells.push_back(percent);
    }
    cells.insert(cells.end(), {Value(sums.assessable), rate, Value(sums.assessment)});
    report_.rows.push_back({kind, std::move(cells)});
  }

  bool employees_;
  ReportDocument& report_;
  std::optional<std::int32_t> payee_;
  std::string name_;
  Sums ofPayee_;
  Sums ofAll_;
};

}  // namespace

ReportDocument RemittanceReport(const DataConnection& connection, RemittancePayees payees) {
  const bool employees = payees == RemittancePayees::kEmployees;
  ReportDocument report;
  Listing listing(employees, report);
  Recordset rows;
  rows.Open(connection.Connection(), employees ? kEmployeeRows : kSubContractorRows);
  for (; !rows.Eof(); rows.MoveNext()) {
    listing.AddPayment(rows);
  }
  listing.End();
  return report;
}

}  // namespace lorvane
