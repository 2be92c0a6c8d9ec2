#include "data/DataConnection.h"

#include <unistd.h>

#include <array>
#include <utility>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "data/Recordset.h"
#include "data/modDataAccess.h"

namespace lorvane {
namespace {

constexpr std::int16_t kKeyAttempts = 5;

// Runs one statement of the key generator again while the engine reports an error in a command, up
// to five errors in the whole operation.
template <typename Statement>
auto RunWithRetry(std::int16_t& errors, Statement statement) {
  while (true) {
    try {
      return statement();
    } catch (const RuntimeError& error) {
      ++errors;
      if (error.Number() != error_number::kEngineCommand || errors >= kKeyAttempts) {
        throw;
      }
    }
  }
}

}  // namespace

DataConnection::DataConnection(DataEnvironment environment)
    : DataSource(environment.programFolder + "/Resource/Sample Data/Data.mdb"),
      environment_(std::move(environment)) {
  SetProviderConst(kJet);
}

void DataConnection::SetProviderConst(std::int16_t value) {
  providerConst_ = value;
  Provider = value == kServer ? "sqloledb" : "Microsoft.Jet.OLEDB.4.0";
}

// The padding to a common column is part of the text.
std::string DataConnection::ConnectString() const {
  if (UseODBC) {
    std::string text = "DSN=" + DSN;
    if (!LoginId.empty()) {
      // The test is on the login for both: a password without a login isn't handed on.
      text += ";UID=" + LoginId + ";PWD=" + Password;
    }
    if (!DatabaseName.empty()) {
      text += ";DATABASE = " + DatabaseName;
    }
    return text;
  }
  const std::string head = "Provider        = " + Provider +
                           ";"
                           "Data Source     = " +
                           DataSource + ";";
  if (providerConst_ == kJet) {
    return head + "Jet OLEDB:Database Password = " + Password + ";";
  }
  return head + "Initial Catalog = " + InitialCatalog +
         ";"
         "User Id         = " +
         LoginId +
         ";"
         "Password        = " +
         Password + "; ";
}

std::string DataConnection::NetworkUserID() {
  std::array<char, 256> name{};
  return getlogin_r(name.data(), name.size()) == 0 ? std::string(name.data()) : std::string();
}

bool DataConnection::DataOpen() {
  connection_.reset();
  openErrors_.clear();
  try {
    if (released_) {
      throw RuntimeError(error_number::kObjectNotSet);
    }
    if (UseODBC || providerConst_ != kJet) {
      throw RuntimeError(error_number::kEngineFailure, "There is no engine for this provider.");
    }
    Engine& engine = *environment_.engine;
    connection_ =
        ReadOnly ? engine.OpenToRead(DataSource, Password) : engine.Open(DataSource, Password);
    return true;
  } catch (const RuntimeError& error) {
    openErrors_.push_back({error.Number(), error.Description()});
    return false;
  }
}

void DataConnection::OpenOrRaise() {
  if (!DataOpen()) {
    throw RuntimeError(openErrors_.front().number, openErrors_.front().description);
  }
}

void DataConnection::DataClose() {
  connection_.reset();
  released_ = true;
}

EngineConnection& DataConnection::Connection() const {
  if (connection_ == nullptr) {
    throw RuntimeError(error_number::kObjectClosed);
  }
  return *connection_;
}

const std::vector<EngineError>& DataConnection::Errors() const {
  return connection_ != nullptr ? connection_->Errors() : openErrors_;
}

const std::string& DataConnection::ErrorHandler(const EngineConnection* connection) {
  errorMsg_.clear();
  for (const EngineError& error : connection != nullptr ? connection->Errors() : Errors()) {
    errorMsg_ += "Error #: " + std::to_string(error.number) + kCrLf +
                 "Description: " + error.description + kCrLf;
  }
  return errorMsg_;
}

std::int32_t DataConnection::TableIDGet(const std::string& tableName,
                                        const std::string& keyColumn) {
  std::int16_t errors = 0;
  try {
    return NextKey(tableName, keyColumn, errors);
  } catch (const RuntimeError&) {
    ErrorHandler();
    return -1;
  }
}

std::int32_t DataConnection::NextKey(const std::string& tableName, const std::string& keyColumn,
                                     std::int16_t& errors) {
  const std::string where = "WHERE TableName = '" + tableName + "'";
  EngineConnection& connection = Connection();
  while (true) {
    Recordset counter;
    RunWithRetry(errors, [&] { counter.Open(connection, "SELECT * FROM tblTableIDs " + where); });
    if (counter.Eof()) {
      break;
    }
    const Value last = counter.Field("NextId");
    if (IsNull(last)) {
      // Counting from nothing would hand out one key again and again.
      throw RuntimeError(error_number::kTypeMismatch);
    }
    const std::int32_t candidate = ToLong(NullToDouble(last) + 1);
    const std::int64_t affected = RunWithRetry(errors, [&] {
      return connection.Execute("UPDATE tblTableIDs SET NextId = NextId + 1 " + where);
    });
    if (affected != 0) {
      return candidate;
    }
  }
  const ResultTable highest = RunWithRetry(errors, [&] {
    return connection.Query("SELECT Max(" + keyColumn + ") As lMaxValue  FROM " + tableName);
  });
  const std::int32_t start =
      highest.rows.empty() ? 1 : ToLong(NullToDouble(highest.rows.front().front()) + 1);
  // The statement names a column that the table doesn't have and ends in a comma: a table takes
  // keys only when its counter stands in the file already.
  RunWithRetry(errors, [&] {
    return connection.Execute("INSERT INTO tblTableIDs(TableName, lNextId, LastUpdate) VALUES ( '" +
                              tableName + "'," + std::to_string(start) + ",'" +
                              ShortDate(environment_.now()) + "', )");
  });
  return start;
}

std::unique_ptr<WriteBatch> DataConnection::MakeBatch() const {
  return IsOpen() ? std::make_unique<WriteBatch>(*connection_) : nullptr;
}

std::unique_ptr<DataConnection> DataConnection::MakeAnother() const {
  return std::make_unique<DataConnection>(environment_);
}

std::unique_ptr<DataConnection> DataConnection::MakeTwin() const {
  std::unique_ptr<DataConnection> twin = MakeAnother();
  twin->SetProviderConst(providerConst_);
  twin->Provider = Provider;
  twin->InitialCatalog = InitialCatalog;
  twin->DataSource = DataSource;
  twin->LoginId = LoginId;
  twin->Password = Password;
  twin->UseODBC = UseODBC;
  twin->DatabaseName = DatabaseName;
  twin->DSN = DSN;
  return twin;
}

void Commit(const std::unique_ptr<WriteBatch>& batch) {
  if (batch != nullptr) {
    batch->Commit();
  }
}

}  // namespace lorvane
