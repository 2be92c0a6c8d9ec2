#include "data/engine/Catalog.h"

#include <sqlcipher/sqlite3.h>

#include <utility>

#include "data/engine/ColumnTypes.h"
#include "data/engine/Database.h"

namespace lorvane::sql {
namespace {

std::string TextAt(sqlite3_stmt* row, int column) {
  const void* text = sqlite3_column_text(row, column);
  return text == nullptr ? std::string() : static_cast<const char*>(text);
}

}  // namespace

void Table::Add(Column column) {
  places.emplace(column.name, columns.size());
  columns.push_back(std::move(column));
}

const Column* Table::Find(std::string_view column) const {
  const auto found = places.find(column);
  return found == places.end() ? nullptr : &columns[found->second];
}

const Table* Catalog::Find(std::string_view table) {
  Load();
  const auto found = tables_.find(table);
  return found == tables_.end() ? nullptr : &found->second;
}

std::vector<std::string> Catalog::TableNames() {
  Load();
  return names_;
}

bool Catalog::Refresh() {
  if (!version_ || *version_ == database_->ReadNumber("PRAGMA schema_version")) {
    return false;
  }
  version_.reset();
  return true;
}

void Catalog::Load() {
  if (version_) {
    return;
  }
  names_.clear();
  tables_.clear();
  const std::int64_t version = database_->ReadNumber("PRAGMA schema_version");
  {
    StatementRun run(*database_,
                     "SELECT name FROM sqlite_master WHERE type='table' AND name NOT LIKE "
                     "'sqlite\\_%' ESCAPE '\\' ORDER BY rowid");
    while (run.Step()) {
      names_.push_back(TextAt(run.Row(), 0));
    }
  }
  for (const std::string& name : names_) {
    tables_.emplace(name, Read(name));
  }
  version_ = version;
}

Table Catalog::Read(const std::string& name) {
  constexpr int nameColumn = 1;
  constexpr int typeColumn = 2;
  constexpr int keyColumn = 5;
  Table table;
  table.name = name;
  StatementRun run(*database_, "PRAGMA table_info(" + QuotedName(name) + ")");
  while (run.Step()) {
    Column column;
    column.name = TextAt(run.Row(), nameColumn);
    column.isKey = sqlite3_column_int(run.Row(), keyColumn) != 0;
    ReadDeclaredType(TextAt(run.Row(), typeColumn), column);
    table.Add(std::move(column));
  }
  return table;
}

}  // namespace lorvane::sql
