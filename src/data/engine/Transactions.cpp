#include "data/engine/Transactions.h"

#include <utility>

namespace lorvane::sql {
namespace {

constexpr const char* kUndone = " What the same operation had written before it was undone.";

void RunPrepared(Database& database, const char* sql) {
  StatementRun run(database, sql);
  run.Step();
}

}  // namespace

void Transactions::Begin() {
  if (depth_ == 0) {
    RunPrepared(*database_, "BEGIN IMMEDIATE");
  }
  ++depth_;
}

void Transactions::End() {
  if (depth_ == 0 || --depth_ > 0) {
    return;
  }
  if (undoing_) {
    throw *std::exchange(undoing_, std::nullopt);
  }
  Commit();
}

void Transactions::Commit() {
  if (!database_->InTransaction()) {
    return;
  }
  try {
    RunPrepared(*database_, "COMMIT");
  } catch (const RuntimeError& error) {
    if (database_->InTransaction()) {
      RunPrepared(*database_, "ROLLBACK");
    }
    throw RuntimeError(error.Number(), error.Description() + kUndone);
  }
}

void Transactions::PrepareWrite() const {
  if (undoing_) {
    throw *undoing_;
  }
}

RuntimeError Transactions::Explain(const RuntimeError& error) {
  const bool undone = InBatch() && !undoing_ && !database_->InTransaction();
  if (!undone) {
    return error;
  }
  undoing_ = RuntimeError(error.Number(), error.Description() + kUndone);
  return *undoing_;
}

void Transactions::Finish() noexcept {
  depth_ = 0;
  try {
    Commit();
  } catch (const RuntimeError&) {
    // The connection goes; there is nobody left to tell.
    return;
  }
}

WriteLock::WriteLock(Database& database) : database_(&database) {
  RunPrepared(*database_, "BEGIN IMMEDIATE");
}

WriteLock::~WriteLock() {
  try {
    RunPrepared(*database_, "ROLLBACK");
  } catch (const RuntimeError&) {
    // Nothing was written, so nothing is left open for long: the next statement tells.
    return;
  }
}

Savepoint::Savepoint(Database& database, bool wanted)
    : database_(&database), open_(wanted && database.InTransaction()) {
  if (open_) {
    RunPrepared(*database_, "SAVEPOINT lorvane_step");
  }
}

Savepoint::~Savepoint() {
  if (!open_ || !database_->InTransaction()) {
    return;
  }
  try {
    RunPrepared(*database_, "ROLLBACK TO lorvane_step");
    RunPrepared(*database_, "RELEASE lorvane_step");
  } catch (const RuntimeError&) {
    // The error that brought us here is already on its way.
    return;
  }
}

void Savepoint::Keep() {
  if (open_) {
    RunPrepared(*database_, "RELEASE lorvane_step");
    open_ = false;
  }
}

}  // namespace lorvane::sql
