#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "basic/IndustrySlot.h"
#include "data/DataConnection.h"
#include "screen/ListView.h"

namespace lorvane {

/// One kind of payee on the payment list: what its columns hold, how its rows are read and saved,
/// and what is said about it. The list's texts are the working memory: amounts are read from them
/// and written back to them.
class PayeeList {
 public:
  /// The assessable amount's place, for both kinds.
  static constexpr std::size_t kAssessablePlace = 5;

  /// What is said about a kind of payee.
  struct Words {
    const char* status;
    const char* loading;
    const char* count;
    const char* findPrompt;
  };

  PayeeList() = default;
  PayeeList(const PayeeList&) = delete;
  PayeeList& operator=(const PayeeList&) = delete;
  virtual ~PayeeList() = default;

  [[nodiscard]] virtual const Words& Texts() const = 0;
  [[nodiscard]] virtual std::vector<ListView::ViewColumn> Columns() const = 0;
  [[nodiscard]] virtual int TextColour() const = 0;
  /// The place of the payment's amount.
  [[nodiscard]] virtual std::size_t PaymentPlace() const = 0;

  /// The payees of a slot with their saved entries; none when the table can't be read.
  [[nodiscard]] virtual std::vector<ListView::Row> ReadRows(IndustrySlot slot) = 0;
  /// Puts a typed amount into the row's payment and assessable places. True when a text on the way
  /// was no number, for which the beep sounds. Raises 6 when an amount is too large.
  virtual bool Enter(ListView& list, int row, const std::string& amountText) = 0;
  /// Writes one row's entry to its payee. A refusal is passed over. Raises 13 for a place that
  /// should hold a number and doesn't.
  virtual void SaveRow(const ListView& list, int row, IndustrySlot slot) = 0;
  /// Brings the row back to what its payee's record holds, if that is found.
  virtual void ReadBack(ListView& list, int row, IndustrySlot slot) = 0;
  /// Closes the record behind the list.
  virtual void Close() = 0;
};

}  // namespace lorvane
