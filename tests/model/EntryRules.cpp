#include "EntryRules.h"

#include <cmath>

namespace lorvane::model {
namespace {

double Dollars(Cents cents) { return static_cast<double>(cents) / 100; }

}  // namespace

std::optional<Units> LeadingPercent(const std::string& percent, std::size_t length) {
  const std::string text = percent.substr(0, length);
  return TypedNumber(text) ? std::optional(TypedUnits(text)) : std::nullopt;
}

// A payment that lands on the ceiling is assessed whole; the sum is a double, rounded as it stands.
void EnterEmployee(DeskRow& row, const std::string& typed) {
  const double sum = Dollars(row.accWages) + TypedNumber(typed).value_or(0);
  row.payment = TypedCents(typed);
  const bool crosses = row.accWages < row.maxContrib && BinaryCents(sum) > row.maxContrib;
  row.assessable = crosses ? row.maxContrib - row.accWages : row.payment;
}

void EnterSubContractor(DeskRow& row, const std::string& typed) {
  constexpr double kUnitsOfPercent = 10000;
  const Units percent = LeadingPercent(row.percent, row.percent.size() > 3 ? 3 : 2).value_or(0);
  const double amount = TypedNumber(typed).value_or(0);
  row.payment = BinaryCents(amount);
  // Half to even on the product of the two doubles.
  const double product = amount * (static_cast<double>(percent) / kUnitsOfPercent);
  row.assessable = static_cast<Cents>(std::nearbyint(product));
}

void Settle(DeskRow& row) {
  row.payment = row.assessable.value_or(0);
  if (row.accWages >= row.maxContrib) {
    row.assessable = 0;
  } else if (row.accWages + row.payment > row.maxContrib) {
    row.assessable = row.maxContrib - row.accWages;
  }
}

}  // namespace lorvane::model
