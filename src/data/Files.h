#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lorvane {

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
  /// then no destination is left.
  virtual void Copy(const std::string& from, const std::string& to) = 0;
  [[nodiscard]] virtual bool Exists(const std::string& path) = 0;
  virtual void Remove(const std::string& path) = 0;
};

/// The files of this machine's disks.
class DiskFiles : public Files {
 public:
  [[nodiscard]] std::optional<std::string> Read(const std::string& path) override;
  void Write(const std::string& path, std::string_view content) override;
  void Copy(const std::string& from, const std::string& to) override;
  [[nodiscard]] bool Exists(const std::string& path) override;
  void Remove(const std::string& path) override;
};

/// The path as the folder spells it: when there is no file of exactly that name, one whose name
/// differs only in case. The path itself when there is none either.
[[nodiscard]] std::string FindWithoutCase(const std::string& path);

}  // namespace lorvane
