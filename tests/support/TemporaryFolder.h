#pragma once

#include <string>

namespace lorvane {

/// A new, empty folder that is removed at the end with all that is in it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  /// With no separator at its end.
  [[nodiscard]] const std::string& Path() const { return path_; }
  /// The full path of a file in it.
  [[nodiscard]] std::string File(const std::string& name) const { return path_ + "/" + name; }

 private:
  std::string path_;
};

}  // namespace lorvane
