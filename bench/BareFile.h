#pragma once

#include <functional>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

namespace lorvane {

/// A company's data file through the database library alone, protected and journalled as the
/// program does it. Every statement is parsed when it is run. A failure raises std::runtime_error.
class BareFile {
 public:
  /// Derives the key and reads the file's catalog.
  explicit BareFile(const std::string& path);
  BareFile(const BareFile&) = delete;
  BareFile& operator=(const BareFile&) = delete;
  ~BareFile();

  void Run(const std::string& sql);
  /// Hands over each row of a SELECT. The result is their number.
  int Read(const std::string& sql, const std::function<void(sqlite3_stmt*)>& useRow);

  /// Every column of a row as text, joined, so that each was really fetched.
  [[nodiscard]] static std::string RowText(sqlite3_stmt* row);
  /// One column's text; empty for null.
  [[nodiscard]] static std::string TextAt(sqlite3_stmt* row, int place);

 private:
  [[noreturn]] void Fail(const std::string& what) const;

  sqlite3* handle_ = nullptr;
};

}  // namespace lorvane
