#pragma once

#include <optional>

#include "basic/RuntimeError.h"
#include "data/engine/Database.h"

namespace lorvane::sql {

/// The batches of a connection: from the outermost begin to its end there is one transaction.
///
/// A disk that fills up or can't be read makes the library undo a transaction by itself. What the
/// batch would write after that rests on what was undone, so every further write fails with the
/// same error, and so does its end.
class Transactions {
 public:
  explicit Transactions(Database& database) : database_(&database) {}

  void Begin();
  void End();
  [[nodiscard]] bool InBatch() const { return depth_ > 0; }

  /// To be called before each write. Raises the error that undid the batch, if one did.
  void PrepareWrite() const;
  /// The error of a failed write or read, with a word on what it undid.
  [[nodiscard]] RuntimeError Explain(const RuntimeError& error);
  /// Commits an open batch at the end of the connection.
  void Finish() noexcept;

 private:
  void Commit();

  Database* database_;
  int depth_ = 0;
  /// The error that made the library undo the open batch.
  std::optional<RuntimeError> undoing_;
};

/// Keeps everybody else from writing while it lives. Nothing is written under it.
class WriteLock {
 public:
  explicit WriteLock(Database& database);
  WriteLock(const WriteLock&) = delete;
  WriteLock& operator=(const WriteLock&) = delete;
  ~WriteLock();

 private:
  Database* database_;
};

/// Undoes what was written from here on, unless it is kept. Does nothing outside a transaction.
class Savepoint {
 public:
  explicit Savepoint(Database& database, bool wanted = true);
  Savepoint(const Savepoint&) = delete;
  Savepoint& operator=(const Savepoint&) = delete;
  ~Savepoint();

  void Keep();

 private:
  Database* database_;
  bool open_;
};

}  // namespace lorvane::sql
