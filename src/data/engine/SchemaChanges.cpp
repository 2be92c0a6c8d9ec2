#include "data/engine/SchemaChanges.h"

#include <sqlcipher/sqlite3.h>

#include <algorithm>

#include "data/engine/ColumnTypes.h"
#include "data/engine/Lexer.h"
#include "data/engine/Names.h"
#include "data/engine/SqlNames.h"

namespace lorvane::sql {
namespace {

constexpr const char* kRebuiltTable = "lorvane_rebuilt";

std::string CreateStatement(const std::string& table, const std::vector<Column>& columns) {
  std::string sql = "CREATE TABLE " + QuotedName(table) + " (";
  for (const Column& column : columns) {
    sql += (&column == &columns.front() ? "" : ", ") + ColumnDeclaration(column);
  }
  return sql + ")";
}

std::string TextLiteral(const std::string& text) {
  std::string literal = "'";
  for (const char c : text) {
    literal += c;
    if (c == '\'') {
      literal += c;
    }
  }
  return literal + "'";
}

// The stored value of the old column as the new one stores it.
std::string ConvertedValue(const Column& from, const Column& to) {
  std::string value = QuotedName(from.name);
  if (from.type == ColumnType::kDate && to.type != ColumnType::kDate) {
    value = std::string(to.type == ColumnType::kText ? kShortDateFunction : kSerialFunction) + "(" +
            value + ")";
  }
  return std::string(kStoreFunction) + "(" + value + "," +
         std::to_string(static_cast<int>(to.type)) + "," + std::to_string(to.size) + "," +
         TextLiteral(to.name) + ")";
}

}  // namespace

template <typename Change>
void SchemaChanges::Apply(Change change) {
  transactions_->Begin();
  try {
    transactions_->PrepareWrite();
    Savepoint savepoint(*database_);
    change();
    savepoint.Keep();
  } catch (const RuntimeError& error) {
    const RuntimeError explained = transactions_->Explain(error);
    transactions_->End();
    throw explained;
  }
  transactions_->End();
}

void SchemaChanges::CreateTable(const std::string& table, const std::vector<Column>& columns) {
  if (table.empty() || columns.empty()) {
    FailStatement("a table needs a name and at least one column.");
  }
  Apply([&] { database_->Run(CreateStatement(table, columns)); });
}

void SchemaChanges::AddColumn(const Table& table, const Column& column) {
  if (table.Find(column.name) != nullptr) {
    FailStatement("the table " + table.name + " has a column " + column.name + " already.");
  }
  if (column.isKey) {
    FailStatement("a key can't be added to the table " + table.name + ".");
  }
  Apply([&] {
    database_->Run("ALTER TABLE " + QuotedName(table.name) + " ADD COLUMN " +
                   ColumnDeclaration(column));
  });
}

void SchemaChanges::AlterColumn(const Table& table, const Column& column) {
  const Column* existing = table.Find(column.name);
  if (existing == nullptr) {
    FailStatement("the table " + table.name + " has no column " + column.name + ".");
  }
  Column changed = column;
  changed.name = existing->name;
  changed.isKey = existing->isKey;
  Apply([&] { Rebuild(table, changed); });
}

// The library can add columns and no more, so the table is made anew and takes the old one's place.
void SchemaChanges::Rebuild(const Table& table, const Column& changed) {
  std::vector<Column> columns = table.columns;
  std::string names;
  std::string values;
  const bool ownNumbers = std::any_of(columns.begin(), columns.end(), [](const Column& column) {
    return column.isKey && column.type == ColumnType::kLong;
  });
  if (!ownNumbers) {
    names = "_rowid_, ";
    values = "_rowid_, ";
  }
  for (Column& column : columns) {
    const bool isChanged = SameName(column.name, changed.name);
    const std::string separator = &column == &columns.front() ? "" : ", ";
    names += separator + QuotedName(column.name);
    values += separator + (isChanged ? ConvertedValue(column, changed) : QuotedName(column.name));
    if (isChanged) {
      column = changed;
    }
  }
  const std::vector<std::string> indexes = IndexesOf(table.name);
  database_->Run(CreateStatement(kRebuiltTable, columns));
  database_->Run("INSERT INTO " + QuotedName(kRebuiltTable) + " (" + names + ") SELECT " + values +
                 " FROM " + QuotedName(table.name));
  database_->Run("DROP TABLE " + QuotedName(table.name));
  database_->Run("ALTER TABLE " + QuotedName(kRebuiltTable) + " RENAME TO " +
                 QuotedName(table.name));
  for (const std::string& index : indexes) {
    database_->Run(index);
  }
}

std::vector<std::string> SchemaChanges::IndexesOf(const std::string& table) {
  std::vector<std::string> statements;
  Rendered query;
  query.sql =
      "SELECT sql FROM sqlite_master WHERE tbl_name=? AND type<>'table' AND sql IS NOT NULL";
  query.parameters.emplace_back(table);
  StatementRun run(*database_, query);
  while (run.Step()) {
    const void* text = sqlite3_column_text(run.Row(), 0);
    statements.emplace_back(static_cast<const char*>(text));
  }
  return statements;
}

}  // namespace lorvane::sql
