#pragma once

#include <stdexcept>

namespace lorvane {

/// A command that can't be done: a sentence for standard error and exit status 1.
class CommandFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A command that was written wrongly: exit status 2.
class UsageFailure : public CommandFailure {
 public:
  using CommandFailure::CommandFailure;
};

}  // namespace lorvane
