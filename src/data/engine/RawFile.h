#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "data/engine/Database.h"

struct sqlite3_file;

namespace lorvane::sql {

/// A file of an open database as bytes, read through the library's own handle: closing another one
/// would drop the locks that this process holds on the file.
class RawFile {
 public:
  [[nodiscard]] static RawFile DataOf(Database& database);
  /// The write-ahead log, whose content isn't in the data file yet.
  [[nodiscard]] static RawFile LogOf(Database& database);

  [[nodiscard]] std::int64_t Size() const;
  /// Reads so many bytes, which must be there.
  void ReadAt(std::int64_t offset, void* bytes, int count) const;
  /// Hands on all of it, block after block.
  void Read(const std::function<void(std::string_view block)>& take) const;

 private:
  RawFile(Database& database, int whichFile);
  void Check(int code) const;

  Database* database_;
  sqlite3_file* file_ = nullptr;
};

}  // namespace lorvane::sql
