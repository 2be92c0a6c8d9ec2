#include "data/engine/Transactions.h"

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

void Transactions::PrepareWrite() {
  if (InBatch() && !database_->InTransaction()) {
    RunPrepared(*database_, "BEGIN IMMEDIATE");
  }
}

RuntimeError Transactions::Explain(const RuntimeError& error) const {
  const bool undone = InBatch() && !database_->InTransaction();
  return undone ? RuntimeError(error.Number(), error.Description() + kUndone) : error;
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
