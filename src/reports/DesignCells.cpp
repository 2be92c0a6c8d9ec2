#include "reports/DesignCells.h"

#include "basic/Money.h"
#include "data/modDataAccess.h"
#include "payments/rules/AssessmentRules.h"

namespace lorvane {

Value AmountOrNone(const Value& value) { return NullToCurrency(value); }

Value CountOne(const DataRow& /*row*/, const FillMoment& /*moment*/) { return std::int32_t{1}; }

Value AssessmentOf(const Value& rate, const Value& assessable) {
  return Currency::FromDouble(RemittanceOf(NullToDouble(rate), NullToDouble(assessable)));
}

std::string PayeeHeading(const std::string& name, const Value& id) {
  return name + " (Id " + TextOf(id) + ")";
}

}  // namespace lorvane
