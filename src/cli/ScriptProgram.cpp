#include "cli/ScriptProgram.h"

#include <utility>

#include "cli/ScriptErrors.h"

namespace lorvane {

ScriptProgram::ScriptProgram(const ScriptStage& stage, Console console, Clock clock,
                             ScriptDialogue& dialogue, ScriptServices::ModalWork modalWork)
    : session_(stage.makeSession()),
      services_(*session_, stage.screens, console, std::move(clock), dialogue,
                std::move(modalWork)),
      mainScreen_(stage.screens.Make(kMainScreen, services_.Context())) {
  services_.SetPainter(stage.painter);
  if (mainScreen_ == nullptr) {
    throw ScriptFailure{"there is no screen " + std::string(kMainScreen)};
  }
}

ScriptProgram::~ScriptProgram() {
  mainScreen_.reset();
  if (session_->gDataConn != nullptr) {
    session_->gDataConn->DataClose();
  }
}

void ScriptProgram::Start() { services_.Show(*mainScreen_); }

Screen& ScriptProgram::ActiveScreen() {
  Screen* active = services_.ActiveScreen();
  return active != nullptr ? *active : *mainScreen_;
}

Control& ScriptProgram::Find(std::string_view name) {
  Screen& active = ActiveScreen();
  Control* control = active.Find(name);
  if (control == nullptr) {
    throw ScriptFailure{"there is no " + std::string(name) + " on " + active.Name()};
  }
  return *control;
}

}  // namespace lorvane
