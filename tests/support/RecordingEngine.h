#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "data/DataConnection.h"
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

  /// The statements run since the last call, a line each. Rows added through a cursor aren't
  /// among them.
  [[nodiscard]] std::string TakeStatements();
  /// The last of those statements; forgets all.
  [[nodiscard]] std::string TakeLastStatement();
  [[nodiscard]] std::size_t RowsAdded() const { return rowsAdded_; }

  [[nodiscard]] std::unique_ptr<EngineConnection> Open(const std::string& path,
                                                       const std::string& password) override;
  [[nodiscard]] std::unique_ptr<EngineConnection> Create(const std::string& path,
                                                         const std::string& password) override;

 private:
  class Connection;

  std::vector<std::string> statements_;
  std::size_t rowsAdded_ = 0;
};

/// A statement's rows of the given columns.
[[nodiscard]] ResultTable MakeRows(const std::vector<std::string>& columns,
                                   std::vector<std::vector<Value>> rows);

/// The text with every "?" replaced by a slot's letter.
[[nodiscard]] std::string ForSlot(std::string_view text, IndustrySlot slot);

/// A test of what record classes hand to the engine.
class RecordingTest : public testing::Test {
 protected:
  RecordingTest();

  /// The SELECT that a record composes for its filters.
  template <typename RecordClass>
  std::string SelectOf(RecordClass& record, std::int32_t select, std::int32_t where = 0,
                       std::int32_t order = 0) {
    record.SetDataConnection(&connection_);
    record.SelectFilter = select;
    record.WhereFilter = where;
    record.OrderByFilter = order;
    record.OpenRecordset();
    return engine_.TakeLastStatement();
  }
  /// The INSERT; the engine's counter gives the key 42.
  template <typename RecordClass>
  std::string InsertOf(RecordClass& record) {
    record.SetDataConnection(&connection_);
    EXPECT_TRUE(record.AddNew()) << record.InfoMsg();
    return engine_.TakeLastStatement();
  }
  template <typename RecordClass>
  std::string UpdateOf(RecordClass& record, std::int32_t filter) {
    record.SetDataConnection(&connection_);
    record.UpdateFilter = filter;
    EXPECT_TRUE(record.Update()) << record.InfoMsg();
    return engine_.TakeLastStatement();
  }
  template <typename RecordClass>
  std::string DeleteOf(RecordClass& record, std::int32_t where = 0) {
    record.SetDataConnection(&connection_);
    record.WhereFilter = where;
    EXPECT_TRUE(record.Delete()) << record.InfoMsg();
    return engine_.TakeLastStatement();
  }

  RecordingEngine engine_;
  DataConnection connection_;
};

}  // namespace lorvane
