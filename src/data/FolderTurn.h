#pragma once

#include <chrono>
#include <string>

namespace lorvane {

/// A program's turn to work in a folder, among those that ask for one. It ends with the object, and
/// with the program.
class FolderTurn {
 public:
  static constexpr std::chrono::milliseconds kUsualPatience = std::chrono::seconds(10);

  /// Waits for those before it, and raises 70 when they take longer. A file system that knows no
  /// turns is no reason to fail.
  explicit FolderTurn(const std::string& folder,
                      std::chrono::milliseconds patience = kUsualPatience);
  FolderTurn(const FolderTurn&) = delete;
  FolderTurn& operator=(const FolderTurn&) = delete;
  ~FolderTurn();

 private:
  int handle_;
};

}  // namespace lorvane
