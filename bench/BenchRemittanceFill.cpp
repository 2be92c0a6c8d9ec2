// The remittance fill of a year with 30,000 payments, its names looked up, and the same statements
// in one transaction.

#include <fmt/format.h>

#include <stdexcept>
#include <utility>
#include <vector>

#include "BareFile.h"
#include "CompanyFiles.h"
#include "Comparison.h"
#include "OpenCompany.h"
#include "data/modDataAccess.h"
#include "reports/RemittanceFill.h"

namespace lorvane {
namespace {

// The fill counts its rows in 16 bits: 32,767 is the most.
constexpr int kHistoryRows = 30000;
constexpr int kEmployees = 1000;

double Ours(const CompanyFiles& files) {
  OpenCompany company(files.FreshCopy());
  RemittanceFill fill(company.Context());
  bool filled = false;
  const double seconds = SecondsOf([&] {
    filled = fill.FillEmployeeRemittance({2026, 1, 1}, {2026, 12, 31}, 1);
  });
  const ResultTable named = company.GetSession().gDataConn->Connection().Query(
      "SELECT Count(*) AS Rows FROM tblEmpRemittance WHERE NOT LastName IS NULL");
  if (!filled || NullToLong(named.rows.front().front()) != kHistoryRows) {
    throw std::runtime_error("the remittance wasn't filled");
  }
  return seconds;
}

double Bare(const CompanyFiles& files) {
  BareFile file(files.FreshCopy());
  const auto text = BareFile::TextAt;
  return SecondsOf([&] {
    file.Run("BEGIN IMMEDIATE");
    file.Read(
        "SELECT TransactionId, EmployeeId, PayDateA, AmountA, AssessAmtA, AssessRt, IndA FROM "
        "tblEmpHistory WHERE IndA = -1 AND PayDateA >= '2026-01-01' AND PayDateA <= '2026-12-31'",
        [&](sqlite3_stmt* row) {
          file.Run(fmt::format(
              "INSERT INTO tblEmpRemittance (EmployeeId, Date, Amount, AssessAmt, AssessRt, "
              "Industry) VALUES ({}, '{}', {}, {}, {}, 'A')",
              text(row, 1), text(row, 2), text(row, 3), text(row, 4), text(row, 5)));
        });
    std::vector<std::pair<std::string, std::string>> rows;
    file.Read("SELECT * FROM tblEmpRemittance",
              [&](sqlite3_stmt* row) { rows.emplace_back(text(row, 0), text(row, 1)); });
    for (const auto& [id, employee] : rows) {
      std::string names;
      file.Read(
          "SELECT EmployeeId, LastName, FirstName, Initial, Sin, Street, City, Province, "
          "PostalCode, HPhone, CPhone, WPhone, Mailing, Birth, Health, Gender, Occupation, "
          "AccWages, MaxContrib, Inactive, IndA, IndB, IndC, IndD, IndE, IndF FROM tblEmployees "
          "WHERE EmployeeId = " +
              employee,
          [&](sqlite3_stmt* row) {
            names = fmt::format("LastName = \"{}\", FirstName = \"{}\", Initial = \"{}\"",
                                text(row, 1), text(row, 2), text(row, 3));
          });
      file.Run(fmt::format("UPDATE tblEmpRemittance SET {} WHERE Id = {}", names, id));
    }
    file.Run("COMMIT");
  });
}

}  // namespace
}  // namespace lorvane

int main(int argc, char** argv) {
  using namespace lorvane;
  const CompanyFiles files(kEmployees, kHistoryRows);
  return RunComparison(
      argc, argv,
      {"remittance fill of 30,000 rows", [&] { return Ours(files); }, [&] { return Bare(files); }});
}
