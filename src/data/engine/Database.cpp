#include "data/engine/Database.h"

#include <fmt/format.h>
#include <sqlcipher/sqlite3.h>

#include <utility>

#include "data/engine/EngineErrors.h"
#include "data/engine/FileKey.h"

namespace lorvane::sql {
namespace {

constexpr std::size_t kMostStatements = 100;
constexpr int kBusyMilliseconds = 5000;

StatementPointer Prepare(sqlite3* handle, const std::string& sql, int& code) {
  sqlite3_stmt* statement = nullptr;
  code = sqlite3_prepare_v2(handle, sql.data(), static_cast<int>(sql.size()), &statement, nullptr);
  return StatementPointer(statement);
}

// The library's way to say that a file is fixed.
std::string FixedName(const std::string& path) {
  std::string name = "file://";
  for (const char character : path) {
    name += character == '%' || character == '?' || character == '#'
                ? fmt::format("%{:02X}", static_cast<unsigned>(character))
                : std::string(1, character);
  }
  return name + "?immutable=1";
}

}  // namespace

void FinalizeStatement::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

Database::Database(const std::string& path, Access access) : path_(path) {
  const bool fixed = access == Access::kReadFixed;
  const int code =
      sqlite3_open_v2(fixed ? FixedName(path).c_str() : path.c_str(), &handle_,
                      (fixed ? SQLITE_OPEN_READONLY | SQLITE_OPEN_URI : SQLITE_OPEN_READWRITE) |
                          SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_PRIVATECACHE,
                      nullptr);
  if (code != SQLITE_OK) {
    const int extended = handle_ != nullptr ? sqlite3_extended_errcode(handle_) : code;
    sqlite3_close(handle_);
    throw ErrorOf(extended, path_, sqlite3_errstr(extended));
  }
  sqlite3_extended_result_codes(handle_, 1);
  sqlite3_busy_timeout(handle_, kBusyMilliseconds);
}

Database::~Database() {
  bySql_.clear();
  statements_.clear();
  sqlite3_close(handle_);
}

void Database::Unlock(std::shared_ptr<const FileKey> key) {
  key_ = std::move(key);
  int code = SQLITE_OK;
  key_->Use([&](std::string_view keyText) {
    code = sqlite3_key(handle_, keyText.data(), static_cast<int>(keyText.size()));
  });
  if (code != SQLITE_OK) {
    Fail(code);
  }
  // Releases that know this one would else expect the parameters of their own version; older ones
  // know only these and pass over it.
  Run("PRAGMA cipher_compatibility = 3");
}

void Database::Run(const std::string& sql) {
  cause_.reset();
  const int code = sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, nullptr);
  if (code != SQLITE_OK) {
    Fail(code);
  }
}

std::int64_t Database::ReadNumber(const std::string& sql) {
  StatementRun run(*this, sql);
  return run.Step() ? sqlite3_column_int64(run.Row(), 0) : 0;
}

std::string Database::ReadText(const std::string& sql) {
  StatementRun run(*this, sql);
  const void* text = run.Step() ? sqlite3_column_blob(run.Row(), 0) : nullptr;
  return text == nullptr
             ? std::string()
             : std::string(static_cast<const char*>(text),
                           static_cast<std::size_t>(sqlite3_column_bytes(run.Row(), 0)));
}

bool Database::InTransaction() const { return sqlite3_get_autocommit(handle_) == 0; }

sqlite3_stmt* Database::Prepared(const std::string& sql) {
  if (const auto found = bySql_.find(sql); found != bySql_.end()) {
    statements_.splice(statements_.begin(), statements_, found->second);
    return found->second->statement.get();
  }
  int code = SQLITE_OK;
  StatementPointer statement = Prepare(handle_, sql, code);
  if (code == SQLITE_ERROR && !TellsOfDamage(sqlite3_errmsg(handle_))) {
    throw RuntimeError(error_number::kEngineCommand,
                       std::string("The statement could not be run: ") + sqlite3_errmsg(handle_));
  }
  if (code != SQLITE_OK) {
    Fail(code);
  }
  if (statements_.size() >= kMostStatements) {
    bySql_.erase(statements_.back().sql);
    statements_.pop_back();
  }
  statements_.push_front({sql, std::move(statement)});
  bySql_.emplace(statements_.front().sql, statements_.begin());
  return statements_.front().statement.get();
}

void Database::Fail(int code) {
  if (cause_) {
    throw *std::exchange(cause_, std::nullopt);
  }
  throw ErrorOf(code, path_, sqlite3_errmsg(handle_));
}

StatementRun::StatementRun(Database& database, const std::string& sql)
    : database_(&database), statement_(database.Prepared(sql)) {}

StatementRun::StatementRun(Database& database, const Rendered& rendered)
    : StatementRun(database, rendered.sql) {
  int place = 0;
  for (const Value& parameter : rendered.parameters) {
    Bind(++place, parameter);
  }
  if (rendered.rowNumber) {
    sqlite3_bind_int64(statement_, ++place, *rendered.rowNumber);
  }
}

StatementRun::~StatementRun() {
  sqlite3_reset(statement_);
  // Texts are bound where they lie, which ends with the run.
  sqlite3_clear_bindings(statement_);
}

bool StatementRun::Step() {
  const int code = sqlite3_step(statement_);
  if (code == SQLITE_ROW) {
    return true;
  }
  if (code != SQLITE_DONE) {
    database_->Fail(code);
  }
  return false;
}

void StatementRun::Bind(int place, const Value& value) {
  int code = SQLITE_OK;
  if (const auto* text = std::get_if<std::string>(&value)) {
    code =
        sqlite3_bind_text(statement_, place, text->data(), static_cast<int>(text->size()), nullptr);
  } else if (const auto* whole = std::get_if<std::int32_t>(&value)) {
    code = sqlite3_bind_int(statement_, place, *whole);
  } else if (const auto* number = std::get_if<double>(&value)) {
    code = sqlite3_bind_double(statement_, place, *number);
  } else {
    code = sqlite3_bind_null(statement_, place);
  }
  if (code != SQLITE_OK) {
    database_->Fail(code);
  }
}

}  // namespace lorvane::sql
