#include "people/ClearanceRemarks.h"

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "basic/RuntimeError.h"
#include "data/modDataAccess.h"
#include "people/ContractTerms.h"
#include "people/NoDate.h"

namespace lorvane {
namespace {

constexpr int kSoonInDays = 30;

std::map<std::int32_t, DateTime> ReadExpiries(DataConnection& connection) {
  std::map<std::int32_t, DateTime> expiries;
  const ResultTable table = connection.Connection().Query(
      "SELECT SubContractId, ContractType, Expiry FROM tblSubContract WHERE Expiry IS NOT NULL");
  for (const std::vector<Value>& row : table.rows) {
    const ContractTerms* terms = FindContractTerms(NullToText(row[1]));
    const std::string stored = NullToText(row[2]);
    const std::optional<DateTime> expiry = ParseDate(stored);
    if (terms != nullptr && terms->hasExpiry && stored != kNoDateStored && expiry) {
      expiries[NullToLong(row[0])] = *expiry;
    }
  }
  return expiries;
}

}  // namespace

void RemarkOnClearances(ListBox& list, DataConnection& connection, const DateTime& today) {
  std::map<std::int32_t, DateTime> expiries;
  try {
    expiries = ReadExpiries(connection);
  } catch (const RuntimeError&) {
    return;
  }
  for (int index = 0; index < list.Count(); ++index) {
    const auto found = expiries.find(list.ItemData(index));
    std::string remark;
    Urgency urgency = Urgency::kNone;
    if (found != expiries.end() && found->second < today.Day()) {
      remark = "expired " + ShortDate(found->second);
      urgency = Urgency::kOverdue;
    } else if (found != expiries.end() &&
               SerialOf(found->second) - SerialOf(today.Day()) <= kSoonInDays) {
      remark = "expires " + ShortDate(found->second);
      urgency = Urgency::kSoon;
    }
    list.SetRemark(index, std::move(remark), urgency);
  }
}

}  // namespace lorvane
