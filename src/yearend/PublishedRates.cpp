#include "yearend/PublishedRates.h"

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "data/modDataAccess.h"

namespace lorvane {

PublishedRates::PublishedRates(DataConnection& connection, const std::string& year) {
  connection.OpenOrRaise();
  table_ = connection.Connection().Query("SELECT ID, SIC, Rate FROM tbl" + year);
}

std::optional<double> PublishedRates::RateOf(const std::string& sic) const {
  for (const std::vector<Value>& row : table_.rows) {
    if (EqualsNoCase(NullToText(row[1]), sic)) {
      return ToDouble(TextOf(row[2]));
    }
  }
  return std::nullopt;
}

}  // namespace lorvane
