#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

struct zip;

namespace lorvane {

/// A ZIP archive to read, as workbooks are. What it unpacks to is bounded: an archive that was made
/// to fill the memory or the day is refused.
class ZipFile {
 public:
  /// Bytes that all reading together may unpack.
  static constexpr std::uint64_t kMaxUnpacked = 160U << 20U;

  /// Raises 75, like all operations here, when it is damaged.
  explicit ZipFile(const std::string& path);
  ZipFile(const ZipFile&) = delete;
  ZipFile& operator=(const ZipFile&) = delete;
  ~ZipFile();

  [[nodiscard]] const std::string& Path() const { return path_; }
  [[nodiscard]] bool Has(const std::string& entry) const;
  /// Hands the entry's bytes on, block after block. Raises 75 when it is missing, damaged or
  /// encrypted, or unpacks to too much.
  void Read(const std::string& entry, const std::function<void(std::string_view)>& take);
  /// A short entry whole: empty when it is missing, cut when it isn't short.
  [[nodiscard]] std::string ReadShort(const std::string& entry);

 private:
  std::string path_;
  zip* archive_ = nullptr;
  std::uint64_t unpacked_ = 0;
};

}  // namespace lorvane
