#include "cli/PostedPayments.h"

#include <algorithm>
#include <cstddef>
#include <limits>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "data/modDataAccess.h"

namespace lorvane {

const PayeeKind kEmployeeKind{
    "employee",      "tblEmployees", "EmployeeId",      "LastName, FirstName",
    "tblEmpHistory", "AssessRt",     "tblEmpRemittance"};
const PayeeKind kSubContractorKind{"sub-contractor", "tblSubContract", "SubContractId",   "Name",
                                   "tblSubHistory",  "Rate",           "tblSubRemittance"};

namespace {

std::optional<DateTime> DateIn(const Value& value) {
  if (IsNull(value)) {
    return std::nullopt;
  }
  if (const DateTime* date = std::get_if<DateTime>(&value)) {
    return *date;
  }
  return ToDate(TextOf(value));
}

// The values of a row in the order of the statement's columns.
class RowValues {
 public:
  explicit RowValues(const std::vector<Value>& values) : values_(values) {}
  const Value& Next() { return values_[place_++]; }

 private:
  const std::vector<Value>& values_;
  std::size_t place_ = 0;
};

std::string StatementOf(const PayeeKind& kind) {
  std::string columns =
      std::string("TransactionId, ") + kind.key + ", DtCreate, Remittance, " + kind.rateColumn;
  for (const IndustrySlot slot : kAllSlots) {
    for (const char* stem : {"Ind", "PayDate", "Amount", "AssessAmt"}) {
      columns += ", " + SlotName(stem, slot);
    }
  }
  return "SELECT " + columns + " FROM " + kind.history + " ORDER BY TransactionId";
}

PostedPayment PaymentOf(const std::vector<Value>& values) {
  RowValues row(values);
  PostedPayment payment;
  payment.id = NullToLong(row.Next());
  payment.payeeId = NullToLong(row.Next());
  payment.created = DateIn(row.Next());
  payment.remittance = NullToCurrency(row.Next());
  payment.rate = NullToDouble(row.Next());
  for (const IndustrySlot slot : kAllSlots) {
    PaymentPart part;
    part.slot = slot;
    part.isMarked = NullToBool(row.Next());
    part.date = DateIn(row.Next());
    part.amount = NullToCurrency(row.Next());
    part.assessable = NullToCurrency(row.Next());
    if (part.isMarked || part.date || part.amount != Currency() || part.assessable != Currency()) {
      payment.parts.push_back(part);
    }
  }
  return payment;
}

}  // namespace

PayeeNames NamesOf(EngineConnection& connection, const PayeeKind& kind) {
  PayeeNames names;
  const ResultTable table = connection.Query(std::string("SELECT ") + kind.key + ", " +
                                             kind.nameColumns + " FROM " + kind.people);
  for (const std::vector<Value>& row : table.rows) {
    std::vector<std::string> words;
    std::transform(row.begin() + 1, row.end(), std::back_inserter(words), NullToText);
    words.erase(std::remove(words.begin(), words.end(), std::string()), words.end());
    names[NullToLong(row.front())] = Join(words, ", ");
  }
  return names;
}

std::vector<PostedPayment> ReadPayments(EngineConnection& connection, const PayeeKind& kind,
                                        std::vector<std::string>& findings) {
  const ResultTable table = connection.Query(StatementOf(kind));
  std::vector<PostedPayment> payments;
  payments.reserve(table.rows.size());
  for (const std::vector<Value>& row : table.rows) {
    try {
      payments.push_back(PaymentOf(row));
    } catch (const RuntimeError& error) {
      findings.push_back("Payment " + TextOf(row.front()) + " of " + kind.history +
                         " holds a value that can't be understood: " + error.Description());
    }
  }
  return payments;
}

Currency SumOf(Currency left, Currency right) {
  using Limits = std::numeric_limits<std::int64_t>;
  const std::int64_t a = left.TenThousandths();
  const std::int64_t b = right.TenThousandths();
  if (b > 0 ? a > Limits::max() - b : a < Limits::min() - b) {
    throw RuntimeError(error_number::kOverflow);
  }
  return left + right;
}

std::string PayeeText(const PayeeKind& kind, const PayeeNames& names, std::int32_t id) {
  const std::string who = std::string(kind.noun) + " " + std::to_string(id);
  const auto found = names.find(id);
  return found == names.end() || found->second.empty() ? who : found->second + " (" + who + ")";
}

std::string AmountText(Currency amount) {
  constexpr std::int64_t kOfCent = 100;
  return amount.TenThousandths() % kOfCent == 0 ? Money(amount) : amount.ToText();
}

}  // namespace lorvane
