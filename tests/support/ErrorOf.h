#pragma once

#include <cstdint>

#include "basic/RuntimeError.h"

namespace lorvane {

/// The number of an operation's error, 0 when there was none.
template <typename Operation>
std::int32_t ErrorOf(Operation operation) {
  try {
    operation();
    return 0;
  } catch (const RuntimeError& error) {
    return error.Number();
  }
}

}  // namespace lorvane
