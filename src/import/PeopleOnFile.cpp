#include "import/PeopleOnFile.h"

#include "basic/Text.h"

namespace lorvane {
namespace {

std::string Significant(const std::string& number) {
  std::string kept = ToUpper(number);
  std::erase_if(kept, [](char character) {
    return character == ' ' || character == '-' || character == '.';
  });
  return kept;
}

}  // namespace

PeopleOnFile::PeopleOnFile(EngineConnection& connection, const ImportTarget& target) {
  const ResultTable stored =
      connection.Query("SELECT " + target.columns.front().column + " FROM [" + target.table + "]");
  for (const std::vector<Value>& row : stored.rows) {
    Add(TextOf(row.front()));
  }
}

bool PeopleOnFile::Has(const std::string& number) const {
  const std::string significant = Significant(number);
  return !significant.empty() && numbers_.contains(significant);
}

void PeopleOnFile::Add(const std::string& number) { numbers_.insert(Significant(number)); }

}  // namespace lorvane
