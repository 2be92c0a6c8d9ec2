#include "screen/Session.h"

#include <utility>

namespace lorvane {

Session::Session(DataEnvironment environment, Files& fileLayer)
    : files(fileLayer), programFolder(environment.programFolder) {
  gDataConn = std::make_unique<DataConnection>(std::move(environment));
}

}  // namespace lorvane
