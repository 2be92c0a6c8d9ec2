// Loading the payment list of an industry with 10,000 employees, and the same SELECT read row by
// row.

#include <stdexcept>

#include "BareFile.h"
#include "CompanyFiles.h"
#include "Comparison.h"
#include "OpenCompany.h"
#include "payments/frmSelectAssessment.h"

namespace lorvane {
namespace {

constexpr int kEmployees = 10000;

double Ours(const CompanyFiles& files) {
  OpenCompany company(files.FreshCopy());
  frmSelectAssessment window(company.Context());
  company.Services().Show(window);
  window.lstIndustries.UserSelect(0);
  const double seconds = SecondsOf([&] { window.RefreshList(); });
  if (window.lvwPayments.Count() != kEmployees) {
    throw std::runtime_error("the payment list isn't full");
  }
  return seconds;
}

double Bare(const CompanyFiles& files) {
  BareFile file(files.FreshCopy());
  std::size_t read = 0;
  return SecondsOf([&] {
    file.Read(
        "SELECT EmployeeId, LastName, FirstName, Initial, Sin, Street, City, Province, "
        "PostalCode, HPhone, CPhone, WPhone, Mailing, Birth, Health, Gender, Occupation, "
        "AccWages, MaxContrib, PayDateA, AmountA, AssessAmtA, IndA, Inactive FROM tblEmployees "
        "WHERE IndA = -1 AND Inactive = 0",
        [&](sqlite3_stmt* row) { read += BareFile::RowText(row).size(); });
  });
}

}  // namespace
}  // namespace lorvane

int main(int argc, char** argv) {
  using namespace lorvane;
  const CompanyFiles files(kEmployees, 0);
  return RunComparison(argc, argv,
                       {"loading a payment list of 10,000 employees", [&] { return Ours(files); },
                        [&] { return Bare(files); }});
}
