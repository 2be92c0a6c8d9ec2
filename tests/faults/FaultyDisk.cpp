// A disk that fails under any program that it is preloaded into. Of the calls of one kind on files
// in the folder FAULT_FOLDER the one of number FAULT_AT fails, counted from 1; with FAULT_EVER=1
// all later ones, too. How many there were is left in the file FAULT_COUNT. FAULT_KIND is one of:
//   full     a write puts half of its bytes down, and is told that the disk is full from then on
//   sync     what was written can't be made sure of
//   rename   a file gets no other name
//   remove   a file can't be removed
//   read     nothing can be read

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/types.h>
#include <sys/uio.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

std::string Setting(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

template <typename Function>
Function* Real(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

class Disk {
 public:
  Disk() {
    const std::string at = Setting("FAULT_AT");
    at_ = at.empty() ? 0 : std::strtol(at.c_str(), nullptr, 10);
  }
  Disk(const Disk&) = delete;
  Disk& operator=(const Disk&) = delete;
  ~Disk() {
    const std::string path = Setting("FAULT_COUNT");
    const std::string count = std::to_string(calls_.load());
    const int handle = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (handle >= 0) {
      static_cast<void>(Real<ssize_t(int, const void*, std::size_t)>("write")(handle, count.data(),
                                                                              count.size()));
      close(handle);
    }
  }

  bool Fails(std::string_view kind, int handle) {
    if (kind != kind_) {
      return false;
    }
    std::array<char, 4096> path{};
    const std::string link = "/proc/self/fd/" + std::to_string(handle);
    const ssize_t length = readlink(link.c_str(), path.data(), path.size());
    return length > 0 && FailsAt({path.data(), static_cast<std::size_t>(length)});
  }
  bool Fails(std::string_view kind, const char* path) { return kind == kind_ && FailsAt(path); }

 private:
  bool FailsAt(std::string_view path) {
    if (folder_.empty() || !path.starts_with(folder_)) {
      return false;
    }
    const long call = ++calls_;
    return at_ > 0 && (ever_ ? call >= at_ : call == at_);
  }

  std::string folder_ = Setting("FAULT_FOLDER");
  std::string kind_ = Setting("FAULT_KIND");
  bool ever_ = Setting("FAULT_EVER") == "1";
  long at_ = 0;
  std::atomic<long> calls_ = 0;
};

Disk& TheDisk() {
  static Disk disk;
  return disk;
}

int Refuse(int code) {
  errno = code;
  return -1;
}

bool FailsSync(int handle) { return TheDisk().Fails("sync", handle); }

}  // namespace

extern "C" {

ssize_t write(int handle, const void* bytes, std::size_t count) {
  static auto* const real = Real<ssize_t(int, const void*, std::size_t)>("write");
  if (!TheDisk().Fails("full", handle)) {
    return real(handle, bytes, count);
  }
  static std::atomic<bool> halved = false;
  return count < 2 || halved.exchange(true) ? Refuse(ENOSPC) : real(handle, bytes, count / 2);
}

ssize_t writev(int handle, const iovec* parts, int count) {
  static auto* const real = Real<ssize_t(int, const iovec*, int)>("writev");
  return TheDisk().Fails("full", handle) ? Refuse(ENOSPC) : real(handle, parts, count);
}

ssize_t pwrite64(int handle, const void* bytes, std::size_t count, off64_t offset) {
  static auto* const real = Real<ssize_t(int, const void*, std::size_t, off64_t)>("pwrite64");
  if (!TheDisk().Fails("full", handle)) {
    return real(handle, bytes, count, offset);
  }
  static std::atomic<bool> halved = false;
  return halved.exchange(true) ? Refuse(ENOSPC) : real(handle, bytes, count / 2, offset);
}

ssize_t read(int handle, void* bytes, std::size_t count) {
  static auto* const real = Real<ssize_t(int, void*, std::size_t)>("read");
  return TheDisk().Fails("read", handle) ? Refuse(EIO) : real(handle, bytes, count);
}

ssize_t pread64(int handle, void* bytes, std::size_t count, off64_t offset) {
  static auto* const real = Real<ssize_t(int, void*, std::size_t, off64_t)>("pread64");
  return TheDisk().Fails("read", handle) ? Refuse(EIO) : real(handle, bytes, count, offset);
}

int fsync(int handle) {
  static auto* const real = Real<int(int)>("fsync");
  return FailsSync(handle) ? Refuse(EIO) : real(handle);
}

int fdatasync(int handle) {
  static auto* const real = Real<int(int)>("fdatasync");
  return FailsSync(handle) ? Refuse(EIO) : real(handle);
}

int rename(const char* from, const char* to) noexcept {
  static auto* const real = Real<int(const char*, const char*)>("rename");
  return TheDisk().Fails("rename", to) ? Refuse(EIO) : real(from, to);
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept {
  static auto* const real = Real<int(int, const char*, int, const char*, unsigned)>("renameat2");
  return TheDisk().Fails("rename", to) ? Refuse(EIO) : real(fromFolder, from, toFolder, to, flags);
}

int unlink(const char* path) noexcept {
  static auto* const real = Real<int(const char*)>("unlink");
  return TheDisk().Fails("remove", path) ? Refuse(EIO) : real(path);
}

}  // extern "C"
