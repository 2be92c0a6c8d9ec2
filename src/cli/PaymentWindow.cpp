#include "cli/PaymentWindow.h"

#include <algorithm>
#include <utility>

#include "basic/Number.h"
#include "basic/Text.h"
#include "payments/frmPayment.h"
#include "payments/frmSelectDate.h"
#include "screen/ScreenServices.h"
#include "screen/modListBox.h"

namespace lorvane {
namespace {

void Press(Screen& screen, Control& control, int key) { screen.UserKey(control, key); }

}  // namespace

IndustrySlot SlotOfOption(const std::string& industry) {
  for (const IndustrySlot slot : kAllSlots) {
    if (ToUpper(industry) == std::string(1, LetterOf(slot))) {
      return slot;
    }
  }
  throw UsageFailure("'" + industry + "' is no industry: give one of A to F.");
}

PaymentWindow::PaymentWindow(CommandProgram& program, frmSelectAssessment& window,
                             PayeeOptions payees)
    : program_(program), window_(window), payees_(std::move(payees)) {}

void PaymentWindow::Open(CommandProgram& program, const PayeeOptions& payees,
                         const std::function<void(PaymentWindow&)>& work) {
  program.Services().OnModal("frmSelectAssessment", [&](Screen& screen) {
    PaymentWindow window(program, dynamic_cast<frmSelectAssessment&>(screen), payees);
    window.Choose();
    // Saving writes every row of the list: what another program had written since the list was
    // read would be lost. So nobody else writes until this is done, and the list is read again.
    const auto batch = program.GetSession().gDataConn->MakeBatch();
    window.ReadAgain();
    work(window);
    window.window_.RefreshList();  // nothing is left unsaved, so that closing asks nothing
    Commit(batch);
  });
  program.Services().OpenScreen("frmSelectAssessment", {});
}

void PaymentWindow::Choose() {
  const IndustrySlot slot = SlotOfOption(payees_.industry);
  OptionButton& option = payees_.employees ? window_.optEmployee : window_.optSubContractor;
  option.UserClick();
  const int index = ListIndexByData(window_.lstIndustries, NumberOf(slot));
  program_.RaiseEngineError();
  if (index < 0) {
    throw CommandFailure("Industry " + std::string(1, LetterOf(slot)) +
                         " isn't in use in this company.");
  }
  window_.lstIndustries.UserSelect(index);
  program_.RaiseEngineError();
  paymentPlace_ =
      payees_.employees ? EmployeeList::kPaymentPlace : SubContractorList::kPaymentPlace;
}

void PaymentWindow::ReadAgain() {
  window_.RefreshList();
  program_.RaiseEngineError();
  for (int row = 0; row < window_.lvwPayments.Count(); ++row) {
    rowsById_[ToLong(window_.lvwPayments.Cell(row, 0))] = row;
  }
}

int PaymentWindow::RowOf(std::int32_t id) const {
  const auto found = rowsById_.find(id);
  if (found == rowsById_.end()) {
    throw CommandFailure(std::string("there is no ") +
                         (payees_.employees ? "active employee " : "sub-contractor ") +
                         std::to_string(id) + " in industry " + payees_.industry + ".");
  }
  return found->second;
}

void PaymentWindow::EnterAmount(int row, double amount) {
  program_.Services().OnModal("frmPayment", [&](Screen& screen) {
    TextBox& box = dynamic_cast<frmPayment&>(screen).txtAmount;
    screen.MoveFocus(box);
    for (const char c : ShortestText(amount)) {
      Press(screen, box, c);
    }
    Press(screen, box, key_code::kEnter);
  });
  window_.lvwPayments.UserDoubleClick(row);
}

void PaymentWindow::ShowSavedAmounts() {
  if (payees_.employees) {
    return;
  }
  program_.Services().OnModal("frmPayment", [](Screen& screen) {
    Press(screen, dynamic_cast<frmPayment&>(screen).txtAmount, key_code::kEscape);
  });
  for (int row = 0; row < window_.lvwPayments.Count(); ++row) {
    window_.lvwPayments.UserDoubleClick(row);
    window_.menus.cmdTbrUndo.UserClick();
  }
}

void PaymentWindow::Save() {
  std::vector<std::string> payments;
  payments.reserve(window_.lvwPayments.Rows().size());
  for (int row = 0; row < window_.lvwPayments.Count(); ++row) {
    payments.push_back(PaymentText(row));
  }
  window_.menus.cmdTbrSave.UserClick();
  program_.RaiseEngineError();
  // The list was read again: what a record refused is back to what it was.
  for (const auto& [id, row] : rowsById_) {
    if (PaymentText(row) != payments[static_cast<std::size_t>(row)]) {
      throw CommandFailure("The payment of id " + std::to_string(id) + " was not saved.");
    }
  }
}

const std::string& PaymentWindow::PaymentText(int row) const {
  return window_.lvwPayments.Cell(row, paymentPlace_);
}

int PaymentWindow::EntriesIn(const std::vector<int>& rows) const {
  // An employee's assessable amount is what is settled and posted.
  const std::size_t place = payees_.employees ? PayeeList::kAssessablePlace : paymentPlace_;
  return static_cast<int>(std::count_if(rows.begin(), rows.end(), [&](int row) {
    return ToDouble(window_.lvwPayments.Cell(row, place)) != 0;
  }));
}

bool PaymentWindow::Post(const std::vector<int>& rows, const DateTime& date) {
  program_.Services().OnInput("Year", std::to_string(date.year));
  program_.Services().OnModal("frmSelectDate", [&](Screen& screen) {
    auto& dialog = dynamic_cast<frmSelectDate&>(screen);
    dialog.calDate.UserPick(date);
    dialog.cmdOK.UserClick();
  });
  program_.GetSession().PostingDate = Session::kNoPostingDate;
  window_.lvwPayments.UserSelectRows(rows);
  window_.menus.cmdTbrPost.UserClick();
  return program_.GetSession().PostingDate != Session::kNoPostingDate;
}

}  // namespace lorvane
