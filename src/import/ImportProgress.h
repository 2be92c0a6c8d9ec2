#pragma once

#include <cstddef>
#include <functional>

namespace lorvane {

/// How far an import has come.
struct ImportProgress {
  /// Called once, with the number of rows that there are, before anything is written.
  std::function<void(std::size_t rows)> onCount;
  /// Called before each row is taken, with its number counted from 1.
  std::function<void(std::size_t row)> onRow;
};

}  // namespace lorvane
