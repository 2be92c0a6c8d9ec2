#include "company/RatesFile.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "screen/Session.h"

namespace lorvane {
namespace {

namespace fs = std::filesystem;

constexpr const char* kName = "Sic.mdb";

fs::path OfProgram(const Session& session) {
  return fs::path(session.programFolder) / "Resource" / kName;
}

// Writing needs files beside the data file, so its folder counts as well. What isn't there is no
// reason to look elsewhere.
bool IsWriteProtected(const fs::path& file) {
  return access(file.c_str(), F_OK) == 0 &&
         (access(file.c_str(), W_OK) != 0 || access(file.parent_path().c_str(), W_OK) != 0);
}

fs::path FromEnvironment(const char* name) {
  const char* value = std::getenv(name);
  const fs::path path = value == nullptr ? fs::path() : fs::path(value);
  return path.is_absolute() ? path : fs::path();
}

// Empty for a user with no home.
fs::path OfUser() {
  fs::path folder = FromEnvironment("XDG_DATA_HOME");
  if (folder.empty()) {
    const fs::path home = FromEnvironment("HOME");
    if (home.empty()) {
      return {};
    }
    folder = home / ".local" / "share";
  }
  return folder / "lorvane" / kName;
}

// Where to look in place of the program's file; empty when that one will do.
fs::path InPlaceOf(const fs::path& ofProgram) {
  return IsWriteProtected(ofProgram) ? OfUser() : fs::path();
}

void MakeFolders(Files& files, const fs::path& folder) {
  if (!files.Exists(folder.string())) {
    MakeFolders(files, folder.parent_path());
    files.MakeFolder(folder.string());
  }
}

}  // namespace

std::string RatesToRead(const Session& session) {
  const fs::path ofProgram = OfProgram(session);
  const fs::path ofUser = InPlaceOf(ofProgram);
  return (!ofUser.empty() && session.files.Exists(ofUser.string()) ? ofUser : ofProgram).string();
}

std::string RatesToChange(const Session& session) {
  const fs::path ofProgram = OfProgram(session);
  const fs::path ofUser = InPlaceOf(ofProgram);
  if (ofUser.empty()) {
    return ofProgram.string();
  }
  if (!session.files.Exists(ofUser.string())) {
    MakeFolders(session.files, ofUser.parent_path());
    // Who reads a write-protected file holds no locks on it that this could drop.
    session.files.Copy(ofProgram.string(), ofUser.string());
  }
  return ofUser.string();
}

}  // namespace lorvane
