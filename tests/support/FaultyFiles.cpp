#include "support/FaultyFiles.h"

#include <utility>

#include "basic/RuntimeError.h"

namespace lorvane {

void FaultyFiles::Fail(std::string operation, std::string pathEnd, std::int32_t errorNumber) {
  Before = [operation = std::move(operation), pathEnd = std::move(pathEnd), errorNumber](
               std::string_view announced, const std::string& path) {
    if (announced == operation && path.ends_with(pathEnd)) {
      throw RuntimeError(errorNumber, "'" + pathEnd + "' failed.");
    }
  };
}

void FaultyFiles::Announce(std::string_view operation, const std::string& path) const {
  if (Before) {
    Before(operation, path);
  }
}

void FaultyFiles::Write(const std::string& path, std::string_view content) {
  Announce("write", path);
  DiskFiles::Write(path, content);
}

void FaultyFiles::WriteNew(const std::string& path,
                           const std::function<void(const TakeBytes& take)>& source) {
  Announce("copy", path);
  DiskFiles::WriteNew(path, [&](const TakeBytes& take) {
    source([&](std::string_view block) {
      take(block);
      Announce("block", path);
    });
  });
}

void FaultyFiles::MakeFolder(const std::string& path) {
  Announce("folder", path);
  DiskFiles::MakeFolder(path);
}

void FaultyFiles::Replace(const std::string& from, const std::string& to) {
  Announce("replace", to);
  DiskFiles::Replace(from, to);
}

void FaultyFiles::Remove(const std::string& path) {
  Announce("remove", path);
  DiskFiles::Remove(path);
}

void FaultyFiles::Rename(const std::string& from, const std::string& to) {
  Announce("rename", to);
  DiskFiles::Rename(from, to);
}

std::uintmax_t FaultyFiles::FreeSpace(const std::string& folder) {
  return Room ? *Room : DiskFiles::FreeSpace(folder);
}

}  // namespace lorvane
