#include "payments/rules/AssessmentRules.h"

#include "basic/Money.h"
#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"

namespace lorvane {
namespace {

// How much of `amount` is left under the ceiling, for an employee who hasn't reached it.
double AssessableUnderCeiling(double accWages, double maxContrib, double amount) {
  const bool crosses = Round(CheckedDouble(accWages + amount), 2) > maxContrib;
  return crosses ? Round(maxContrib - accWages, 2) : amount;
}

// A typed text that is no number counts as 0 and sounds the beep.
double TypedNumber(std::string_view text, bool& beep) {
  try {
    return ToDouble(text);
  } catch (const RuntimeError& error) {
    if (error.Number() != error_number::kTypeMismatch) {
      throw;
    }
    beep = true;
    return 0;
  }
}

}  // namespace

PaymentEntry EntryEmployee(std::string_view accWagesText, std::string_view maxContribText,
                           std::string_view amountText) {
  PaymentEntry entry;
  const double accWages = TypedNumber(accWagesText, entry.beep);
  const double maxContrib = TypedNumber(maxContribText, entry.beep);
  const double amount = TypedNumber(amountText, entry.beep);
  const double assessable =
      accWages >= maxContrib ? amount : AssessableUnderCeiling(accWages, maxContrib, amount);
  entry.texts = {Money(amount), Money(assessable)};
  return entry;
}

PaymentEntry EntrySubContractor(std::string_view percentText, std::string_view amountText) {
  PaymentEntry entry;
  const std::size_t kept = Length(percentText) > 3 ? 3 : 2;
  const double percent = TypedNumber(Left(percentText, kept), entry.beep);
  const double amount = TypedNumber(amountText, entry.beep);
  entry.texts = {Money(Round(amount, 2)), Money(Round(CheckedDouble(amount * percent), 0) / 100)};
  return entry;
}

PaymentTexts RecalcEmployeeRow(std::string_view accWagesText, std::string_view maxContribText,
                               std::string_view assessableText) {
  const double accWages = ToDouble(accWagesText);
  const double maxContrib = ToDouble(maxContribText);
  const double amount = ToDouble(assessableText);
  const double assessable =
      accWages >= maxContrib ? 0 : AssessableUnderCeiling(accWages, maxContrib, amount);
  return {Money(amount), Money(assessable)};
}

double PostedPercent(std::string_view percentText) {
  return ToDouble(Left(percentText, Length(percentText) == 4 ? 3 : 2));
}

double RemittanceOf(double rate, double assessable) {
  return CheckedDouble(rate / 100 * assessable);
}

std::string NextAccWages(std::string_view accWagesText, double amountPosted) {
  return Plain(CheckedDouble(ToDouble(accWagesText) + amountPosted));
}

}  // namespace lorvane
