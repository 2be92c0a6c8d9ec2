#pragma once

#include <cstdint>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "basic/RuntimeError.h"
#include "data/engine/Rendered.h"

struct sqlite3;
struct sqlite3_stmt;

namespace lorvane::sql {

class FileKey;

struct FinalizeStatement {
  void operator()(sqlite3_stmt* statement) const;
};
using StatementPointer = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// An open file and its prepared statements, in the data file's own language.
class Database {
 public:
  enum class Access {
    kReadWrite,  // read only when the file's owner allows no more
    kReadFixed,  // to read a file that nobody changes meanwhile, in whatever folder
  };

  /// Opens the existing file; checks nothing but that. The path is absolute.
  explicit Database(const std::string& path, Access access = Access::kReadWrite);
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;
  ~Database();

  [[nodiscard]] sqlite3* Handle() const { return handle_; }
  [[nodiscard]] const std::string& Path() const { return path_; }
  /// Unlocks a protected file. The key is kept until the file is closed.
  void Unlock(std::shared_ptr<const FileKey> key);
  [[nodiscard]] const FileKey* Key() const { return key_.get(); }

  /// Runs statements whose rows nobody wants.
  void Run(const std::string& sql);
  /// The first column of the first row.
  [[nodiscard]] std::int64_t ReadNumber(const std::string& sql);
  [[nodiscard]] std::string ReadText(const std::string& sql);
  /// Whether a transaction is open.
  [[nodiscard]] bool InTransaction() const;

  /// The prepared statement of that text, from the last ones used where it is among them.
  [[nodiscard]] sqlite3_stmt* Prepared(const std::string& sql);

  /// Called by a registered function that fails: what the statement's failure is to be.
  void SetCause(const RuntimeError& cause) { cause_ = cause; }
  /// Raises the error of a failed call.
  [[noreturn]] void Fail(int code);

 private:
  struct CachedStatement {
    std::string sql;
    StatementPointer statement;
  };

  sqlite3* handle_ = nullptr;
  std::string path_;
  std::shared_ptr<const FileKey> key_;
  std::optional<RuntimeError> cause_;
  /// The last one used first.
  std::list<CachedStatement> statements_;
  std::unordered_map<std::string_view, std::list<CachedStatement>::iterator> bySql_;
};

/// One run of a prepared statement, from its binding to its reset.
class StatementRun {
 public:
  /// `rendered` must outlive the run.
  StatementRun(Database& database, const Rendered& rendered);
  StatementRun(Database& database, const std::string& sql);
  StatementRun(const StatementRun&) = delete;
  StatementRun& operator=(const StatementRun&) = delete;
  ~StatementRun();

  /// Moves to the next row; false behind the last. Raises the error of a failure.
  bool Step();
  [[nodiscard]] sqlite3_stmt* Row() const { return statement_; }

 private:
  void Bind(int place, const Value& value);

  Database* database_;
  sqlite3_stmt* statement_;
};

}  // namespace lorvane::sql
