#include "cli/ScriptServices.h"

#include <utility>

#include "cli/ScriptErrors.h"

namespace lorvane {

ScriptServices::ScriptServices(Session& session, const ScreenRegistry& registry, Console console,
                               Clock clock, ScriptDialogue& dialogue, ModalWork modalWork)
    : CommandLineServices(session, registry, console, std::move(clock)),
      dialogue_(&dialogue),
      modalWork_(std::move(modalWork)) {}

int ScriptServices::MsgBox(const std::string& text, int flags, const std::string& title) {
  PrintBox(title, text);
  return dialogue_->ShowBox(title, text, flags);
}

std::string ScriptServices::InputBox(const std::string& prompt, const std::string& title,
                                     const std::string& proposal) {
  return dialogue_->ShowInput(title, prompt, proposal);
}

std::string ScriptServices::AskForFile(const FileDialog& dialog) {
  return dialogue_->ShowFileDialog(dialog);
}

bool ScriptServices::OpenScreen(std::string_view name, const ScreenArguments& arguments) {
  if (!CommandLineServices::OpenScreen(name, arguments)) {
    throw ScriptFailure{"there is no screen " + std::string(name)};
  }
  return true;
}

bool ScriptServices::OpenModeless(std::string_view name) {
  if (!CommandLineServices::OpenModeless(name)) {
    throw ScriptFailure{"there is no screen " + std::string(name)};
  }
  return true;
}

}  // namespace lorvane
