#include "data/engine/NewFile.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "basic/RuntimeError.h"

namespace lorvane::sql {

namespace fs = std::filesystem;

std::string AbsolutePath(const std::string& path) {
  std::error_code error;
  const fs::path absolute = path.empty() ? fs::path() : fs::absolute(path, error);
  if (path.empty() || error) {
    throw RuntimeError(error_number::kEngineFailure, "No data file is named.");
  }
  return absolute.string();
}

NewFile::NewFile(const std::string& path) : path_(path) {
  std::FILE* file = std::fopen(path.c_str(), "wbx");
  if (file == nullptr && errno == EEXIST) {
    throw RuntimeError(error_number::kFileAlreadyExists,
                       fmt::format("The file {} is there already.", path));
  }
  if (file == nullptr || std::fclose(file) != 0) {
    throw RuntimeError(
        error_number::kEngineFailure,
        fmt::format("The file {} could not be made. Can files be made in that folder?", path));
  }
}

NewFile::~NewFile() {
  if (!kept_) {
    std::error_code ignored;
    fs::remove(path_, ignored);
    // An unfinished change leaves this beside it.
    fs::remove(path_ + "-journal", ignored);
  }
}

}  // namespace lorvane::sql
