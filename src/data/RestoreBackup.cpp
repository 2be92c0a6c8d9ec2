#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "data/Backups.h"
#include "data/CheckedCopy.h"
#include "data/DataFileParts.h"

namespace lorvane {
namespace {

namespace fs = std::filesystem;

constexpr const char* kConfigName = "LorvaneConfig.ini";

std::string WithSeparator(std::string folder) {
  return GetNamePart(folder).empty() ? std::move(folder) : std::move(folder) + "/";
}

bool IsCompanion(const std::string& name) {
  return EqualsNoCase(name, kConfigName) || name.ends_with("-wal") || name.ends_with("-shm");
}

// The one data file of a backup's folder, or the path itself when it is that of a file.
std::string DataFileOf(Files& files, const std::string& backup) {
  std::vector<std::string> names = files.Names(backup);
  if (names.empty() && files.Exists(backup)) {
    return backup;
  }
  std::erase_if(names, IsCompanion);
  if (names.size() != 1) {
    throw RuntimeError(error_number::kFileNotFound,
                       "'" + backup + "' is no backup: it should hold one data file.");
  }
  return WithSeparator(backup) + names.front();
}

/// Removes again what was put into a folder, unless it is kept.
class NewFiles {
 public:
  explicit NewFiles(Files& files) : files_(files) {}
  NewFiles(const NewFiles&) = delete;
  NewFiles& operator=(const NewFiles&) = delete;
  ~NewFiles() {
    try {
      for (const std::string& path : paths_) {
        RemoveDataFile(files_, path);
      }
      if (folder_) {
        files_.RemoveFolder(*folder_);
      }
    } catch (const RuntimeError&) {
      // The error that brought us here is already on its way.
      return;
    }
  }

  void MakeFolder(const std::string& path) {
    files_.MakeFolder(path);
    folder_ = path;
  }
  void Copy(const std::string& from, const std::string& to) {
    files_.Copy(from, to);
    paths_.push_back(to);
  }
  void Keep() {
    paths_.clear();
    folder_.reset();
  }

 private:
  Files& files_;
  std::vector<std::string> paths_;
  std::optional<std::string> folder_;
};

// The log of another data file would be taken for that of the restored one.
void RequireNoCompany(Files& files, const std::string& dataFile, const std::string& config) {
  for (const std::string& path :
       {dataFile, FindLogOf(files, dataFile).value_or(dataFile), FindWithoutCase(config)}) {
    if (files.Exists(path)) {
      throw RuntimeError(error_number::kFileAlreadyExists,
                         "'" + path +
                             "' is there already: a company is restored into a folder "
                             "that holds none.");
    }
  }
}

// What a backup's folder holds besides would make it no backup any more.
void RequireOutside(const std::string& backup, const std::string& folder) {
  std::error_code ignored;
  const fs::path inner = fs::weakly_canonical(fs::absolute(folder, ignored), ignored);
  const fs::path outer = fs::weakly_canonical(fs::absolute(backup, ignored), ignored);
  if (std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end()).first == outer.end()) {
    throw RuntimeError(error_number::kFileAlreadyExists,
                       "'" + folder + "' lies in the backup: a company is restored outside it.");
  }
}

// A backup may lie where nobody can write.
std::unique_ptr<DataConnection> OpenToRead(const DataConnection& connection,
                                           const std::string& dataFile) {
  std::unique_ptr<DataConnection> opened = connection.MakeTwin();
  opened->DataSource = dataFile;
  opened->ReadOnly = true;
  opened->OpenOrRaise();
  return opened;
}

void RequireInOrder(const DataConnection& connection, const std::string& dataFile) {
  if (!OpenToRead(connection, dataFile)->Connection().CheckIntegrity().empty()) {
    throw RuntimeError(error_number::kEngineFailure, "The file " + dataFile + " is damaged.");
  }
}

}  // namespace

RestoredCompany RestoreBackup(const DataConnection& connection, Files& files,
                              const std::string& backup, const std::string& folder) {
  const std::string source = DataFileOf(files, backup);
  const std::string sourceConfig = FindWithoutCase(GetPathPart(source) + kConfigName);
  const std::string target = WithSeparator(folder) + GetNamePart(source);
  const std::string targetConfig = WithSeparator(folder) + kConfigName;
  RequireOutside(backup, folder);
  RequireInOrder(connection, source);
  RequireClosed(files, source);
  RequireNoCompany(files, target, targetConfig);

  NewFiles placed(files);
  if (!files.Exists(folder)) {
    placed.MakeFolder(folder);
  }
  if (files.Exists(sourceConfig)) {
    placed.Copy(sourceConfig, targetConfig);
  }
  placed.Copy(source, target);
  RequireSameContent("The restored copy", OpenToRead(connection, target)->Connection(),
                     OpenToRead(connection, source)->Connection());
  placed.Keep();
  return {target, files.Size(target)};
}

}  // namespace lorvane
