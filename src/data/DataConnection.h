#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "basic/Date.h"
#include "data/engine/Engine.h"
#include "data/engine/WriteBatch.h"

namespace lorvane {

/// The one password of every company data file.
inline constexpr const char* kDataFilePassword = "ZKD58Harbour";

/// What a DataConnection needs from outside: the engine, the program's own folder (no separator at
/// its end), and the clock. The engine outlives every connection made with it.
struct DataEnvironment {
  Engine* engine = nullptr;
  std::string programFolder;
  std::function<DateTime()> now;
};

/// The wrapper round one database connection: its parts, its connection string, opening and
/// closing, the engine's error list as a text, and new primary keys.
class DataConnection {
 public:
  static constexpr std::int16_t kJet = 1;
  static constexpr std::int16_t kServer = 2;

  /// Closed, with the file engine chosen and the sample company as data source.
  explicit DataConnection(DataEnvironment environment);

  [[nodiscard]] std::int16_t ProviderConst() const { return providerConst_; }
  /// Sets Provider too: 2 chooses the server's, any other value the file engine's.
  void SetProviderConst(std::int16_t value);

  std::string Provider;
  std::string InitialCatalog;
  /// Full path of the data file, or the server's name.
  std::string DataSource;
  std::int32_t UserId = 0;
  std::string LoginId;
  std::string Password;
  bool ValidLogon = false;
  bool DisplayUsers = false;
  bool CheckUserTable = false;
  std::string UserName;
  std::int32_t GroupId = 0;
  bool UseODBC = false;
  std::string DatabaseName;
  std::string DSN;
  /// Opens DataSource for reading alone, which a write-protected file allows too.
  bool ReadOnly = false;

  /// The last text built by ErrorHandler.
  [[nodiscard]] const std::string& ErrorMsg() const { return errorMsg_; }
  /// The connection string composed from the parts.
  [[nodiscard]] std::string ConnectString() const;
  /// The logged-on user of this machine; empty when the system doesn't tell.
  [[nodiscard]] static std::string NetworkUserID();

  /// Closes what is open and opens DataSource with Password. False on any error; nothing is shown.
  bool DataOpen();
  /// As DataOpen, but raises why DataSource can't be opened.
  void OpenOrRaise();
  /// Closes for good: this object can't be opened again.
  void DataClose();
  [[nodiscard]] bool IsOpen() const { return connection_ != nullptr; }
  /// The live connection; raises 3704 while closed.
  [[nodiscard]] EngineConnection& Connection() const;

  /// The errors of the last operation that failed on the live connection, or of the opening that
  /// failed.
  [[nodiscard]] const std::vector<EngineError>& Errors() const;
  /// The error list of the given connection, or of this object's own when it is missing, as a text:
  /// "Error #: " number and "Description: " text, a line each. Empty when there was no error.
  const std::string& ErrorHandler(const EngineConnection* connection = nullptr);

  /// The next primary key of a table from its counter in tblTableIDs; -1 on failure, with the
  /// reason in ErrorMsg.
  std::int32_t TableIDGet(const std::string& tableName, const std::string& keyColumn);

  /// A batch of writes on the live connection (see WriteBatch); null while closed.
  [[nodiscard]] std::unique_ptr<WriteBatch> MakeBatch() const;

  /// A new, closed connection of the same engine, with everything else as at construction.
  [[nodiscard]] std::unique_ptr<DataConnection> MakeAnother() const;
  /// A new, closed connection with everything that ConnectString tells as here.
  [[nodiscard]] std::unique_ptr<DataConnection> MakeTwin() const;

 private:
  [[nodiscard]] std::int32_t NextKey(const std::string& tableName, const std::string& keyColumn,
                                     std::int16_t& errors);

  DataEnvironment environment_;
  std::int16_t providerConst_ = kJet;
  std::unique_ptr<EngineConnection> connection_;
  std::vector<EngineError> openErrors_;
  bool released_ = false;
  std::string errorMsg_;
};

/// Ends a batch that MakeBatch gave; nothing for null. Raises what the commit raises.
void Commit(const std::unique_ptr<WriteBatch>& batch);

}  // namespace lorvane
