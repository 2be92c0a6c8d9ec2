#include "cli/CeilingCheck.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

#include "basic/Number.h"
#include "cli/PostedPayments.h"

namespace lorvane {
namespace {

constexpr Currency kCent = Currency::FromTenThousandths(100);
constexpr Currency kUnlimited =
    Currency::FromTenThousandths(std::numeric_limits<std::int64_t>::max());

// Between which ceilings posting gives this assessable part; nothing when no ceiling does.
struct CeilingRange {
  Currency lowest;
  Currency highest;
};

std::optional<CeilingRange> RangeOf(Currency wages, Currency amount, Currency assessable) {
  constexpr Currency none;
  const Currency zeroOrLess =
      Currency::FromTenThousandths(std::numeric_limits<std::int64_t>::min());
  if (assessable == amount) {
    // A correction is assessed while the wages are under the ceiling.
    return CeilingRange{SumOf(wages, amount < none ? kCent : amount), kUnlimited};
  }
  if (assessable == none) {
    return CeilingRange{zeroOrLess, wages};
  }
  if (none < assessable && assessable < amount) {
    return CeilingRange{SumOf(wages, assessable), SumOf(wages, assessable)};
  }
  return std::nullopt;
}

// What posting assesses under a ceiling.
Currency AssessableUnder(Currency ceiling, Currency wages, Currency amount) {
  if (wages >= ceiling) {
    return {};
  }
  return std::min(amount, SumOf(ceiling, Currency::FromTenThousandths(-wages.TenThousandths())));
}

std::string Sentence(Currency assessable, Currency expected, Currency wages,
                     const std::string& because) {
  return AmountText(assessable) + " is assessable instead of " + AmountText(expected) +
         ": wages of " + AmountText(wages) + " came before it, and " + because + ".";
}

}  // namespace

CeilingCheck::CeilingCheck(std::map<std::int32_t, Currency> ceilings)
    : ceilings_(std::move(ceilings)) {
  // Posting compares with the amount that the payment list shows, which is in cents.
  for (auto& [id, ceiling] : ceilings_) {
    ceiling = Currency::FromDouble(ToDouble(Plain(ceiling)));
  }
}

std::string CeilingCheck::Next(std::int32_t employeeId, Currency amount, Currency assessable) {
  const Currency wages = WagesOf(employeeId);
  AddWages(employeeId, amount);
  const auto found = ceilings_.find(employeeId);
  if (found == ceilings_.end()) {
    return {};
  }
  const Currency ceiling = found->second;
  const std::optional<CeilingRange> range = RangeOf(wages, amount, assessable);
  if (!range) {
    return AmountText(assessable) + " is assessable, which no maximum contribution explains for " +
           AmountText(amount) + ".";
  }
  if (range->lowest > ceiling) {
    return Sentence(assessable, AssessableUnder(ceiling, wages, amount), wages,
                    "the maximum contribution is " + AmountText(ceiling));
  }
  Currency& shown = shown_.try_emplace(ceiling, range->lowest).first->second;
  if (range->highest < shown) {
    return Sentence(
        assessable, AssessableUnder(shown, wages, amount), wages,
        "the maximum contribution was " + AmountText(shown) + " or more, as earlier payments show");
  }
  shown = std::max(shown, range->lowest);
  return {};
}

void CeilingCheck::AddWages(std::int32_t employeeId, Currency amount) {
  Currency& wages = wages_[employeeId];
  wages = SumOf(wages, amount);
}

Currency CeilingCheck::WagesOf(std::int32_t employeeId) const {
  const auto found = wages_.find(employeeId);
  return found == wages_.end() ? Currency() : found->second;
}

}  // namespace lorvane
