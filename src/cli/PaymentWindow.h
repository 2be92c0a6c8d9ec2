#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "cli/CommandProgram.h"
#include "cli/Commands.h"
#include "payments/frmSelectAssessment.h"

namespace lorvane {

/// The payment window as a command works on it: what a user does with mouse and keyboard, done in
/// code.
class PaymentWindow {
 public:
  /// Opens the window of the program's company, chooses kind of payee and industry, and lets `work`
  /// act on it, while no other program can write to the data file. Raises CommandFailure when the
  /// industry isn't in use.
  static void Open(CommandProgram& program, const PayeeOptions& payees,
                   const std::function<void(PaymentWindow&)>& work);

  /// Row of each listed payee by id.
  [[nodiscard]] const std::map<std::int32_t, int>& RowsById() const { return rowsById_; }
  /// The row of one payee. Raises CommandFailure when the list doesn't have it.
  [[nodiscard]] int RowOf(std::int32_t id) const;
  /// Types an amount into a row, as its shortest text.
  void EnterAmount(int row, double amount);
  /// Makes every row show its saved amounts in every place: save and post read an amount where a
  /// sub-contractor's row shows an expiry until it is opened, left and taken back.
  void ShowSavedAmounts();
  /// Saves every row. Raises CommandFailure when a row's payment isn't on file afterwards.
  void Save();
  /// How many of the rows hold an amount that posting would write.
  [[nodiscard]] int EntriesIn(const std::vector<int>& rows) const;
  /// Posts the given rows with a date. False when the user or a rule refused; that was told.
  [[nodiscard]] bool Post(const std::vector<int>& rows, const DateTime& date);

 private:
  PaymentWindow(CommandProgram& program, frmSelectAssessment& window, PayeeOptions payees);
  void Choose();
  void ReadAgain();
  [[nodiscard]] const std::string& PaymentText(int row) const;

  CommandProgram& program_;
  frmSelectAssessment& window_;
  PayeeOptions payees_;
  std::map<std::int32_t, int> rowsById_;
  std::size_t paymentPlace_ = 0;
};

/// The slot of "A" to "F", small letters too. Raises UsageFailure for anything else.
[[nodiscard]] IndustrySlot SlotOfOption(const std::string& industry);

}  // namespace lorvane
