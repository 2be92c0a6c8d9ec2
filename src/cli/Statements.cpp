#include "cli/Statements.h"

#include "basic/Text.h"
#include "data/engine/Engine.h"

namespace lorvane {

bool IsSelect(std::string_view statement) {
  constexpr std::string_view kSelect = "SELECT";
  const std::size_t start = statement.find_first_not_of(" \t\r\n(");
  return start != std::string_view::npos &&
         EqualsNoCase(statement.substr(start, kSelect.size()), kSelect);
}

std::string FirstValue(EngineConnection& connection, std::string_view statement) {
  const ResultTable result = connection.Query(statement);
  return result.rows.empty() || result.rows.front().empty()
             ? std::string()
             : ListingTextOf(result.rows.front().front());
}

}  // namespace lorvane
