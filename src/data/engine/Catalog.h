#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "data/engine/Names.h"
#include "data/engine/Value.h"

namespace lorvane::sql {

class Database;

/// A table of the file, its columns in their order.
struct Table {
  std::string name;
  std::vector<Column> columns;
  std::unordered_map<std::string, std::size_t, NameHash, NameEqual> places;

  void Add(Column column);
  [[nodiscard]] const Column* Find(std::string_view column) const;
};

/// The tables of an open file. They are read once and again when the file's schema has changed,
/// by us or by another connection.
class Catalog {
 public:
  explicit Catalog(Database& database) : database_(&database) {}

  /// The table; nullptr when there is none. It stays valid until the catalog is read again.
  [[nodiscard]] const Table* Find(std::string_view table);
  [[nodiscard]] std::vector<std::string> TableNames();

  /// Forgets what was read when the schema has changed since; tells whether it had.
  bool Refresh();

 private:
  void Load();
  [[nodiscard]] Table Read(const std::string& name);

  Database* database_;
  std::optional<std::int64_t> version_;
  std::vector<std::string> names_;
  std::unordered_map<std::string, Table, NameHash, NameEqual> tables_;
};

}  // namespace lorvane::sql
