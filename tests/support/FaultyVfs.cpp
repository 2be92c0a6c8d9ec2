#include "support/FaultyVfs.h"

#include <sqlcipher/sqlite3.h>

#include <limits>
#include <new>
#include <stdexcept>

namespace lorvane {
namespace {

constexpr std::int64_t kNoLimit = std::numeric_limits<std::int64_t>::max();

}  // namespace

struct FaultyVfs::State {
  sqlite3_vfs vfs{};
  sqlite3_vfs* disk = nullptr;
  std::int64_t bytesLeft = kNoLimit;
  bool failSync = false;
  bool failReads = false;
  bool protect = false;
};

namespace {

// The library gives room for this and, right behind it, for the disk's own file.
struct FaultyFile {
  sqlite3_file base;
  FaultyVfs::State* state;
  sqlite3_file* real;
};

FaultyFile& Faulty(sqlite3_file* file) { return *reinterpret_cast<FaultyFile*>(file); }

template <auto member, typename... Arguments>
int Pass(sqlite3_file* file, Arguments... arguments) {
  sqlite3_file* real = Faulty(file).real;
  return (real->pMethods->*member)(real, arguments...);
}

int Write(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 offset) {
  FaultyVfs::State& state = *Faulty(file).state;
  if (count > state.bytesLeft) {
    state.bytesLeft = 0;
    return SQLITE_FULL;
  }
  state.bytesLeft -= state.bytesLeft == kNoLimit ? 0 : count;
  return Pass<&sqlite3_io_methods::xWrite>(file, bytes, count, offset);
}

int Read(sqlite3_file* file, void* bytes, int count, sqlite3_int64 offset) {
  return Faulty(file).state->failReads
             ? SQLITE_IOERR_READ
             : Pass<&sqlite3_io_methods::xRead>(file, bytes, count, offset);
}

int Sync(sqlite3_file* file, int flags) {
  return Faulty(file).state->failSync ? SQLITE_IOERR_FSYNC
                                      : Pass<&sqlite3_io_methods::xSync>(file, flags);
}

void Barrier(sqlite3_file* file) {
  sqlite3_file* real = Faulty(file).real;
  real->pMethods->xShmBarrier(real);
}

constexpr sqlite3_io_methods MakeMethods() {
  sqlite3_io_methods methods{};
  methods.iVersion = 2;
  methods.xClose = Pass<&sqlite3_io_methods::xClose>;
  methods.xRead = Read;
  methods.xWrite = Write;
  methods.xTruncate = Pass<&sqlite3_io_methods::xTruncate, sqlite3_int64>;
  methods.xSync = Sync;
  methods.xFileSize = Pass<&sqlite3_io_methods::xFileSize, sqlite3_int64*>;
  methods.xLock = Pass<&sqlite3_io_methods::xLock, int>;
  methods.xUnlock = Pass<&sqlite3_io_methods::xUnlock, int>;
  methods.xCheckReservedLock = Pass<&sqlite3_io_methods::xCheckReservedLock, int*>;
  methods.xFileControl = Pass<&sqlite3_io_methods::xFileControl, int, void*>;
  methods.xSectorSize = Pass<&sqlite3_io_methods::xSectorSize>;
  methods.xDeviceCharacteristics = Pass<&sqlite3_io_methods::xDeviceCharacteristics>;
  methods.xShmMap = Pass<&sqlite3_io_methods::xShmMap, int, int, int, void volatile**>;
  methods.xShmLock = Pass<&sqlite3_io_methods::xShmLock, int, int, int>;
  methods.xShmBarrier = Barrier;
  methods.xShmUnmap = Pass<&sqlite3_io_methods::xShmUnmap, int>;
  return methods;
}

constexpr sqlite3_io_methods kMethods = MakeMethods();

int Open(sqlite3_vfs* vfs, const char* name, sqlite3_file* file, int flags, int* outFlags) {
  auto& state = *static_cast<FaultyVfs::State*>(vfs->pAppData);
  auto* faulty = new (file) FaultyFile{{nullptr}, &state, nullptr};
  faulty->real = reinterpret_cast<sqlite3_file*>(faulty + 1);
  if (state.protect && (flags & SQLITE_OPEN_MAIN_DB) != 0) {
    flags = (flags & ~(SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE)) | SQLITE_OPEN_READONLY;
  }
  const int code = state.disk->xOpen(state.disk, name, faulty->real, flags, outFlags);
  if (faulty->real->pMethods != nullptr) {
    faulty->base.pMethods = &kMethods;
  }
  return code;
}

}  // namespace

FaultyVfs::FaultyVfs() : state_(std::make_unique<State>()) {
  state_->disk = sqlite3_vfs_find(nullptr);
  state_->vfs = *state_->disk;
  state_->vfs.zName = "faulty";
  state_->vfs.pNext = nullptr;
  state_->vfs.szOsFile = static_cast<int>(sizeof(FaultyFile)) + state_->disk->szOsFile;
  state_->vfs.pAppData = state_.get();
  state_->vfs.xOpen = Open;
  if (sqlite3_vfs_register(&state_->vfs, 1) != SQLITE_OK) {
    throw std::runtime_error("the faulty disk can't be registered");
  }
}

FaultyVfs::~FaultyVfs() {
  sqlite3_vfs_unregister(&state_->vfs);
  sqlite3_vfs_register(state_->disk, 1);
}

void FaultyVfs::FillAfter(std::int64_t bytes) { state_->bytesLeft = bytes; }

void FaultyVfs::FailSync(bool fail) { state_->failSync = fail; }

void FaultyVfs::FailReads(bool fail) { state_->failReads = fail; }

void FaultyVfs::ProtectFiles(bool protect) { state_->protect = protect; }

void FaultyVfs::Heal() {
  state_->bytesLeft = kNoLimit;
  state_->failSync = false;
  state_->failReads = false;
  state_->protect = false;
}

}  // namespace lorvane
