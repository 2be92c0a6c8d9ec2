#pragma once

#include "data/engine/Engine.h"

namespace lorvane {

/// Lets the statements of a long operation share one commit. The commit happens at the end and also
/// when the operation fails, so that a failure leaves behind just what separate statements would
/// have left. Batches nest; the outermost one commits.
///
/// Call Commit() at the end of the operation, so that a commit that fails (a full disk) is raised;
/// the destructor commits too, for the way out through an error, and keeps quiet.
class WriteBatch {
 public:
  explicit WriteBatch(EngineConnection& connection);
  WriteBatch(const WriteBatch&) = delete;
  WriteBatch& operator=(const WriteBatch&) = delete;
  ~WriteBatch();

  void Commit();

 private:
  EngineConnection* connection_;
};

}  // namespace lorvane
