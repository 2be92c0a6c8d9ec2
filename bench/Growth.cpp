// How times grow with the payments on file: a Markdown table of milliseconds, the median of five
// rounds each.

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <functional>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "CompanyFiles.h"
#include "Comparison.h"
#include "OpenCompany.h"
#include "Posting.h"
#include "glance/YearAtAGlance.h"
#include "payments/frmSelectAssessment.h"
#include "reports/RemittanceFill.h"
#include "shell/YearEndCommands.h"

namespace lorvane {
namespace {

constexpr std::array kHistories{1000, 10000, 100000};
constexpr int kEmployees = 500;
constexpr int kRounds = 5;

struct Measure {
  const char* name;
  double (*run)(const CompanyFiles& files);
};

double Opening(const CompanyFiles& files) {
  const std::string path = files.FreshCopy();
  return SecondsOf([&] { const OpenCompany company(path); });
}

double LoadingTheList(const CompanyFiles& files) {
  OpenCompany company(files.FreshCopy());
  frmSelectAssessment window(company.Context());
  company.Services().Show(window);
  return SecondsOf([&] { window.lstIndustries.UserSelect(0); });
}

double Posting(const CompanyFiles& files) {
  return SecondsOfPosting(files.FreshCopy(), kEmployees);
}

// A twelfth of what is on file.
double FillingAMonth(const CompanyFiles& files) {
  OpenCompany company(files.FreshCopy());
  RemittanceFill fill(company.Context());
  return SecondsOf([&] {
    if (!fill.FillEmployeeRemittance({2026, 3, 1}, {2026, 3, 31}, 1)) {
      throw std::runtime_error("the remittance wasn't filled");
    }
  });
}

double YearAtOnce(const CompanyFiles& files) {
  OpenCompany company(files.FreshCopy());
  return SecondsOf([&] {
    if (ReadYearAtAGlance(company.GetSession(), {2026, 11, 20}).Total().assessable == Currency()) {
      throw std::runtime_error("the year is empty");
    }
  });
}

double YearEnd(const CompanyFiles& files) {
  OpenCompany company(files.FreshCopy());
  return SecondsOf([&] { RunYearEnd(company.Context(), "2026"); });
}

double MedianMilliseconds(const Measure& measure, const CompanyFiles& files) {
  constexpr double kMilliseconds = 1000;
  std::vector<double> seconds(kRounds);
  std::generate(seconds.begin(), seconds.end(), [&] { return measure.run(files); });
  const auto middle = seconds.begin() + kRounds / 2;
  std::nth_element(seconds.begin(), middle, seconds.end());
  return *middle * kMilliseconds;
}

}  // namespace
}  // namespace lorvane

int main() {
  using namespace lorvane;
  const std::array measures{Measure{"opening the company", Opening},
                            Measure{"loading the list of 500 employees", LoadingTheList},
                            Measure{"posting 500 payments", Posting},
                            Measure{"remittance fill of a month", FillingAMonth},
                            Measure{"the year at a glance", YearAtOnce},
                            Measure{"year end", YearEnd}};
  std::array<std::string, measures.size()> rows;
  std::string heading = "| payments on file |";
  std::string rule = "|---|";
  for (const int history : kHistories) {
    const CompanyFiles files(kEmployees, history);
    heading += fmt::format(" {} |", history);
    rule += "---:|";
    for (std::size_t i = 0; i < measures.size(); ++i) {
      rows[i] += fmt::format(" {:.1f} ms |", MedianMilliseconds(measures[i], files));
    }
  }
  std::cout << heading << "\n" << rule << "\n";
  for (std::size_t i = 0; i < measures.size(); ++i) {
    std::cout << "| " << measures[i].name << " |" << rows[i] << "\n";
  }
  return 0;
}
