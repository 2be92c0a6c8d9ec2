#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Book.h"

namespace lorvane::model {

/// What the files must hold after a line of the script.
struct Checkpoint {
  Book book;
  /// The kind and slot that were just posted; nothing when a company was opened.
  std::optional<Kind> kind;
  IndustrySlot slot = IndustrySlot::kA;
  /// Whether the payment window is in front.
  bool atDesk = false;
};

/// A screen script as it grows, with the places where the files are compared with the book. Lines
/// count from 1.
class Script {
 public:
  void BeginStep(unsigned step) { firstLines_[Count() + 1] = step; }
  void Add(std::string line) { lines_.push_back(std::move(line)); }
  /// Compares after the last line.
  void Check(Checkpoint checkpoint);

  [[nodiscard]] int Count() const { return static_cast<int>(lines_.size()); }
  [[nodiscard]] const Checkpoint* CheckpointAt(int line) const;
  /// The step that a line belongs to; 0 for what stands before the steps.
  [[nodiscard]] unsigned StepOf(int line) const;
  /// The first lines, each with its line break.
  [[nodiscard]] std::string Text(int lines) const;

 private:
  std::vector<std::string> lines_;
  std::map<int, std::unique_ptr<Checkpoint>> checkpoints_;
  std::map<int, unsigned> firstLines_;
};

/// In quotes, as a script writes it. The text holds no quotes of its own.
[[nodiscard]] std::string Quoted(const std::string& text);
/// 1234.5 dollars as 1234.50.
[[nodiscard]] std::string PlainText(Cents cents);
/// 1234.5 dollars as 1,234.50.
[[nodiscard]] std::string MoneyText(Cents cents);

}  // namespace lorvane::model
