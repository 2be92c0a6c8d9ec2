#pragma once

#include <deque>
#include <functional>
#include <string>

#include "cli/ScriptServices.h"

namespace lorvane {

/// The way out of a screen for tests. Every box is recorded; questions take the answers that were
/// given beforehand, which must be among the buttons offered; modal screens are worked on by the
/// operations given for them; the clock stands. What goes wrong fails the running test: a question
/// with no answer, a window with nothing to do, and at the end an answer or an operation that
/// wasn't used.
class ScriptedServices : public ScriptServices {
 public:
  static constexpr DateTime kNow{2026, 1, 5, 10, 0, 0};

  ScriptedServices(Session& session, const ScreenRegistry& registry,
                   Clock clock = FixedClock(kNow));
  ~ScriptedServices() override;

  /// The next question's answer, in turn.
  void Answer(ScriptAnswer::Kind button) { dialogue_.Answer({button, ""}); }
  void Answer(const std::string& text) { dialogue_.Answer({ScriptAnswer::Kind::kText, text}); }
  /// What is done in the next modal screen, in turn. The screen is closed afterwards unless it was.
  void InWindow(std::function<void(Screen&)> work) { windows_.push_back(std::move(work)); }

  /// The oldest message box not asked for before, as `"title" "text"` with line breaks as \n; empty
  /// when there is none left. NextInput tells the same of input boxes and file dialogs.
  [[nodiscard]] std::string NextBox() { return Written(dialogue_.TakeBox()); }
  [[nodiscard]] std::string NextInput() { return Written(dialogue_.TakeInput()); }

  int MsgBox(const std::string& text, int flags, const std::string& title) override;
  [[nodiscard]] std::string InputBox(const std::string& prompt, const std::string& title,
                                     const std::string& proposal) override;
  [[nodiscard]] std::string AskForFile(const FileDialog& dialog) override;
  bool OpenScreen(std::string_view name, const ScreenArguments& arguments) override;
  bool OpenModeless(std::string_view name) override;

 private:
  static std::string Written(const std::optional<ShownBox>& shown);
  void WorkInWindow(Screen& screen);

  ScriptDialogue dialogue_;
  std::deque<std::function<void(Screen&)>> windows_;
};

}  // namespace lorvane
