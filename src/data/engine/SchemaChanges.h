#pragma once

#include <string>
#include <vector>

#include "data/engine/Catalog.h"
#include "data/engine/Transactions.h"

namespace lorvane::sql {

/// Changes of a file's tables, each made whole or not at all.
class SchemaChanges {
 public:
  SchemaChanges(Database& database, Transactions& transactions)
      : database_(&database), transactions_(&transactions) {}

  void CreateTable(const std::string& table, const std::vector<Column>& columns);
  void AddColumn(const Table& table, const Column& column);
  /// Gives the column of that name another type. Its values are converted; one that can't be
  /// raises what writing it would.
  void AlterColumn(const Table& table, const Column& column);

 private:
  template <typename Change>
  void Apply(Change change);
  void Rebuild(const Table& table, const Column& changed);
  [[nodiscard]] std::vector<std::string> IndexesOf(const std::string& table);

  Database* database_;
  Transactions* transactions_;
};

}  // namespace lorvane::sql
