#include "data/FolderTurn.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <thread>

#include "basic/RuntimeError.h"

namespace lorvane {

FolderTurn::FolderTurn(const std::string& folder)
    : handle_(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  constexpr std::chrono::milliseconds kStep(50);
  constexpr std::chrono::seconds kLongest(10);
  std::chrono::milliseconds waited(0);
  while (flock(handle_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
    if (waited >= kLongest) {
      close(handle_);
      throw RuntimeError(error_number::kPermissionDenied,
                         "Another program is at work in '" + folder + "'.");
    }
    std::this_thread::sleep_for(kStep);
    waited += kStep;
  }
}

FolderTurn::~FolderTurn() { close(handle_); }

}  // namespace lorvane
