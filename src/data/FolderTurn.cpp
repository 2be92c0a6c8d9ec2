#include "data/FolderTurn.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <thread>

#include "basic/RuntimeError.h"

namespace lorvane {

FolderTurn::FolderTurn(const std::string& folder, std::chrono::milliseconds patience)
    : handle_(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  constexpr std::chrono::milliseconds kStep(50);
  std::chrono::milliseconds waited(0);
  while (flock(handle_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
    if (waited >= patience) {
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
