#include "data/engine/WriteBatch.h"

#include <utility>

#include "basic/RuntimeError.h"

namespace lorvane {

WriteBatch::WriteBatch(EngineConnection& connection) : connection_(&connection) {
  connection_->BeginBatch();
}

WriteBatch::~WriteBatch() {
  if (connection_ == nullptr) {
    return;
  }
  try {
    connection_->EndBatch();
  } catch (const RuntimeError&) {
    // The connection keeps it in its list of errors.
    return;
  }
}

void WriteBatch::Commit() {
  if (connection_ != nullptr) {
    std::exchange(connection_, nullptr)->EndBatch();
  }
}

}  // namespace lorvane
