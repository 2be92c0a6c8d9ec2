#pragma once

#include <string>

namespace lorvane::sql {

/// The path in full, which the database library never takes for one of its special names. Raises
/// the engine's failure for an empty path.
[[nodiscard]] std::string AbsolutePath(const std::string& path);

/// An empty file that was not there before. It goes again unless it is kept.
class NewFile {
 public:
  /// Raises 58 when there is a file of that name, and the engine's failure when none can be made.
  explicit NewFile(const std::string& path);
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile();

  void Keep() { kept_ = true; }

 private:
  std::string path_;
  bool kept_ = false;
};

}  // namespace lorvane::sql
