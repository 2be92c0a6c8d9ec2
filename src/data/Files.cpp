#include "data/Files.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
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

// A new file that is removed again unless it was finished. Errors name the file that was asked for.
class NewFile {
 public:
  NewFile(std::string path, std::string askedFor)
      : path_(std::move(path)),
        askedFor_(std::move(askedFor)),
        handle_(open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666)) {
    if (handle_ < 0) {
      Fail(errno, askedFor_);
    }
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile() {
    if (handle_ >= 0) {
      close(handle_);
      unlink(path_.c_str());
    }
  }

  void Write(std::string_view content) {
    while (!content.empty()) {
      const ssize_t written = write(handle_, content.data(), content.size());
      if (written < 0 && errno != EINTR) {
        Fail(errno, askedFor_);
      }
      content.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
  }
  // On disk from here on.
  void Finish() {
    if (fsync(handle_) != 0 || close(std::exchange(handle_, -1)) != 0) {
      const int code = errno;
      unlink(path_.c_str());
      Fail(code, askedFor_);
    }
  }

 private:
  std::string path_;
  std::string askedFor_;
  int handle_;
};

// Makes a rename or a new name durable. A file system that can't do so is no reason to fail.
void SyncFolderOf(const std::string& path) {
  const std::string folder = GetPathPart(path);
  const int handle = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_CLOEXEC);
  if (handle >= 0) {
    fsync(handle);
    close(handle);
  }
}

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
  const std::string temporary = path + ".new" + std::to_string(getpid());
  // What a program of the same number may have left behind in a crash.
  unlink(temporary.c_str());
  NewFile file(temporary, path);
  file.Write(content);
  file.Finish();
  if (rename(temporary.c_str(), path.c_str()) != 0) {
    const int code = errno;
    unlink(temporary.c_str());
    Fail(code, path);
  }
  SyncFolderOf(path);
}

void DiskFiles::Copy(const std::string& from, const std::string& to) {
  std::ifstream source(from, std::ios::binary);
  if (!source) {
    Fail(errno, from);
  }
  NewFile target(to, to);
  if (!ReadBlocks(source, [&](std::string_view block) { target.Write(block); })) {
    Fail(EIO, from);
  }
  target.Finish();
  SyncFolderOf(to);
}

bool DiskFiles::Exists(const std::string& path) {
  std::error_code ignored;
  return fs::exists(path, ignored);
}

void DiskFiles::Remove(const std::string& path) {
  if (unlink(path.c_str()) != 0 && errno != ENOENT) {
    Fail(errno, path);
  }
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
