#pragma once

#include <cstdint>
#include <memory>

namespace lorvane {

/// The data engine's way to the disk, with a disk that fails on demand. While an object lives every
/// file that the engine opens goes through it; there may be one at a time, and it must outlive
/// them.
class FaultyVfs {
 public:
  FaultyVfs();
  FaultyVfs(const FaultyVfs&) = delete;
  FaultyVfs& operator=(const FaultyVfs&) = delete;
  ~FaultyVfs();

  /// The disk is full after so many more bytes.
  void FillAfter(std::int64_t bytes);
  /// What is written is there, but can't be made sure of.
  void FailSync(bool fail);
  /// Nothing can be read.
  void FailReads(bool fail);
  /// Files opened from now on can't be written.
  void ProtectFiles(bool protect);
  /// Everything works again.
  void Heal();

  struct State;

 private:
  std::unique_ptr<State> state_;
};

}  // namespace lorvane
