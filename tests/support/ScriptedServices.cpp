#include "support/ScriptedServices.h"

#include <gtest/gtest.h>

#include <iostream>
#include <ostream>
#include <utility>

#include "cli/BoxButtons.h"
#include "cli/ScriptErrors.h"

namespace lorvane {
namespace {

// Boxes are recorded; printing them too would only hide the test's own output.
Console SilentConsole() {
  static std::ostream nowhere(nullptr);
  return {std::cin, nowhere, nowhere};
}

}  // namespace

ScriptedServices::ScriptedServices(Session& session, const ScreenRegistry& registry, Clock clock)
    : ScriptServices(session, registry, SilentConsole(), std::move(clock), dialogue_,
                     [this](Screen& screen) { WorkInWindow(screen); }) {}

ScriptedServices::~ScriptedServices() {
  for (const ScriptAnswer& left : dialogue_.Answers()) {
    ADD_FAILURE() << "the answer " << left.Written() << " is left over";
  }
  if (!windows_.empty()) {
    ADD_FAILURE() << windows_.size() << " windows were expected and didn't open";
  }
}

int ScriptedServices::MsgBox(const std::string& text, int flags, const std::string& title) {
  try {
    return ScriptServices::MsgBox(text, flags, title);
  } catch (const ScriptFailure& failure) {
    ADD_FAILURE() << failure.message;
    return RefusalOf(flags);
  }
}

std::string ScriptedServices::InputBox(const std::string& prompt, const std::string& title,
                                       const std::string& proposal) {
  try {
    return ScriptServices::InputBox(prompt, title, proposal);
  } catch (const ScriptFailure& failure) {
    ADD_FAILURE() << failure.message;
    return {};
  }
}

std::string ScriptedServices::AskForFile(const FileDialog& dialog) {
  try {
    return ScriptServices::AskForFile(dialog);
  } catch (const ScriptFailure& failure) {
    ADD_FAILURE() << failure.message;
    return {};
  }
}

bool ScriptedServices::OpenScreen(std::string_view name, const ScreenArguments& arguments) {
  try {
    return ScriptServices::OpenScreen(name, arguments);
  } catch (const ScriptFailure& failure) {
    ADD_FAILURE() << failure.message;
    return false;
  }
}

bool ScriptedServices::OpenModeless(std::string_view name) {
  try {
    return ScriptServices::OpenModeless(name);
  } catch (const ScriptFailure& failure) {
    ADD_FAILURE() << failure.message;
    return false;
  }
}

std::string ScriptedServices::Written(const std::optional<ShownBox>& shown) {
  return shown ? WrittenBox(*shown) : std::string();
}

void ScriptedServices::WorkInWindow(Screen& screen) {
  if (windows_.empty()) {
    ADD_FAILURE() << "nothing is to be done in " << screen.Name();
  } else {
    const std::function<void(Screen&)> work = std::move(windows_.front());
    windows_.pop_front();
    work(screen);
  }
  screen.Close();
}

}  // namespace lorvane
