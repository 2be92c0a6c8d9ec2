#include "basic/ReadFile.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>

namespace lorvane {

std::optional<std::string> ReadFile(const std::string& path, std::size_t most) {
  std::error_code ignored;
  std::ifstream file(path, std::ios::binary);
  if (!file || std::filesystem::is_directory(path, ignored)) {
    return std::nullopt;
  }
  // By blocks, since the size of a pipe isn't known.
  std::string bytes;
  std::array<char, 1U << 16U> block{};
  while (file && bytes.size() <= most) {
    const std::size_t wanted = std::min(block.size(), most + 1 - bytes.size());
    file.read(block.data(), static_cast<std::streamsize>(wanted));
    bytes.append(block.data(), static_cast<std::size_t>(file.gcount()));
  }
  return file.bad() ? std::nullopt : std::optional(bytes);
}

}  // namespace lorvane
