#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "data/Files.h"

namespace lorvane {

/// The files of the disk, with a step that can raise an error before each change.
class FaultyFiles : public DiskFiles {
 public:
  /// What is about to be done with which file: "write", "copy", "block" (of a copy, which has begun
  /// by then), "folder", "replace" or "remove".
  std::function<void(std::string_view operation, const std::string& path)> Before;

  /// Makes that operation fail on every path that ends so.
  void Fail(std::string operation, std::string pathEnd, std::int32_t errorNumber);

  void Write(const std::string& path, std::string_view content) override;
  void WriteNew(const std::string& path,
                const std::function<void(const TakeBytes& take)>& source) override;
  void MakeFolder(const std::string& path) override;
  void Replace(const std::string& from, const std::string& to) override;
  void Remove(const std::string& path) override;

 private:
  void Announce(std::string_view operation, const std::string& path) const;
};

}  // namespace lorvane
