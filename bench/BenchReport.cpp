// A remittance report of 30,000 payments, read, grouped, summed and laid out on pages, and the bare
// engine reading the same rows in the same order and adding them up by payee.

#include <fmt/format.h>

#include <map>
#include <stdexcept>
#include <utility>

#include "BareFile.h"
#include "CompanyFiles.h"
#include "Comparison.h"
#include "OpenCompany.h"
#include "reports/PlainMeasure.h"
#include "reports/RemittanceFill.h"
#include "reports/RemittanceViewer.h"

namespace lorvane {
namespace {

constexpr int kHistoryRows = 30000;
constexpr int kEmployees = 1000;

// Both read the same filled table.
void FillTable(OpenCompany& company) {
  RemittanceFill fill(company.Context());
  if (!fill.FillEmployeeRemittance({2026, 1, 1}, {2026, 12, 31}, 1)) {
    throw std::runtime_error("the remittance wasn't filled");
  }
}

double Ours(const CompanyFiles& files) {
  OpenCompany company(files.FreshCopy());
  FillTable(company);
  frmrptEmp viewer(company.Context());
  int pages = 0;
  const double seconds = SecondsOf([&] {
    viewer.Load();
    pages = viewer.CRViewer1.PageCount();
  });
  if (pages < 2) {
    throw std::runtime_error("the report wasn't made");
  }
  return seconds;
}

double Bare(const CompanyFiles& files) {
  const std::string path = files.FreshCopy();
  {
    OpenCompany company(path);
    FillTable(company);
  }
  BareFile file(path);
  const auto text = BareFile::TextAt;
  return SecondsOf([&] {
    std::map<std::string, double> sums;
    std::string listing;
    file.Read(
        "SELECT EmployeeId, LastName, FirstName, Initial, Date, Industry, Amount, AssessAmt, "
        "AssessRt FROM tblEmpRemittance ORDER BY LastName, FirstName, EmployeeId, Date, Id",
        [&](sqlite3_stmt* row) {
          sums[text(row, 0)] += std::stod(text(row, 6));
          listing +=
              fmt::format("{} {} {} {}\n", text(row, 4), text(row, 6), text(row, 7), text(row, 8));
        });
    if (listing.empty()) {
      throw std::runtime_error("there is nothing to list");
    }
  });
}

}  // namespace
}  // namespace lorvane

int main(int argc, char** argv) {
  using namespace lorvane;
  const CompanyFiles files(kEmployees, kHistoryRows);
  return RunComparison(
      argc, argv,
      {"report of 30,000 rows", [&] { return Ours(files); }, [&] { return Bare(files); }});
}
