#pragma once

#include <memory>
#include <string>
#include <vector>

#include "data/DataConnection.h"

namespace lorvane {

class Session;

/// One classification of a year's published rates.
struct PublishedRate {
  std::string code;
  std::string description;
  /// Dollars per hundred dollars assessable.
  double rate = 0;

  friend bool operator==(const PublishedRate&, const PublishedRate&) = default;
};

/// The database of published rates (see RatesFile.h): one table a year. It is opened by the first
/// operation that needs it. Every operation raises the engine's error when it fails.
class RateTables {
 public:
  /// The session outlives this object.
  explicit RateTables(const Session& session);

  /// The years that have a table, earliest first.
  [[nodiscard]] std::vector<int> Years();
  [[nodiscard]] bool Has(int year);
  /// The rates of a year in the table's order. Raises the unknown-table error when there is no
  /// table of that year.
  [[nodiscard]] std::vector<PublishedRate> Read(const std::string& year);
  /// Puts these rates in the place of all that the year had; the year's table is made when missing.
  void Replace(int year, const std::vector<PublishedRate>& rates);

 private:
  /// Open for reading at least.
  [[nodiscard]] EngineConnection& Connection();
  EngineConnection& Open(const std::string& file, bool readOnly);

  const Session& session_;
  std::unique_ptr<DataConnection> dataConnection_;
};

}  // namespace lorvane
