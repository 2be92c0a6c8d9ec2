#include "data/engine/CompactCopy.h"

#include <fmt/format.h>
#include <openssl/crypto.h>

#include <string_view>

#include "data/engine/FileKey.h"
#include "data/engine/NewFile.h"

namespace lorvane::sql {
namespace {

void Attach(Database& database, const std::string& path, std::string_view keyText) {
  Rendered attach;
  attach.sql = "ATTACH ? AS compact_copy KEY ?";
  attach.parameters = {path, std::string(keyText)};
  const auto wipe = [&] {
    auto& key = std::get<std::string>(attach.parameters.back());
    OPENSSL_cleanse(key.data(), key.size());
  };
  try {
    StatementRun(database, attach).Step();
  } catch (const RuntimeError&) {
    wipe();
    throw;
  }
  wipe();
}

// From its attaching to its detaching.
class AttachedCopy {
 public:
  AttachedCopy(Database& database, const std::string& path) : database_(&database) {
    if (database.Key() != nullptr) {
      database.Key()->Use([&](std::string_view keyText) { Attach(database, path, keyText); });
    } else {
      Attach(database, path, {});
    }
  }
  AttachedCopy(const AttachedCopy&) = delete;
  AttachedCopy& operator=(const AttachedCopy&) = delete;
  ~AttachedCopy() {
    try {
      database_->Run("DETACH compact_copy");
    } catch (const RuntimeError&) {
      // It goes with the connection then.
      return;
    }
  }

 private:
  Database* database_;
};

}  // namespace

void WriteCompactCopy(Database& database, const std::string& path) {
  const std::string absolute = AbsolutePath(path);
  NewFile file(absolute);
  try {
    const AttachedCopy copy(database, absolute);
    database.Run("PRAGMA compact_copy.cipher_compatibility = 3");
    database.Run("SELECT sqlcipher_export('compact_copy')");
  } catch (const RuntimeError& error) {
    throw RuntimeError(error.Number(), fmt::format("The copy {} could not be written. {}", absolute,
                                                   error.Description()));
  }
  file.Keep();
}

}  // namespace lorvane::sql
