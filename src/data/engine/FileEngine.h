#pragma once

#include <memory>
#include <string>

#include "data/engine/Engine.h"
#include "data/engine/FileKey.h"

namespace lorvane::sql {

class Database;

/// The engine behind MakeFileEngine.
class FileEngine : public Engine {
 public:
  std::unique_ptr<EngineConnection> Open(const std::string& path,
                                         const std::string& password) override;
  std::unique_ptr<EngineConnection> OpenToRead(const std::string& path,
                                               const std::string& password) override;
  std::unique_ptr<EngineConnection> Create(const std::string& path,
                                           const std::string& password) override;

  [[nodiscard]] const KeyRing& Keys() const { return keys_; }

 private:
  /// Unlocks a file that was opened; raises when it isn't what the password says.
  void Unlock(Database& database, const std::string& password);

  KeyRing keys_;
};

}  // namespace lorvane::sql
