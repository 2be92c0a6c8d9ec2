#include "data/engine/FileEngine.h"

#include <fmt/format.h>
#include <sqlcipher/sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <utility>

#include "basic/RuntimeError.h"
#include "data/engine/Database.h"
#include "data/engine/FileConnection.h"
#include "data/engine/NewFile.h"
#include "data/engine/RawFile.h"
#include "data/engine/SqlFunctions.h"

namespace lorvane::sql {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPlainHeader{"SQLite format 3\0", 16};
constexpr sqlite3_int64 kSmallestFile = 512;

[[noreturn]] void FailFile(const std::string& path, std::string_view what) {
  throw RuntimeError(error_number::kEngineFailure, fmt::format("The file {} {}", path, what));
}

void RequireFile(const std::string& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::exists(status)) {
    FailFile(path,
             status.type() == fs::file_type::not_found ? "does not exist." : "can't be reached.");
  }
  if (!fs::is_regular_file(status)) {
    FailFile(path, "is not a file.");
  }
}

[[noreturn]] void FailWriteProtected(const std::string& path) {
  FailFile(path, "can't be written. Is it or its folder write-protected?");
}

// Before the engine looks: the files that it makes beside the data file take over its protection,
// and would stay.
void RequireWritableFile(const std::string& path) {
  if (access(path.c_str(), R_OK) == 0 && access(path.c_str(), W_OK) != 0) {
    FailWriteProtected(path);
  }
}

struct FileHeader {
  sqlite3_int64 size = 0;
  Salt bytes{};

  [[nodiscard]] bool IsPlain() const {
    return std::equal(
        bytes.begin(), bytes.end(), kPlainHeader.begin(), kPlainHeader.end(),
        [](unsigned char byte, char c) { return byte == static_cast<unsigned char>(c); });
  }
};

FileHeader ReadHeader(Database& database) {
  FileHeader header;
  const RawFile file = RawFile::DataOf(database);
  header.size = file.Size();
  if (header.size >= kSmallestFile) {
    file.ReadAt(0, header.bytes.data(), static_cast<int>(header.bytes.size()));
  }
  return header;
}

void RequireReadable(Database& database, bool isProtected) {
  try {
    static_cast<void>(database.ReadNumber("SELECT count(*) FROM sqlite_master"));
  } catch (const RuntimeError&) {
    if ((sqlite3_errcode(database.Handle()) & 0xFF) == SQLITE_NOTADB) {
      FailFile(database.Path(),
               isProtected ? "could not be opened: the password is wrong, or it is damaged "
                             "or not a data file."
                           : "is damaged or not a data file.");
    }
    throw;
  }
}

bool IsReadOnly(Database& database) { return sqlite3_db_readonly(database.Handle(), "main") != 0; }

// Writing needs files beside the data file, so its folder counts as well.
bool IsWriteProtected(const std::string& path) {
  Database database(path);
  return IsReadOnly(database) || access(fs::path(path).parent_path().c_str(), W_OK) != 0;
}

void SetUp(Database& database) {
  if (IsReadOnly(database)) {
    FailWriteProtected(database.Path());
  }
  if (database.ReadText("PRAGMA journal_mode = WAL") != "wal") {
    FailFile(database.Path(), "can't be written in its folder.");
  }
  // What the user was told is done is on the disk.
  database.Run("PRAGMA synchronous = FULL");
  RegisterFunctions(database);
}

}  // namespace

void FileEngine::Unlock(Database& database, const std::string& password) {
  const std::string& path = database.Path();
  const FileHeader header = ReadHeader(database);
  if (header.size < kSmallestFile) {
    FailFile(path, "is not a data file.");
  }
  if (password.empty() && !header.IsPlain()) {
    FailFile(path, "is protected by a password or is not a data file.");
  }
  if (!password.empty()) {
    if (header.IsPlain()) {
      FailFile(path, "is not protected by a password and can't be opened with one.");
    }
    database.Unlock(keys_.KeyOf(header.bytes, password));
  }
  RequireReadable(database, !password.empty());
}

std::unique_ptr<EngineConnection> FileEngine::Open(const std::string& path,
                                                   const std::string& password) {
  const std::string absolute = AbsolutePath(path);
  RequireFile(absolute);
  RequireWritableFile(absolute);
  auto database = std::make_unique<Database>(absolute);
  Unlock(*database, password);
  SetUp(*database);
  return std::make_unique<FileConnection>(std::move(database));
}

std::unique_ptr<EngineConnection> FileEngine::OpenToRead(const std::string& path,
                                                         const std::string& password) {
  const std::string absolute = AbsolutePath(path);
  RequireFile(absolute);
  if (!IsWriteProtected(absolute)) {
    return Open(path, password);
  }
  auto database = std::make_unique<Database>(absolute, Database::Access::kReadFixed);
  Unlock(*database, password);
  RegisterFunctions(*database);
  return std::make_unique<FileConnection>(std::move(database));
}

std::unique_ptr<EngineConnection> FileEngine::Create(const std::string& path,
                                                     const std::string& password) {
  const std::string absolute = AbsolutePath(path);
  NewFile file(absolute);
  auto database = std::make_unique<Database>(absolute);
  if (!password.empty()) {
    database->Unlock(keys_.KeyOf(MakeSalt(), password));
  }
  SetUp(*database);
  file.Keep();
  return std::make_unique<FileConnection>(std::move(database));
}

}  // namespace lorvane::sql

namespace lorvane {

std::unique_ptr<Engine> MakeFileEngine() { return std::make_unique<sql::FileEngine>(); }

}  // namespace lorvane
