#include "data/DataFileParts.h"

#include <array>

namespace lorvane {
namespace {

constexpr std::array kLogs{"-journal", "-wal"};

}  // namespace

void RemoveDataFile(Files& files, const std::string& file) {
  for (const char* log : kLogs) {
    files.Remove(file + log);
  }
  files.Remove(file + "-shm");
  files.Remove(file);
}

std::optional<std::string> FindLogOf(Files& files, const std::string& file) {
  for (const char* log : kLogs) {
    if (files.Exists(file + log)) {
      return file + log;
    }
  }
  return std::nullopt;
}

}  // namespace lorvane
