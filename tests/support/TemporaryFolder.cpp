#include "support/TemporaryFolder.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace lorvane {

TemporaryFolder::TemporaryFolder()
    : path_((std::filesystem::temp_directory_path() / "lorvane-test.XXXXXX").string()) {
  if (mkdtemp(path_.data()) == nullptr) {
    throw std::system_error(errno, std::generic_category(), path_);
  }
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace lorvane
