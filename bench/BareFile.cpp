#include "BareFile.h"

#include <sqlcipher/sqlite3.h>

#include <stdexcept>
#include <string_view>

#include "data/DataConnection.h"

namespace lorvane {

BareFile::BareFile(const std::string& path) {
  constexpr std::string_view password = kDataFilePassword;
  if (sqlite3_open_v2(path.c_str(), &handle_, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK ||
      sqlite3_key(handle_, password.data(), static_cast<int>(password.size())) != SQLITE_OK) {
    Fail(path);
  }
  Run("PRAGMA cipher_compatibility = 3");
  Run("SELECT count(*) FROM sqlite_master");
  Run("PRAGMA journal_mode = WAL");
  Run("PRAGMA synchronous = FULL");
}

BareFile::~BareFile() { sqlite3_close(handle_); }

void BareFile::Run(const std::string& sql) {
  if (sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
    Fail(sql);
  }
}

int BareFile::Read(const std::string& sql, const std::function<void(sqlite3_stmt*)>& useRow) {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(handle_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
    Fail(sql);
  }
  int rows = 0;
  while (sqlite3_step(statement) == SQLITE_ROW) {
    useRow(statement);
    ++rows;
  }
  if (sqlite3_finalize(statement) != SQLITE_OK) {
    Fail(sql);
  }
  return rows;
}

std::string BareFile::RowText(sqlite3_stmt* row) {
  std::string text;
  for (int place = 0; place < sqlite3_column_count(row); ++place) {
    text += TextAt(row, place);
  }
  return text;
}

std::string BareFile::TextAt(sqlite3_stmt* row, int place) {
  const void* text = sqlite3_column_blob(row, place);
  return text == nullptr ? std::string()
                         : std::string(static_cast<const char*>(text),
                                       static_cast<std::size_t>(sqlite3_column_bytes(row, place)));
}

void BareFile::Fail(const std::string& what) const {
  throw std::runtime_error(what + ": " + sqlite3_errmsg(handle_));
}

}  // namespace lorvane
