#pragma once

#include <optional>
#include <string>

#include "data/DataConnection.h"

namespace lorvane {

/// The rates that the board has published for a year, by classification code.
class PublishedRates {
 public:
  /// Reads the table of the year. The connection to the rate database is opened here. Raises why it
  /// can't be, and the unknown-table error when there is no table for the year.
  PublishedRates(DataConnection& connection, const std::string& year);

  /// The rate of the first row with that code, in dollars per hundred dollars; nothing when there
  /// is none. Raises 13 for a rate that is no number.
  [[nodiscard]] std::optional<double> RateOf(const std::string& sic) const;

 private:
  ResultTable table_;
};

}  // namespace lorvane
