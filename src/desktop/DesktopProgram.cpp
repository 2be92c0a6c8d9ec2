#include "desktop/DesktopProgram.h"

#include <utility>

#include "shell/modLorvane.h"

namespace lorvane {

DesktopProgram::DesktopProgram(Clock clock, ScreenGate::EndHandler onEnd)
    : engine_(MakeFileEngine()),
      screens_(AllScreens()),
      session_(Main({engine_.get(), ProgramFolder(), clock}, files_)),
      gate_([this](const RuntimeError& error) { EndOnUnhandledError(services_->Context(), error); },
            std::move(onEnd)),
      services_(std::make_unique<QtServices>(*session_, screens_, gate_, std::move(clock))) {}

DesktopProgram::~DesktopProgram() { session_->gDataConn->DataClose(); }

void DesktopProgram::Start() {
  gate_.Run([this] { services_->OpenModeless("frmSplash"); });
}

void DesktopProgram::StartWithMainWindow() {
  gate_.Run([this] { services_->OpenModeless("frmMain"); });
}

}  // namespace lorvane
