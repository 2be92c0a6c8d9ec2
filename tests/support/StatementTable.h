#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "data/DataConnection.h"
#include "support/RecordingEngine.h"

namespace lorvane {

/// A line of a statement table: what is run with which filters, and the statement to the letter.
///   select 2 5 0 |SELECT ...|    SelectFilter, WhereFilter, OrderByFilter
///   insert 2 |INSERT ...|        SelectFilter
///   update 1 |UPDATE ...|        UpdateFilter
///   delete 1 |DELETE ...|        WhereFilter
struct StatementLine {
  std::string verb;
  std::array<std::int32_t, 3> filters{};
  std::string statement;
};

/// Reads a table by its path below tests/.
[[nodiscard]] std::vector<StatementLine> ReadStatements(const std::string& path);

/// A test of what record classes hand to the engine.
class RecordingTest : public testing::Test {
 protected:
  RecordingTest();

  /// Runs each line on the record, as filled by the test; the engine's counter gives the key 42.
  template <typename RecordClass>
  void CheckStatements(const std::string& table, RecordClass& record) {
    record.SetDataConnection(&connection_);
    for (const StatementLine& line : ReadStatements(table)) {
      SCOPED_TRACE(line.verb + " of " + table + ": " + line.statement);
      Run(line, record);
      EXPECT_EQ(engine_.TakeLastStatement(), line.statement);
    }
  }

  RecordingEngine engine_;
  DataConnection connection_;

 private:
  template <typename RecordClass>
  static void Run(const StatementLine& line, RecordClass& record) {
    record.SelectFilter = line.filters[0];
    record.WhereFilter = line.filters[line.verb == "delete" ? 0 : 1];
    record.OrderByFilter = line.filters[2];
    record.UpdateFilter = line.filters[0];
    if (line.verb == "select") {
      EXPECT_FALSE(record.OpenRecordset());
    } else if (line.verb == "update") {
      EXPECT_TRUE(record.Update()) << record.InfoMsg();
    } else if constexpr (requires { record.AddNew(); }) {
      EXPECT_TRUE(line.verb == "insert" ? record.AddNew() : record.Delete()) << record.InfoMsg();
    }
  }
};

}  // namespace lorvane
