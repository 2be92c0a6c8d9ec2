#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "basic/Date.h"
#include "basic/IndustrySlot.h"
#include "basic/Money.h"
#include "data/engine/Engine.h"

namespace lorvane {

/// A kind of payee: its word, and where its people and payments stand.
struct PayeeKind {
  const char* noun;
  const char* people;
  const char* key;
  /// The columns that make up a name.
  const char* nameColumns;
  const char* history;
  /// The history's column of the rate, in dollars per hundred.
  const char* rateColumn;
  /// The table that a remittance report fills.
  const char* scratch;
};

extern const PayeeKind kEmployeeKind;
extern const PayeeKind kSubContractorKind;

/// Names by key; an empty one for somebody who has none.
using PayeeNames = std::map<std::int32_t, std::string>;

/// What a row of the history holds in one industry.
struct PaymentPart {
  IndustrySlot slot = IndustrySlot::kA;
  /// Whether the row bears the industry's mark, by which the lists of one industry find it.
  bool isMarked = false;
  std::optional<DateTime> date;
  Currency amount;
  Currency assessable;
};

/// A row of the history.
struct PostedPayment {
  std::int32_t id = 0;
  std::int32_t payeeId = 0;
  /// One for each industry in which the row holds anything; posting fills just one.
  std::vector<PaymentPart> parts;
  double rate = 0;
  Currency remittance;
  std::optional<DateTime> created;
};

[[nodiscard]] PayeeNames NamesOf(EngineConnection& connection, const PayeeKind& kind);

/// The history of a kind of payee in the order of posting. A row with a value that is none of its
/// column's type is left out, with a sentence added to `findings`.
[[nodiscard]] std::vector<PostedPayment> ReadPayments(EngineConnection& connection,
                                                      const PayeeKind& kind,
                                                      std::vector<std::string>& findings);

/// The sum of two amounts. Raises 6 when it is too large for one.
[[nodiscard]] Currency SumOf(Currency left, Currency right);

/// Somebody as a finding names them: "Comeau, Zoë (employee 7)", or "employee 99" without a name.
[[nodiscard]] std::string PayeeText(const PayeeKind& kind, const PayeeNames& names,
                                    std::int32_t id);

/// Dollars with separators: two decimals, or all four for an amount that isn't in whole cents.
[[nodiscard]] std::string AmountText(Currency amount);

}  // namespace lorvane
