#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lorvane {

/// Takes bytes, block after block.
using TakeBytes = std::function<void(std::string_view block)>;

/// The file layer: how everything but the data file itself reaches the disk. Tests replace it to
/// fail at will. Failures raise a RuntimeError that names the file.
class Files {
 public:
  Files() = default;
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;
  virtual ~Files() = default;

  /// The whole content; nothing when there is no such file or it can't be read.
  [[nodiscard]] virtual std::optional<std::string> Read(const std::string& path) = 0;
  /// Replaces the file in one step: after a failure or a crash it holds the old content or the new.
  virtual void Write(const std::string& path, std::string_view content) = 0;
  /// Copies a file to a new one. Raises 58 when the destination is there, 61 when the disk is full;
  /// then no destination is left. No data file that is open in this program: reading it here would
  /// drop the locks that its connection holds.
  virtual void Copy(const std::string& from, const std::string& to) = 0;
  /// As Copy, of the bytes that `source` hands on.
  virtual void WriteNew(const std::string& path,
                        const std::function<void(const TakeBytes& take)>& source) = 0;
  /// Makes a folder. Raises 58 when there is something of that name.
  virtual void MakeFolder(const std::string& path) = 0;
  /// Puts one file into the place of another in one step. It is on the disk before that and keeps
  /// the other's permissions.
  virtual void Replace(const std::string& from, const std::string& to) = 0;
  [[nodiscard]] virtual bool Exists(const std::string& path) = 0;
  /// In bytes; raises 53 when there is no such file.
  [[nodiscard]] virtual std::uintmax_t Size(const std::string& path) = 0;
  virtual void Remove(const std::string& path) = 0;
  /// Gives a file or folder another name, where nothing is: raises 58 otherwise.
  virtual void Rename(const std::string& from, const std::string& to) = 0;
  /// Removes an empty folder; raises 75 for one that isn't.
  virtual void RemoveFolder(const std::string& path) = 0;
  /// The names in a folder, sorted; none when there is no such folder.
  [[nodiscard]] virtual std::vector<std::string> Names(const std::string& folder) = 0;
  /// The bytes that can be written on the disk of a folder.
  [[nodiscard]] virtual std::uintmax_t FreeSpace(const std::string& folder) = 0;
};

/// The files of this machine's disks.
class DiskFiles : public Files {
 public:
  [[nodiscard]] std::optional<std::string> Read(const std::string& path) override;
  void Write(const std::string& path, std::string_view content) override;
  void Copy(const std::string& from, const std::string& to) override;
  void WriteNew(const std::string& path,
                const std::function<void(const TakeBytes& take)>& source) override;
  void MakeFolder(const std::string& path) override;
  void Replace(const std::string& from, const std::string& to) override;
  [[nodiscard]] bool Exists(const std::string& path) override;
  [[nodiscard]] std::uintmax_t Size(const std::string& path) override;
  void Remove(const std::string& path) override;
  void Rename(const std::string& from, const std::string& to) override;
  void RemoveFolder(const std::string& path) override;
  [[nodiscard]] std::vector<std::string> Names(const std::string& folder) override;
  [[nodiscard]] std::uintmax_t FreeSpace(const std::string& folder) override;
};

/// The path as the folder spells it: when there is no file of exactly that name, one whose name
/// differs only in case. The path itself when there is none either.
[[nodiscard]] std::string FindWithoutCase(const std::string& path);

}  // namespace lorvane
