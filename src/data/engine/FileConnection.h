#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "data/engine/Ast.h"
#include "data/engine/Catalog.h"
#include "data/engine/Database.h"
#include "data/engine/Engine.h"
#include "data/engine/Transactions.h"

namespace lorvane::sql {

/// A connection of the file engine.
class FileConnection : public EngineConnection {
 public:
  explicit FileConnection(std::unique_ptr<Database> database);
  ~FileConnection() override;

  std::int64_t Execute(std::string_view statement) override;
  ResultTable Query(std::string_view statement) override;
  UpdatableRows QueryForUpdate(std::string_view statement) override;
  void UpdateRow(const std::string& table, std::int64_t rowNumber,
                 const ColumnValues& values) override;
  std::int64_t InsertRow(const std::string& table, const ColumnValues& values) override;
  const std::vector<EngineError>& Errors() const override { return errors_; }
  void ClearErrors() override { errors_.clear(); }

  std::vector<std::string> TableNames() override;
  bool HasTable(const std::string& table) override;
  std::vector<Column> ColumnsOf(const std::string& table) override;
  void CreateTable(const std::string& table, const std::vector<Column>& columns) override;
  void AddColumn(const std::string& table, const Column& column) override;

  void BeginBatch() override;
  void EndBatch() override;

  void Checkpoint() override;
  void ReadDataFile(const std::function<void(std::string_view block)>& take) override;
  void WriteCompactCopy(const std::string& path) override;
  std::vector<std::string> CheckIntegrity() override;

 private:
  /// Runs an operation and keeps its error in the list.
  template <typename Operation>
  auto Recorded(Operation operation);
  /// Runs what reads the catalog, and once more when it fails and the catalog was out of date.
  template <typename Operation>
  auto WithCatalog(Operation operation);

  void RefuseInBatch() const;
  [[nodiscard]] const Table& TableNamed(std::string_view name);
  [[nodiscard]] SelectStatement& SelectIn(Statement& statement);
  [[nodiscard]] Rendered RenderWrite(Statement& statement);
  std::int64_t Write(const Rendered& rendered);
  void Alter(const AlterStatement& alter);

  std::unique_ptr<Database> database_;
  Catalog catalog_;
  Transactions transactions_;
  std::vector<EngineError> errors_;
};

}  // namespace lorvane::sql
