#include "data/Files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <utility>

#include "basic/RuntimeError.h"
#include "basic/Text.h"

namespace lorvane {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(int code, const std::string& path) {
  const std::string sentence = "'" + path + "': " + std::generic_category().message(code);
  switch (code) {
    case EEXIST:
      throw RuntimeError(error_number::kFileAlreadyExists, sentence);
    case ENOSPC:
    case EDQUOT:
      throw RuntimeError(error_number::kDiskFull, sentence);
    case ENOENT:
    case ENOTDIR:
      throw RuntimeError(error_number::kFileNotFound, sentence);
    case EACCES:
    case EPERM:
    case EROFS:
      throw RuntimeError(error_number::kPermissionDenied, sentence);
    default:
      throw RuntimeError(error_number::kPathFileAccess, sentence);
  }
}

// Hands the file's content on in blocks; false when it can't be read to its end.
template <typename Take>
bool ReadBlocks(std::ifstream& file, Take take) {
  std::string block(1U << 16U, '\0');
  while (file.read(block.data(), static_cast<std::streamsize>(block.size())) || file.gcount() > 0) {
    take(std::string_view(block).substr(0, static_cast<std::size_t>(file.gcount())));
  }
  return !file.bad();
}

// Makes a rename or a new name durable. A file system that can't do so is no reason to fail.
void SyncFolderOf(const std::string& path) {
  const std::string folder = GetPathPart(path);
  const int handle = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_CLOEXEC);
  if (handle >= 0) {
    fsync(handle);
    close(handle);
  }
}

// Where nothing of that name is; not every file system can do both in one step.
int RenameToNew(const std::string& from, const std::string& to) {
  const int done = renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE);
  if (done == 0 || (errno != EINVAL && errno != ENOSYS)) {
    return done;
  }
  if (access(to.c_str(), F_OK) == 0) {
    errno = EEXIST;
    return -1;
  }
  return rename(from.c_str(), to.c_str());
}

// An open file gets the permissions of the one at a path; false, and errno, when it can't.
bool TakePermissions(int handle, const std::string& path) {
  constexpr mode_t kPermissions = S_IRWXU | S_IRWXG | S_IRWXO;
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && fchmod(handle, status.st_mode & kPermissions) == 0;
}

// A file under a temporary name beside its place, removed again unless it gets there. Errors name
// the place.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::string& place)
      : place_(place), path_(place + ".new" + std::to_string(getpid())) {
    // What a program of the same number may have left behind in a crash.
    unlink(path_.c_str());
    handle_ = open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (handle_ < 0) {
      Fail(errno, place_);
    }
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    if (handle_ >= 0) {
      close(handle_);
    }
    if (!placed_) {
      unlink(path_.c_str());
    }
  }

  // Others may read and write it as what it will replace, if there is anything.
  void TakePermissionsOfPlace() {
    if (!TakePermissions(handle_, place_) && errno != ENOENT) {
      Fail(errno, place_);
    }
  }
  void Write(std::string_view content) {
    while (!content.empty()) {
      const ssize_t written = write(handle_, content.data(), content.size());
      if (written < 0 && errno != EINTR) {
        Fail(errno, place_);
      }
      content.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
  }
  // Whole and on the disk when it gets there, over what is there or where nothing is.
  void Place(bool over) {
    if (fsync(handle_) != 0 || close(std::exchange(handle_, -1)) != 0 ||
        (over ? rename(path_.c_str(), place_.c_str()) : RenameToNew(path_, place_)) != 0) {
      Fail(errno, place_);
    }
    placed_ = true;
    SyncFolderOf(place_);
  }

 private:
  std::string place_;
  std::string path_;
  int handle_ = -1;
  bool placed_ = false;
};

}  // namespace

std::optional<std::string> DiskFiles::Read(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::string content;
  if (!file || !ReadBlocks(file, [&](std::string_view block) { content.append(block); })) {
    return std::nullopt;
  }
  return content;
}

void DiskFiles::Write(const std::string& path, std::string_view content) {
  TemporaryFile file(path);
  file.TakePermissionsOfPlace();
  file.Write(content);
  file.Place(true);
}

void DiskFiles::Copy(const std::string& from, const std::string& to) {
  WriteNew(to, [&](const TakeBytes& take) {
    std::ifstream source(from, std::ios::binary);
    if (!source) {
      Fail(errno, from);
    }
    if (!ReadBlocks(source, take)) {
      Fail(EIO, from);
    }
  });
}

void DiskFiles::WriteNew(const std::string& path,
                         const std::function<void(const TakeBytes& take)>& source) {
  if (Exists(path)) {
    Fail(EEXIST, path);
  }
  TemporaryFile file(path);
  source([&](std::string_view block) { file.Write(block); });
  file.Place(false);
}

void DiskFiles::MakeFolder(const std::string& path) {
  if (mkdir(path.c_str(), 0777) != 0) {
    Fail(errno, path);
  }
  SyncFolderOf(path);
}

void DiskFiles::Replace(const std::string& from, const std::string& to) {
  const int handle = open(from.c_str(), O_RDONLY | O_CLOEXEC);
  if (handle < 0) {
    Fail(errno, from);
  }
  const bool ready = TakePermissions(handle, to) && fsync(handle) == 0;
  const int code = errno;
  close(handle);
  if (!ready) {
    Fail(code, to);
  }
  if (rename(from.c_str(), to.c_str()) != 0) {
    Fail(errno, to);
  }
  SyncFolderOf(to);
}

bool DiskFiles::Exists(const std::string& path) {
  std::error_code ignored;
  return fs::exists(path, ignored);
}

std::uintmax_t DiskFiles::Size(const std::string& path) {
  std::error_code error;
  const std::uintmax_t size = fs::file_size(path, error);
  if (error) {
    Fail(error.value(), path);
  }
  return size;
}

void DiskFiles::Remove(const std::string& path) {
  if (unlink(path.c_str()) != 0 && errno != ENOENT) {
    Fail(errno, path);
  }
}

void DiskFiles::Rename(const std::string& from, const std::string& to) {
  if (RenameToNew(from, to) != 0) {
    Fail(errno, to);
  }
  SyncFolderOf(to);
}

void DiskFiles::RemoveFolder(const std::string& path) {
  if (rmdir(path.c_str()) != 0) {
    Fail(errno == EEXIST ? ENOTEMPTY : errno, path);
  }
}

std::vector<std::string> DiskFiles::Names(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code ignored;
  for (fs::directory_iterator entry(folder, ignored); entry != fs::directory_iterator();
       entry.increment(ignored)) {
    names.push_back(entry->path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::uintmax_t DiskFiles::FreeSpace(const std::string& folder) {
  std::error_code error;
  const fs::space_info space = fs::space(folder, error);
  if (error) {
    Fail(error.value(), folder);
  }
  return space.available;
}

std::string FindWithoutCase(const std::string& path) {
  std::error_code ignored;
  if (fs::exists(path, ignored)) {
    return path;
  }
  const std::string folder = GetPathPart(path);
  const std::string name = GetNamePart(path);
  for (fs::directory_iterator entry(folder.empty() ? "." : folder, ignored);
       entry != fs::directory_iterator(); entry.increment(ignored)) {
    const std::string candidate = entry->path().filename().string();
    if (EqualsNoCase(candidate, name)) {
      return folder + candidate;
    }
  }
  return path;
}

}  // namespace lorvane
