#include "support/RecordingEngine.h"

#include <utility>

#include "basic/RuntimeError.h"
#include "basic/Text.h"

namespace lorvane {

class RecordingEngine::Connection : public EngineConnection {
 public:
  explicit Connection(RecordingEngine& engine) : engine_(&engine) {}

  std::int64_t Execute(std::string_view statement) override {
    return Answer(statement, engine_->OnExecute);
  }
  ResultTable Query(std::string_view statement) override {
    return Answer(statement, engine_->OnQuery);
  }
  UpdatableRows QueryForUpdate(std::string_view statement) override {
    return {"", Query(statement), {}};
  }
  void UpdateRow(const std::string&, std::int64_t, const ColumnValues&) override {}
  std::int64_t InsertRow(const std::string&, const ColumnValues&) override { return 0; }
  const std::vector<EngineError>& Errors() const override { return errors_; }
  void ClearErrors() override { errors_.clear(); }
  std::vector<std::string> TableNames() override { return {}; }
  bool HasTable(const std::string&) override { return false; }
  std::vector<Column> ColumnsOf(const std::string&) override { return {}; }
  void CreateTable(const std::string&, const std::vector<Column>&) override {}
  void AddColumn(const std::string&, const Column&) override {}
  void BeginBatch() override {}
  void EndBatch() override {}
  void Checkpoint() override {}
  void ReadDataFile(const std::function<void(std::string_view)>&) override {}
  void WriteCompactCopy(const std::string&) override {}
  std::vector<std::string> CheckIntegrity() override { return {}; }

 private:
  template <typename Result>
  Result Answer(std::string_view statement,
                const std::function<Result(const std::string&)>& answer) {
    engine_->statements_.emplace_back(statement);
    try {
      return answer(engine_->statements_.back());
    } catch (const RuntimeError& error) {
      errors_ = {{error.Number(), error.Description()}};
      throw;
    }
  }

  RecordingEngine* engine_;
  std::vector<EngineError> errors_;
};

RecordingEngine::RecordingEngine()
    : OnQuery([](const std::string& statement) {
        return statement.find("tblTableIDs") == std::string::npos
                   ? ResultTable()
                   : MakeRows({"Id", "TableName", "NextId"}, {{7, "tblAny", 41}});
      }),
      OnExecute([](const std::string&) { return 1; }) {}

std::string RecordingEngine::TakeStatements() { return Join(std::exchange(statements_, {}), "\n"); }

std::string RecordingEngine::TakeLastStatement() {
  const std::vector<std::string> statements = std::exchange(statements_, {});
  return statements.empty() ? std::string() : statements.back();
}

std::unique_ptr<EngineConnection> RecordingEngine::Open(const std::string&, const std::string&) {
  return std::make_unique<Connection>(*this);
}

std::unique_ptr<EngineConnection> RecordingEngine::Create(const std::string& path,
                                                          const std::string& password) {
  return Open(path, password);
}

ResultTable MakeRows(const std::vector<std::string>& columns,
                     std::vector<std::vector<Value>> rows) {
  ResultTable table;
  for (const std::string& column : columns) {
    table.columns.push_back({column});
  }
  table.rows = std::move(rows);
  return table;
}

std::string ForSlot(std::string_view text, IndustrySlot slot) {
  return Replace(Replace(text, "?", std::string(1, LetterOf(slot))), "%",
                 std::to_string(NumberOf(slot)));
}

}  // namespace lorvane
