#pragma once

#include <string>

#include "basic/RuntimeError.h"

namespace lorvane {

// What unwinds a running script. None of these is a RuntimeError, so that no screen's own handler
// takes one for an error of its operation.

/// The script can't go on, or expected something else than what is there.
struct ScriptFailure {
  /// A sentence without a full stop.
  std::string message;
  /// The script's line; 0 while it isn't known.
  int line = 0;
};

/// A screen's operation, run by a line of the script, ended in an error that nobody handled.
struct UnhandledError {
  RuntimeError error;
  int line = 0;
};

/// The program starts afresh; the script goes on behind the line that asked for it.
struct ScriptRestart {};

/// The lines came to their end while windows were open.
struct ScriptEnd {};

}  // namespace lorvane
