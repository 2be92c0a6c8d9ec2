#include "data/engine/RawFile.h"

#include <sqlcipher/sqlite3.h>

#include <algorithm>
#include <string>

namespace lorvane::sql {

RawFile RawFile::DataOf(Database& database) { return {database, SQLITE_FCNTL_FILE_POINTER}; }

RawFile RawFile::LogOf(Database& database) { return {database, SQLITE_FCNTL_JOURNAL_POINTER}; }

RawFile::RawFile(Database& database, int whichFile) : database_(&database) {
  Check(sqlite3_file_control(database.Handle(), "main", whichFile, &file_));
}

void RawFile::Check(int code) const {
  if (code != SQLITE_OK) {
    database_->Fail(code);
  }
}

std::int64_t RawFile::Size() const {
  sqlite3_int64 size = 0;
  // One that was never opened holds nothing.
  if (file_->pMethods != nullptr) {
    Check(file_->pMethods->xFileSize(file_, &size));
  }
  return size;
}

void RawFile::ReadAt(std::int64_t offset, void* bytes, int count) const {
  Check(file_->pMethods->xRead(file_, bytes, count, offset));
}

void RawFile::Read(const std::function<void(std::string_view block)>& take) const {
  constexpr std::int64_t kBlock = 1U << 16U;
  const std::int64_t size = Size();
  std::string block(static_cast<std::size_t>(kBlock), '\0');
  for (std::int64_t offset = 0; offset < size; offset += kBlock) {
    const auto count = static_cast<int>(std::min(kBlock, size - offset));
    ReadAt(offset, block.data(), count);
    take(std::string_view(block).substr(0, static_cast<std::size_t>(count)));
  }
}

}  // namespace lorvane::sql
