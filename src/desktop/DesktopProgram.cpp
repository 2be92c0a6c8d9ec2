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

void DesktopProgram::Start(const StartOrder& order) {
  DoWhenReady(order);
  gate_.Run([this] { services_->OpenModeless("frmSplash"); });
}

void DesktopProgram::StartWithMainWindow(const StartOrder& order) {
  DoWhenReady(order);
  gate_.Run([this] { services_->OpenModeless("frmMain"); });
}

void DesktopProgram::DoWhenReady(const StartOrder& order) {
  services_->OnMainWindow = [this, order] {
    services_->OnMainWindow = nullptr;
    gate_.Run([this, &order] {
      if (order.manual) {
        services_->ShowHelp();
      }
      if (order.newCompany) {
        services_->OpenModeless("frmCheckList");
      }
      if (!order.company.empty()) {
        services_->OpenCompany(order.company);
      }
    });
  };
}

}  // namespace lorvane
