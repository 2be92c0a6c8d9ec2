#include "Script.h"

#include <cstdlib>
#include <iterator>
#include <utility>

namespace lorvane::model {

void Script::Check(Checkpoint checkpoint) {
  checkpoints_[Count()] = std::make_unique<Checkpoint>(std::move(checkpoint));
}

const Checkpoint* Script::CheckpointAt(int line) const {
  const auto found = checkpoints_.find(line);
  return found == checkpoints_.end() ? nullptr : found->second.get();
}

unsigned Script::StepOf(int line) const {
  const auto after = firstLines_.upper_bound(line);
  return after == firstLines_.begin() ? 0 : std::prev(after)->second;
}

std::string Script::Text(int lines) const {
  std::string text;
  for (int line = 0; line < lines; ++line) {
    text += lines_[static_cast<std::size_t>(line)] + "\n";
  }
  return text;
}

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

std::string PlainText(Cents cents) {
  constexpr Cents kOfDollar = 100;
  const Cents magnitude = std::abs(cents);
  return (cents < 0 ? "-" : "") + std::to_string(magnitude / kOfDollar) + "." +
         std::to_string(kOfDollar + magnitude % kOfDollar).substr(1);
}

std::string MoneyText(Cents cents) {
  constexpr std::size_t kGroup = 3;
  const std::size_t sign = cents < 0 ? 1 : 0;
  std::string text = PlainText(cents);
  for (std::size_t at = text.find('.'); at > sign + kGroup;) {
    at -= kGroup;
    text.insert(at, ",");
  }
  return text;
}

}  // namespace lorvane::model
