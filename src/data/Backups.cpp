#include "data/Backups.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <string_view>
#include <utility>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "data/CheckedCopy.h"
#include "data/FolderTurn.h"

namespace lorvane {
namespace {

constexpr const char* kConfigName = "LorvaneConfig.ini";
constexpr std::string_view kNamePattern = "0000-00-00_00-00-00";
constexpr std::string_view kNumberPattern = "-00";
constexpr int kMostInASecond = 99;
// A backup on its way; one that a killed program has left is in nobody's way.
constexpr const char* kUnfinished = "unfinished";

bool Matches(std::string_view text, std::string_view pattern) {
  return std::equal(text.begin(), text.end(), pattern.begin(), pattern.end(), [](char c, char p) {
    return p == '0' ? std::isdigit(static_cast<unsigned char>(c)) != 0 : c == p;
  });
}

bool IsBackupName(std::string_view name) {
  const std::string_view number = name.substr(std::min(name.size(), kNamePattern.size()));
  return Matches(name.substr(0, kNamePattern.size()), kNamePattern) &&
         (number.empty() || Matches(number, kNumberPattern));
}

}  // namespace

Backups::Backups(Files& files, std::string dataFile)
    : files_(files), dataFile_(std::move(dataFile)), folder_(GetPathPart(dataFile_) + "Backup") {}

std::vector<Backup> Backups::List() const {
  std::vector<Backup> backups;
  for (const std::string& name : files_.Names(folder_)) {
    const std::string copy = folder_ + "/" + name + "/" + GetNamePart(dataFile_);
    if (IsBackupName(name) && files_.Exists(copy)) {
      backups.push_back({folder_ + "/" + name, name, files_.Size(copy)});
    }
  }
  std::reverse(backups.begin(), backups.end());
  return backups;
}

Backup Backups::Make(const DataConnection& connection, const DateTime& now,
                     std::uintmax_t roomToLeave) {
  connection.Connection().Checkpoint();
  RequireRoom(roomToLeave);
  const bool first = !files_.Exists(folder_);
  const std::string unfinished = folder_ + "/" + kUnfinished;
  if (first) {
    MakeOwnFolder();
  }
  const FolderTurn turn(folder_);
  try {
    RemoveWithFiles(unfinished);
    files_.MakeFolder(unfinished);
    CopyInto(unfinished, connection);
    const std::string name = NewName(now);
    files_.Rename(unfinished, folder_ + "/" + name);
    RemoveOldest(name);
    return {folder_ + "/" + name, name,
            files_.Size(folder_ + "/" + name + "/" + GetNamePart(dataFile_))};
  } catch (const RuntimeError&) {
    try {
      RemoveWithFiles(unfinished);
      if (first && files_.Exists(folder_)) {
        files_.RemoveFolder(folder_);
      }
    } catch (const RuntimeError&) {
      // What can't be removed goes with the next backup; the reason of the failure comes first.
    }
    throw;
  }
}

void Backups::RequireRoom(std::uintmax_t roomToLeave) const {
  const std::uintmax_t needed = files_.Size(dataFile_) + roomToLeave;
  const std::string place = GetPathPart(dataFile_);
  if (files_.FreeSpace(place.empty() ? "." : place) < needed) {
    throw RuntimeError(
        error_number::kDiskFull,
        "The disk has no room for it: " + std::to_string(needed) + " bytes must be free.");
  }
}

void Backups::MakeOwnFolder() const {
  try {
    files_.MakeFolder(folder_);
  } catch (const RuntimeError& error) {
    // Another program may have been faster.
    if (error.Number() != error_number::kFileAlreadyExists) {
      throw;
    }
  }
}

void Backups::CopyInto(const std::string& folder, const DataConnection& connection) const {
  const std::string copy = folder + "/" + GetNamePart(dataFile_);
  files_.WriteNew(copy, [&](const TakeBytes& take) { connection.Connection().ReadDataFile(take); });
  const std::string config = FindWithoutCase(GetPathPart(dataFile_) + kConfigName);
  if (files_.Exists(config)) {
    files_.Copy(config, folder + "/" + kConfigName);
  }
  RequireSameContent("The backup", OpenCopy(connection, copy)->Connection(),
                     connection.Connection());
  RequireClosed(files_, copy);
}

std::string Backups::NewName(const DateTime& now) const {
  const std::string time = fmt::format("{:04}-{:02}-{:02}_{:02}-{:02}-{:02}", now.year, now.month,
                                       now.day, now.hour, now.minute, now.second);
  std::string name = time;
  for (int number = 2;
       files_.Exists(fmt::format("{}/{}", folder_, name)) && number <= kMostInASecond; ++number) {
    name = fmt::format("{}-{:02}", time, number);
  }
  return name;
}

// A backup that somebody works on as a company isn't plain any more, and is his.
bool Backups::IsPlain(const std::string& folder) const {
  const std::vector<std::string> names = files_.Names(folder);
  return std::all_of(names.begin(), names.end(), [&](const std::string& name) {
    return name == GetNamePart(dataFile_) || name == kConfigName;
  });
}

void Backups::RemoveOldest(const std::string& kept) const {
  std::vector<Backup> backups = List();
  // A clock that was set back makes no backup the oldest.
  std::erase_if(backups, [&](const Backup& backup) {
    return backup.name == kept || !IsPlain(backup.folder);
  });
  for (std::size_t place = kKept - 1; place < backups.size(); ++place) {
    try {
      RemoveWithFiles(backups[place].folder);
    } catch (const RuntimeError&) {
      // One too many is no harm.
      continue;
    }
  }
}

void Backups::RemoveWithFiles(const std::string& folder) const {
  if (!files_.Exists(folder)) {
    return;
  }
  for (const std::string& name : files_.Names(folder)) {
    files_.Remove(fmt::format("{}/{}", folder, name));
  }
  files_.RemoveFolder(folder);
}

}  // namespace lorvane
