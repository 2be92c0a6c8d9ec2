#pragma once

#include <string>
#include <string_view>

namespace lorvane {

// The rules that decide a number between the moment a payment is typed and the moment it is posted.
// A board assesses an employer on wages up to a yearly maximum per employee, and on the labour part
// of what a sub-contractor is paid.
//
// The working values are the texts of the payment list's columns: dollars as Money() writes them,
// so two decimals are all that survives from one step to the next. Nothing is kept between calls.

/// A payment as it stands in the two columns of the list.
struct PaymentTexts {
  std::string payment;
  std::string assessable;
};

/// A payment that was typed. `beep` tells that some text was no number: it counted as 0.
struct PaymentEntry {
  PaymentTexts texts;
  bool beep = false;
};

/// A payment typed for an employee: assessable up to what is left under the ceiling. An employee
/// who is over it already shows the whole amount as assessable until RecalcEmployeeRow settles it
/// at posting. Raises 6 when an amount is too large.
[[nodiscard]] PaymentEntry EntryEmployee(std::string_view accWagesText,
                                         std::string_view maxContribText,
                                         std::string_view amountText);

/// A payment typed for a sub-contractor: the labour percentage of it is assessable, and nothing
/// caps it. The percentage is read from the first three characters of its text when there are more
/// than three, else from the first two. Raises 6 when an amount is too large.
[[nodiscard]] PaymentEntry EntrySubContractor(std::string_view percentText,
                                              std::string_view amountText);

/// An employee's row settled against the ceiling just before it is posted. It takes the assessable
/// column as the amount: of a payment that crosses the ceiling only the part under it is posted,
/// and one made over the ceiling is posted whole with nothing assessable. Raises 13 for a text that
/// is no number, 6 when an amount is too large.
[[nodiscard]] PaymentTexts RecalcEmployeeRow(std::string_view accWagesText,
                                             std::string_view maxContribText,
                                             std::string_view assessableText);

/// The labour percentage of a history row: the first three characters of a text of exactly four,
/// else the first two, so 12.5% is kept as 12 and 100.5% as 10. Raises 13 when they are no number.
[[nodiscard]] double PostedPercent(std::string_view percentText);

/// The assessment in dollars of an assessable amount at a rate in dollars per hundred, not rounded.
[[nodiscard]] double RemittanceOf(double rate, double assessable);

/// The accumulated wages after a posted payment. Raises 13 for a text that is no number.
[[nodiscard]] std::string NextAccWages(std::string_view accWagesText, double amountPosted);

}  // namespace lorvane
