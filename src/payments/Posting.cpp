#include "payments/Posting.h"

#include "basic/Money.h"
#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "payments/EmployeeList.h"
#include "payments/SubContractorList.h"
#include "payments/history/CHistoryEmp.h"
#include "payments/history/cHistorySubCon.h"
#include "payments/rules/AssessmentRules.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/modForm.h"
#include "screen/modStatus.h"

namespace lorvane {
namespace {

const std::string kNothing = Money(0);

void PostEmployeeRow(const PostingRun& run, int row, CHistoryEmp& history) {
  ListView& list = run.list;
  const PaymentTexts settled = RecalcEmployeeRow(list.Cell(row, EmployeeList::kAccWagesPlace),
                                                 list.Cell(row, EmployeeList::kMaxContribPlace),
                                                 list.Cell(row, PayeeList::kAssessablePlace));
  list.SetCell(row, EmployeeList::kPaymentPlace, settled.payment);
  list.SetCell(row, PayeeList::kAssessablePlace, settled.assessable);

  history.EmployeeId = ToLong(list.Cell(row, 0));
  history.Amount[run.slot] = ToDouble(settled.payment);
  history.AssessAmt[run.slot] = ToDouble(settled.assessable);
  history.PayDate[run.slot] = ShortDate(run.context.session.PostingDate);
  history.AssessRt = ToDouble(run.rateText);
  history.Remittance = RemittanceOf(history.AssessRt, history.AssessAmt[run.slot]);
  history.Ind[run.slot] = true;
  history.DtCreate = ShortDate(run.context.services.Now());

  const double amount = history.Amount[run.slot];
  if (amount != 0 && history.AddNew()) {
    list.SetCell(row, EmployeeList::kAccWagesPlace,
                 NextAccWages(list.Cell(row, EmployeeList::kAccWagesPlace), amount));
    list.SetCell(row, EmployeeList::kPaymentPlace, kNothing);
    list.SetCell(row, PayeeList::kAssessablePlace, kNothing);
  }
}

// The error handler of the sub-contractors' posting. Unarmed, errors go on up; armed, error 13 sets
// the percentage to 0 and the next statement runs.
class PercentTrap {
 public:
  explicit PercentTrap(cHistorySubCon& history) : history_(history) {}

  void Arm() { armed_ = true; }
  [[nodiscard]] bool Armed() const { return armed_; }

  template <typename Statement>
  void Run(Statement statement) {
    try {
      statement();
    } catch (const RuntimeError& error) {
      if (!armed_ || error.Number() != error_number::kTypeMismatch) {
        throw;
      }
      history_.PercentLabour = 0;
    }
  }

 private:
  cHistorySubCon& history_;
  bool armed_ = false;
};

void PostSubContractorRow(const PostingRun& run, int row, cHistorySubCon& history,
                          PercentTrap& trap) {
  ListView& list = run.list;
  const IndustrySlot slot = run.slot;
  trap.Run([&] { history.SubContractId = ToLong(list.Cell(row, 0)); });
  trap.Run(
      [&] { history.Amount[slot] = ToDouble(list.Cell(row, SubContractorList::kPaymentPlace)); });
  const std::string& percentText = list.Cell(row, SubContractorList::kPercentPlace);
  if (Length(percentText) != 4) {
    trap.Arm();
  }
  trap.Run([&] { history.PercentLabour = PostedPercent(percentText); });
  // A place that still shows an expiry leaves the amount of the row before it.
  trap.Run(
      [&] { history.AssessAmt[slot] = ToDouble(list.Cell(row, PayeeList::kAssessablePlace)); });
  history.PayDate[slot] = ShortDate(run.context.session.PostingDate);
  trap.Run([&] { history.Rate = ToDouble(run.rateText); });
  trap.Run([&] { history.Remittance = RemittanceOf(history.Rate, history.AssessAmt[slot]); });
  history.Ind[slot] = true;
  history.Create = ShortDate(run.context.services.Now());
  if (history.Amount[slot] != 0 && history.AddNew()) {
    list.SetCell(row, SubContractorList::kPaymentPlace, kNothing);
    list.SetCell(row, PayeeList::kAssessablePlace, kNothing);
  }
}

template <typename PostRow>
void PostSelectedRows(const PostingRun& run, const char* message, PostRow postRow) {
  run.context.services.SetPointer(pointer::kHourglass);
  const std::string status = StatusPush(run.context, message);
  for (int row = 0; row < run.list.Count(); ++row) {
    if (run.list.IsSelected(row)) {
      run.list.SetSelected(row, true);  // the current row from here on
      postRow(row);
    }
  }
  StatusPop(run.context, status, false);
  run.context.services.SetPointer(pointer::kDefault);
}

}  // namespace

void PostEmployeePayments(const PostingRun& run) {
  const auto batch = run.context.session.gDataConn->MakeBatch();
  CHistoryEmp history;
  history.SetDataConnection(run.context.session.gDataConn.get());
  history.SelectFilter = CHistoryEmp::kSelectSlot + NumberOf(run.slot) - 1;
  PostSelectedRows(run, "Posting employee payments....please wait",
                   [&](int row) { PostEmployeeRow(run, row, history); });
  run.save();
  Commit(batch);
}

void PostSubContractorPayments(const PostingRun& run) {
  const auto batch = run.context.session.gDataConn->MakeBatch();
  cHistorySubCon history;
  history.SetDataConnection(run.context.session.gDataConn.get());
  history.SelectFilter = cHistorySubCon::kSelectSlot + NumberOf(run.slot) - 1;
  PercentTrap trap(history);
  try {
    PostSelectedRows(run, "Posting sub-contractor payments....please wait",
                     [&](int row) { PostSubContractorRow(run, row, history, trap); });
    // The trap holds for the save too: the first row without a number ends it, and the list isn't
    // read again.
    trap.Run(run.save);
  } catch (const RuntimeError& error) {
    if (!trap.Armed()) {
      throw;
    }
    ShowError(run.context, error, box::kCritical);
  }
  Commit(batch);
}

}  // namespace lorvane
