#include "cli/FirstValue.h"

#include "data/engine/Engine.h"

namespace lorvane {

std::string FirstValue(EngineConnection& connection, std::string_view statement) {
  const ResultTable result = connection.Query(statement);
  return result.rows.empty() || result.rows.front().empty()
             ? std::string()
             : ListingTextOf(result.rows.front().front());
}

}  // namespace lorvane
