// Posting the saved entries of 1,000 employees through the payment window, and the same statements
// in one transaction.

#include <fmt/format.h>

#include "BareFile.h"
#include "CompanyFiles.h"
#include "Comparison.h"
#include "Posting.h"

namespace lorvane {
namespace {

constexpr int kEmployees = 1000;

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
      argc, argv,
      {"posting 1,000 rows", [&] { return SecondsOfPosting(files.FreshCopy(), kEmployees); },
       [&] { return Bare(files); }});
}
