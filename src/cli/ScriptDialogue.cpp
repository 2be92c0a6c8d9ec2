#include "cli/ScriptDialogue.h"

#include <utility>

#include "cli/BoxButtons.h"
#include "cli/ScriptErrors.h"
#include "cli/ScriptParser.h"

namespace lorvane {
namespace {

// The button that an answer presses; nothing for a text.
std::optional<int> ButtonOf(ScriptAnswer::Kind kind) {
  switch (kind) {
    case ScriptAnswer::Kind::kYes:
      return answer::kYes;
    case ScriptAnswer::Kind::kNo:
      return answer::kNo;
    case ScriptAnswer::Kind::kCancel:
      return answer::kCancel;
    case ScriptAnswer::Kind::kOk:
      return answer::kOk;
    case ScriptAnswer::Kind::kText:
      break;
  }
  return std::nullopt;
}

[[noreturn]] void Refuse(const ShownBox& question, const ScriptAnswer& given) {
  throw ScriptFailure{WrittenBox(question) + " can't be answered with " + given.Written()};
}

}  // namespace

std::string ScriptAnswer::Written() const {
  switch (kind) {
    case Kind::kYes:
      return "yes";
    case Kind::kNo:
      return "no";
    case Kind::kCancel:
      return "cancel";
    case Kind::kOk:
      return "ok";
    case Kind::kText:
      break;
  }
  return ScriptText(text);
}

bool ScriptDialogue::DropNextFile() { return std::exchange(nextFile_, std::nullopt).has_value(); }

int ScriptDialogue::ShowBox(const std::string& title, const std::string& text, int flags) {
  boxes_.push_back({title, text, flags});
  if (!box::IsQuestion(flags)) {
    return answer::kOk;
  }
  const ShownBox question = boxes_.back();
  const ScriptAnswer given = TakeAnswer(question);
  const std::optional<int> button = ButtonOf(given.kind);
  if (!button || !OffersButton(flags, *button)) {
    Refuse(question, given);
  }
  return *button;
}

std::string ScriptDialogue::ShowInput(const std::string& title, const std::string& prompt,
                                      const std::string& proposal) {
  inputs_.push_back({title, prompt});
  return TakeText(inputs_.back(), proposal);
}

std::string ScriptDialogue::ShowFileDialog(const FileDialog& dialog) {
  if (nextFile_) {
    std::string path = std::move(*nextFile_);
    nextFile_.reset();
    return path;
  }
  inputs_.push_back({dialog.title, dialog.filter});
  return TakeText(inputs_.back(), dialog.start);
}

std::optional<ShownBox> ScriptDialogue::Take(const std::vector<ShownBox>& shown,
                                             std::size_t& taken) {
  if (taken == shown.size()) {
    return std::nullopt;
  }
  return shown[taken++];
}

ScriptAnswer ScriptDialogue::TakeAnswer(const ShownBox& question) {
  if (answers_.empty()) {
    throw ScriptFailure{"no answer is left for " + WrittenBox(question)};
  }
  ScriptAnswer given = std::move(answers_.front());
  answers_.pop_front();
  return given;
}

std::string ScriptDialogue::TakeText(const ShownBox& question, const std::string& proposal) {
  const ScriptAnswer given = TakeAnswer(question);
  switch (given.kind) {
    case ScriptAnswer::Kind::kText:
      return given.text;
    case ScriptAnswer::Kind::kOk:
      return proposal;
    case ScriptAnswer::Kind::kCancel:
      return {};
    default:
      Refuse(question, given);
  }
}

std::string WrittenBox(const ShownBox& shown) {
  return ScriptText(shown.title) + " " + ScriptText(shown.text);
}

}  // namespace lorvane
