#include "data/engine/EngineErrors.h"

#include <fmt/format.h>
#include <sqlcipher/sqlite3.h>

namespace lorvane::sql {
namespace {

constexpr int kPrimaryCode = 0xFF;

// "UNIQUE constraint failed: tblCompany.CompanyId": what stands behind the colon.
std::string ColumnsIn(const std::string& message) {
  const std::size_t colon = message.find(": ");
  return colon == std::string::npos ? std::string("key") : message.substr(colon + 2);
}

RuntimeError ConstraintError(int extendedCode, const std::string& message) {
  const bool missing = extendedCode == SQLITE_CONSTRAINT_NOTNULL;
  return {error_number::kEngineIntegrity,
          missing
              ? fmt::format("The row was not written: its {} needs a value.", ColumnsIn(message))
              : fmt::format("The row was not written: there is one with the same {} already.",
                            ColumnsIn(message))};
}

}  // namespace

bool TellsOfDamage(std::string_view message) {
  constexpr std::string_view words = "malformed database schema";
  return message.substr(0, words.size()) == words || message == sqlite3_errstr(SQLITE_ERROR);
}

RuntimeError ErrorOf(int extendedCode, const std::string& path, const std::string& message) {
  const auto failure = [](std::string description) {
    return RuntimeError(error_number::kEngineFailure, std::move(description));
  };
  // A function of the library's own that meets a full disk hands on the words and not the code.
  const bool wordsOfFullDisk = message == sqlite3_errstr(SQLITE_FULL);
  const int code = TellsOfDamage(message) ? SQLITE_CORRUPT : extendedCode & kPrimaryCode;
  switch (wordsOfFullDisk ? SQLITE_FULL : code) {
    case SQLITE_CONSTRAINT:
      return ConstraintError(extendedCode, message);
    case SQLITE_MISMATCH:
      return {error_number::kEngineIntegrity, "The row was not written: its key is no number."};
    case SQLITE_TOOBIG:
      return {error_number::kEngineTextTooLong, "A text is too long to be stored."};
    case SQLITE_FULL:
      return {error_number::kEngineDiskFull,
              fmt::format("The disk is full: the change to {} was not written.", path)};
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return failure(
          fmt::format("The file {} is in use by another program. Please try again.", path));
    case SQLITE_CORRUPT:
      return failure(fmt::format("The file {} is damaged.", path));
    case SQLITE_NOTADB:
      return failure(fmt::format("The file {} is damaged or isn't a data file.", path));
    case SQLITE_READONLY:
      return failure(fmt::format("The file {} can't be written.", path));
    case SQLITE_PERM:
    case SQLITE_AUTH:
    case SQLITE_CANTOPEN:
      return failure(fmt::format(
          "The file {} can't be opened to write, or files can't be made in its folder.", path));
    case SQLITE_IOERR:
      return failure(fmt::format("The file {} could not be read or written.", path));
    case SQLITE_NOMEM:
      return failure("There isn't enough memory.");
    default:
      return failure(fmt::format("The file {} could not be used: {}.", path, message));
  }
}

}  // namespace lorvane::sql
