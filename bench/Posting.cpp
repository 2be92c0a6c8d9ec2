#include "Posting.h"

#include <numeric>
#include <stdexcept>
#include <vector>

#include "Comparison.h"
#include "OpenCompany.h"
#include "payments/frmSelectAssessment.h"
#include "payments/frmSelectDate.h"

namespace lorvane {
namespace {

constexpr DateTime kPostingDay{2026, 1, 19};

int HistoryRows(OpenCompany& company) {
  const ResultTable count = company.GetSession().gDataConn->Connection().Query(
      "SELECT Count(*) AS Rows FROM tblEmpHistory");
  return std::get<std::int32_t>(count.rows.front().front());
}

}  // namespace

double SecondsOfPosting(const std::string& dataFile, int employees) {
  OpenCompany company(dataFile);
  const int before = HistoryRows(company);
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
  if (HistoryRows(company) != before + employees) {
    throw std::runtime_error("the payments weren't posted");
  }
  return seconds;
}

}  // namespace lorvane
