#pragma once

#include <functional>
#include <string>

#include "cli/CommandLineServices.h"
#include "cli/ScriptDialogue.h"

namespace lorvane {

/// The way out of a screen for scripts and tests: what is shown is recorded, questions take the
/// answers that wait, and modal screens are worked on by the given operation.
class ScriptServices : public CommandLineServices {
 public:
  /// Works on a modal screen until it is closed.
  using ModalWork = std::function<void(Screen&)>;

  ScriptServices(Session& session, const ScreenRegistry& registry, Console console, Clock clock,
                 ScriptDialogue& dialogue, ModalWork modalWork);

  int MsgBox(const std::string& text, int flags, const std::string& title) override;
  [[nodiscard]] std::string InputBox(const std::string& prompt, const std::string& title,
                                     const std::string& proposal) override;
  [[nodiscard]] std::string AskForFile(const FileDialog& dialog) override;
  /// Raises ScriptFailure when there is no screen of that name.
  bool OpenScreen(std::string_view name, const ScreenArguments& arguments) override;
  /// Raises ScriptFailure when there is no screen of that name.
  bool OpenModeless(std::string_view name) override;

 protected:
  void RunModal(Screen& screen) override { modalWork_(screen); }

 private:
  ScriptDialogue* dialogue_;
  ModalWork modalWork_;
};

}  // namespace lorvane
