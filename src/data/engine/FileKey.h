#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lorvane::sql {

/// The first bytes of a protected file.
using Salt = std::array<unsigned char, 16>;

/// The key of a protected file. Wiped from memory when it is no longer needed.
class FileKey {
 public:
  /// Derives the key from the password, which takes its time on purpose.
  FileKey(const Salt& salt, const std::string& password);
  FileKey(const FileKey&) = delete;
  FileKey& operator=(const FileKey&) = delete;
  ~FileKey();

  [[nodiscard]] bool IsOf(const Salt& salt, const std::string& password) const;
  /// Hands over the key with its salt as the database library takes it; the text is wiped after.
  void Use(const std::function<void(std::string_view keyText)>& use) const;

 private:
  Salt salt_;
  std::string password_;
  std::array<unsigned char, 32> key_{};
};

/// Bytes for a new file's salt.
[[nodiscard]] Salt MakeSalt();

/// The keys of the files that are open, so that a further connection to one of them doesn't derive
/// its key again.
class KeyRing {
 public:
  [[nodiscard]] std::shared_ptr<const FileKey> KeyOf(const Salt& salt, const std::string& password);
  /// How many keys have been derived so far.
  [[nodiscard]] int Derivations() const { return derivations_; }

 private:
  std::vector<std::weak_ptr<const FileKey>> keys_;
  int derivations_ = 0;
};

}  // namespace lorvane::sql
