// Posting the saved entries of 1,000 employees through the payment window, and the same statements
// in one transaction.

#include <fmt/format.h>

#include <numeric>
#include <stdexcept>
#include <vector>

#include "BareFile.h"
#include "CompanyFiles.h"
#include "Comparison.h"
#include "OpenCompany.h"
#include "payments/frmSelectAssessment.h"
#include "payments/frmSelectDate.h"

namespace lorvane {
namespace {

constexpr int kEmployees = 1000;
constexpr DateTime kPostingDay{2026, 1, 19};

double Ours(const CompanyFiles& files) {
  OpenCompany company(files.FreshCopy());
  company.Services().OnModal("frmSelectDate", [](Screen& screen) {
    auto& dialog = dynamic_cast<frmSelectDate&>(screen);
    dialog.calDate.UserPick(kPostingDay);
    dialog.cmdOK.UserClick();
  });
  frmSelectAssessment window(company.Context());
  company.Services().Show(window);
  window.lstIndustries.UserSelect(0);
  std::vector<int> rows(window.lvwPayments.Rows().size());
  std::iota(rows.begin(), rows.end(), 0);
  window.lvwPayments.UserSelectRows(rows);
  const double seconds = SecondsOf([&] { window.menus.cmdTbrPost.UserClick(); });
  const ResultTable posted =
      company.GetSession().gDataConn->Connection().Query("SELECT TransactionId FROM tblEmpHistory");
  if (posted.rows.size() != kEmployees) {
    throw std::runtime_error("the payments weren't posted");
  }
  return seconds;
}

// The statements that the posting composes, with what it reads fetched.
double Bare(const CompanyFiles& files) {
  BareFile file(files.FreshCopy());
  std::size_t read = 0;
  const auto fetch = [&](sqlite3_stmt* row) { read += BareFile::RowText(row).size(); };
  return SecondsOf([&] {
    file.Run("BEGIN IMMEDIATE");
    for (int id = 1; id <= kEmployees; ++id) {
      file.Read("SELECT * FROM tblTableIDs WHERE TableName = 'tblEmpHistory'", fetch);
      file.Run("UPDATE tblTableIDs SET NextId = NextId + 1 WHERE TableName = 'tblEmpHistory'");
      file.Run(fmt::format(
          "INSERT INTO tblEmpHistory (TransactionId, EmployeeId, DtCreate, AssessRt, Remittance, "
          "PayDateA, AmountA, AssessAmtA, IndA) VALUES ({0}, {0}, '2026-01-05 10:00:00', 6.27, "
          "{1}.25, '2026-01-19', {2}.75, {2}.75, -1)",
          id, 90 + id % 40, 1500 + id % 700));
    }
    for (int id = 1; id <= kEmployees; ++id) {
      file.Run(
          fmt::format("UPDATE tblEmployees SET AccWages = {}.5, AmountA = 0, AssessAmtA = 0 WHERE "
                      "EmployeeId = {}",
                      11500 + id % 900, id));
    }
    file.Read(
        "SELECT EmployeeId, LastName, FirstName, Initial, Sin, Street, City, Province, "
        "PostalCode, HPhone, CPhone, WPhone, Mailing, Birth, Health, Gender, Occupation, "
        "AccWages, MaxContrib, PayDateA, AmountA, AssessAmtA, IndA, Inactive FROM tblEmployees "
        "WHERE IndA = -1 AND Inactive = 0",
        fetch);
    file.Run("COMMIT");
  });
}

}  // namespace
}  // namespace lorvane

int main(int argc, char** argv) {
  using namespace lorvane;
  const CompanyFiles files(kEmployees, 0);
  return RunComparison(
      argc, argv, {"posting 1,000 rows", [&] { return Ours(files); }, [&] { return Bare(files); }});
}
