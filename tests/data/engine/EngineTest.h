#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "basic/RuntimeError.h"
#include "data/engine/FileEngine.h"

namespace lorvane {

/// A folder of the test's own, with a protected file of two tables open in it.
class EngineTest : public testing::Test {
 protected:
  static constexpr const char* kPassword = "quay 9";

  EngineTest() : folder_(MakeFolder()), path_(folder_ + "/Data.mdb") {
    connection_ = engine_.Create(path_, kPassword);
    connection_->CreateTable("tblEmployees", {{"EmployeeId", ColumnType::kLong, 0, true},
                                              {"LastName", ColumnType::kText, 10},
                                              {"Notes", ColumnType::kText},
                                              {"Birth", ColumnType::kDate},
                                              {"AccWages", ColumnType::kCurrency},
                                              {"Rate", ColumnType::kDouble},
                                              {"Visits", ColumnType::kLong},
                                              {"IndA", ColumnType::kYesNo},
                                              {"Date", ColumnType::kDate}});
    connection_->CreateTable("tblTableIDs", {{"Id", ColumnType::kLong, 0, true},
                                             {"TableName", ColumnType::kText, 50},
                                             {"NextId", ColumnType::kLong}});
  }

  ~EngineTest() override {
    connection_.reset();
    std::filesystem::remove_all(folder_);
  }

  static std::string MakeFolder() {
    std::string folder = (std::filesystem::temp_directory_path() / "lorvane-XXXXXX").string();
    if (mkdtemp(folder.data()) == nullptr) {
      throw std::runtime_error("no folder for the test");
    }
    return folder;
  }

  /// What an operation gives, or its error's number as "80040e14".
  template <typename Operation>
  static std::string Try(Operation operation) {
    try {
      return operation();
    } catch (const RuntimeError& error) {
      char number[16];
      static_cast<void>(
          snprintf(number, sizeof(number), "%x", static_cast<unsigned>(error.Number())));
      return number;
    }
  }

  std::string Run(std::string_view statement) {
    return Try([&] { return std::to_string(connection_->Execute(statement)); });
  }

  /// The rows as "1|Pike;2|": null is empty, flags are -1 and 0.
  static std::string Rows(EngineConnection& connection, std::string_view statement) {
    return Try([&] {
      std::string text;
      const ResultTable result = connection.Query(statement);
      for (const std::vector<Value>& row : result.rows) {
        text += text.empty() ? "" : ";";
        for (std::size_t i = 0; i < row.size(); ++i) {
          text += (i == 0 ? "" : "|") + ListingTextOf(row[i]);
        }
      }
      return text;
    });
  }
  std::string Rows(std::string_view statement) { return Rows(*connection_, statement); }

  std::string NamesOf(std::string_view statement) {
    std::string names;
    const ResultTable result = connection_->Query(statement);
    for (const Column& column : result.columns) {
      names += (names.empty() ? "" : ",") + column.name;
    }
    return names;
  }

  std::string folder_;
  std::string path_;
  sql::FileEngine engine_;
  std::unique_ptr<EngineConnection> connection_;
};

}  // namespace lorvane
