#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "screen/ScreenServices.h"

namespace lorvane {

/// An answer that waits for a question: a button, or a text for an input box or file dialog.
struct ScriptAnswer {
  enum class Kind { kYes, kNo, kCancel, kOk, kText };

  Kind kind = Kind::kOk;
  std::string text;
  /// The script's line that gave it; 0 when it comes from elsewhere.
  int line = 0;

  /// As a script writes it: yes, no, cancel, ok or a text in quotes.
  [[nodiscard]] std::string Written() const;
};

/// A message box that was shown; or an input box or file dialog, with its prompt or filter as text.
struct ShownBox {
  std::string title;
  std::string text;
  int flags = box::kPlain;
};

/// What screens said and asked in the order of showing, and the answers that wait for their
/// questions. It lives on when the program starts afresh.
class ScriptDialogue {
 public:
  void Answer(ScriptAnswer given) { answers_.push_back(std::move(given)); }
  /// The next file dialog gets this path, ahead of the answers, and isn't recorded.
  void AnswerNextFile(std::string path) { nextFile_ = std::move(path); }
  /// Drops that path; true when no dialog has taken it.
  bool DropNextFile();

  // Each records what is shown and gives its answer. Raises ScriptFailure when no answer waits, or
  // one that can't be given there. A box that asks nothing takes no answer.
  int ShowBox(const std::string& title, const std::string& text, int flags);
  std::string ShowInput(const std::string& title, const std::string& prompt,
                        const std::string& proposal);
  std::string ShowFileDialog(const FileDialog& dialog);

  /// The oldest one that wasn't taken before; nothing when there is none left.
  std::optional<ShownBox> TakeBox() { return Take(boxes_, boxesTaken_); }
  std::optional<ShownBox> TakeInput() { return Take(inputs_, inputsTaken_); }

  [[nodiscard]] const std::vector<ShownBox>& Boxes() const { return boxes_; }
  [[nodiscard]] const std::vector<ShownBox>& Inputs() const { return inputs_; }
  /// The answers that no question has taken.
  [[nodiscard]] const std::deque<ScriptAnswer>& Answers() const { return answers_; }

 private:
  static std::optional<ShownBox> Take(const std::vector<ShownBox>& shown, std::size_t& taken);
  [[nodiscard]] ScriptAnswer TakeAnswer(const ShownBox& question);
  [[nodiscard]] std::string TakeText(const ShownBox& question, const std::string& proposal);

  std::deque<ScriptAnswer> answers_;
  std::optional<std::string> nextFile_;
  std::vector<ShownBox> boxes_;
  std::vector<ShownBox> inputs_;
  std::size_t boxesTaken_ = 0;
  std::size_t inputsTaken_ = 0;
};

/// Title and text as a script writes them.
[[nodiscard]] std::string WrittenBox(const ShownBox& shown);

}  // namespace lorvane
