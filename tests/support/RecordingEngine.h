#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "basic/IndustrySlot.h"
#include "data/engine/Engine.h"

namespace lorvane {

/// An engine that runs nothing: it notes the statements of its connections and answers as the test
/// says. An answer that raises a RuntimeError leaves it in the connection's error list.
///
/// Unless told otherwise a SELECT from tblTableIDs finds a counter that stands at 41, any other
/// SELECT no row, and every other statement changes one row.
class RecordingEngine : public Engine {
 public:
  RecordingEngine();

  std::function<ResultTable(const std::string&)> OnQuery;
  std::function<std::int64_t(const std::string&)> OnExecute;

  /// The statements run since the last call, a line each.
  [[nodiscard]] std::string TakeStatements();
  /// The last of those statements; forgets all.
  [[nodiscard]] std::string TakeLastStatement();

  [[nodiscard]] std::unique_ptr<EngineConnection> Open(const std::string& path,
                                                       const std::string& password) override;
  [[nodiscard]] std::unique_ptr<EngineConnection> OpenToRead(const std::string& path,
                                                             const std::string& password) override {
    return Open(path, password);
  }
  [[nodiscard]] std::unique_ptr<EngineConnection> Create(const std::string& path,
                                                         const std::string& password) override;

 private:
  class Connection;

  std::vector<std::string> statements_;
};

/// A statement's rows of the given columns.
[[nodiscard]] ResultTable MakeRows(const std::vector<std::string>& columns,
                                   std::vector<std::vector<Value>> rows);

/// The text with every "?" replaced by a slot's letter and every "%" by its number.
[[nodiscard]] std::string ForSlot(std::string_view text, IndustrySlot slot);

}  // namespace lorvane
