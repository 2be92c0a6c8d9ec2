#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "data/engine/Value.h"

namespace lorvane {

/// One entry of an engine's error list.
struct EngineError {
  std::int32_t number = 0;
  std::string description;
};

/// The rows of a statement over one table, each with the engine's own number for it, so that they
/// can be changed.
struct UpdatableRows {
  std::string table;
  ResultTable result;
  /// One number a row of `result`.
  std::vector<std::int64_t> rowNumbers;
};

using ColumnValues = std::vector<std::pair<std::string, Value>>;

/// An open data file. Every operation that fails raises a RuntimeError and leaves the same number
/// and description in Errors(). Statements are in the system's own dialect, one a call.
class EngineConnection {
 public:
  EngineConnection() = default;
  EngineConnection(const EngineConnection&) = delete;
  EngineConnection& operator=(const EngineConnection&) = delete;
  virtual ~EngineConnection() = default;

  /// Runs a statement that isn't a SELECT; the result is the number of rows that it changed.
  virtual std::int64_t Execute(std::string_view statement) = 0;
  /// Runs a SELECT and reads its rows.
  [[nodiscard]] virtual ResultTable Query(std::string_view statement) = 0;
  /// Runs a SELECT of plain columns over one table, for rows that are to be changed or added to.
  [[nodiscard]] virtual UpdatableRows QueryForUpdate(std::string_view statement) = 0;
  /// Writes the given columns of one row, converted to the columns' types.
  virtual void UpdateRow(const std::string& table, std::int64_t rowNumber,
                         const ColumnValues& values) = 0;
  /// Adds a row and gives its number, which is its key when the table's key wasn't given.
  virtual std::int64_t InsertRow(const std::string& table, const ColumnValues& values) = 0;

  /// The errors of the last operation that failed. An operation that succeeds doesn't clear them.
  [[nodiscard]] virtual const std::vector<EngineError>& Errors() const = 0;
  /// For an operation that has mended what made it fail.
  virtual void ClearErrors() = 0;

  // The catalog.
  [[nodiscard]] virtual std::vector<std::string> TableNames() = 0;
  [[nodiscard]] virtual bool HasTable(const std::string& table) = 0;
  /// Raises the unknown-table error when there is no such table.
  [[nodiscard]] virtual std::vector<Column> ColumnsOf(const std::string& table) = 0;
  virtual void CreateTable(const std::string& table, const std::vector<Column>& columns) = 0;
  virtual void AddColumn(const std::string& table, const Column& column) = 0;

  /// From the outermost begin to its end the statements share one commit. See WriteBatch.
  virtual void BeginBatch() = 0;
  virtual void EndBatch() = 0;

  /// Brings everything written into the data file itself, so that the file can be copied as it
  /// stands.
  virtual void Checkpoint() = 0;
  /// Hands on the bytes of the data file as it stands, everything written included, block after
  /// block. Nobody can write meanwhile. This is how an open file is copied: reading it by another
  /// way would drop the locks that this connection holds.
  virtual void ReadDataFile(const std::function<void(std::string_view block)>& take) = 0;
  /// Writes what the file holds, without its gaps and with its protection, to a new file, which is
  /// on the disk in full when this returns. Raises 58 when there is one of that name; a failure
  /// leaves no file behind.
  virtual void WriteCompactCopy(const std::string& path) = 0;
  /// What is wrong inside the file, a sentence each; empty when nothing is.
  [[nodiscard]] virtual std::vector<std::string> CheckIntegrity() = 0;
};

/// A database engine that keeps a company in one file.
class Engine {
 public:
  Engine() = default;
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;
  virtual ~Engine() = default;

  /// Opens an existing file to read and write. With an empty password the file must be unprotected.
  /// Raises a RuntimeError that names the file and what is wrong with it; never creates a file.
  [[nodiscard]] virtual std::unique_ptr<EngineConnection> Open(const std::string& path,
                                                               const std::string& password) = 0;
  /// The same to read it only. Where the file or its folder is write-protected it is taken as it
  /// stands: nobody changes it meanwhile.
  [[nodiscard]] virtual std::unique_ptr<EngineConnection> OpenToRead(
      const std::string& path, const std::string& password) = 0;
  /// Makes a new, empty file; protected unless the password is empty. Raises 58 when one is there.
  [[nodiscard]] virtual std::unique_ptr<EngineConnection> Create(const std::string& path,
                                                                 const std::string& password) = 0;
};

/// The engine of this program. Connections may outlive it.
[[nodiscard]] std::unique_ptr<Engine> MakeFileEngine();

}  // namespace lorvane
