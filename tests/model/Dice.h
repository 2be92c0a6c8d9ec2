#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include "EntryRules.h"

namespace lorvane::model {

/// Chance, the same for the same numbers on every run.
class Dice {
 public:
  Dice(unsigned seed, unsigned step);

  /// A number from `least` to `most`, both included.
  [[nodiscard]] int Between(int least, int most);
  /// True in `part` of `whole` cases.
  [[nodiscard]] bool Chance(int part, int whole);
  /// A place in a list of that many entries.
  [[nodiscard]] std::size_t Place(std::size_t count);

  template <typename T>
  [[nodiscard]] const T& OneOf(const std::vector<T>& choices) {
    return choices[Place(choices.size())];
  }

 private:
  std::mt19937 engine_;
};

/// What somebody types into the amount of a row: round and odd numbers, negative ones, many
/// decimals, what just reaches or crosses the ceiling, and texts that are no number.
[[nodiscard]] std::string AnyAmount(Dice& dice, const DeskRow& row);
/// A maximum that payments reach.
[[nodiscard]] std::string AnyMaximum(Dice& dice);

}  // namespace lorvane::model
