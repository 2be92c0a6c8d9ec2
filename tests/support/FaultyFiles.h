#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "data/Files.h"

namespace lorvane {

/// The files of the disk, with a step that can raise an error before each change.
class FaultyFiles : public DiskFiles {
 public:
  /// What is about to be done with which file: "write", "copy", "block" (of a copy, which has begun
  /// by then), "folder", "replace", "remove" or "rename".
  std::function<void(std::string_view operation, const std::string& path)> Before;

  /// What the disk says is free, when it isn't to say the truth.
  std::optional<std::uintmax_t> Room;

  /// Makes that operation fail on every path that ends so.
  void Fail(std::string operation, std::string pathEnd, std::int32_t errorNumber);

  void Write(const std::string& path, std::string_view content) override;
  void WriteNew(const std::string& path,
                const std::function<void(const TakeBytes& take)>& source) override;
  void MakeFolder(const std::string& path) override;
  void Replace(const std::string& from, const std::string& to) override;
  void Remove(const std::string& path) override;
  void Rename(const std::string& from, const std::string& to) override;
  [[nodiscard]] std::uintmax_t FreeSpace(const std::string& folder) override;

 private:
  void Announce(std::string_view operation, const std::string& path) const;
};

}  // namespace lorvane
