#pragma once

#include <string>

namespace lorvane {

/// A program's turn to work in a folder, among those that ask for one. It ends with the object, and
/// with the program.
class FolderTurn {
 public:
  /// Waits up to ten seconds and raises 70 then. A file system that knows no turns is no reason to
  /// fail.
  explicit FolderTurn(const std::string& folder);
  FolderTurn(const FolderTurn&) = delete;
  FolderTurn& operator=(const FolderTurn&) = delete;
  ~FolderTurn();

 private:
  int handle_;
};

}  // namespace lorvane
