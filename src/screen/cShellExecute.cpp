#include "screen/cShellExecute.h"

#include "basic/RuntimeError.h"

namespace lorvane {
namespace {

constexpr int kLowestSuccess = 33;

}  // namespace

bool cShellExecute::StillExecuting() const {
  return process_ != 0 && services_->IsRunning(process_);
}

bool cShellExecute::Explore(const std::string& folder, int showMode) {
  return Run({"explore", folder, "", "", showMode}, false);
}

bool cShellExecute::LaunchDocument(const std::string& file, const std::string& parameters,
                                   int showMode) {
  return Run({"Open", file, parameters, "", showMode}, true);
}

bool cShellExecute::LaunchEmail(const std::string& address, int showMode) {
  return Run({"", "mailto:" + address, "", "", showMode}, false);
}

bool cShellExecute::LaunchFolder(const std::string& folder, int showMode) {
  return Run({"open", folder, "", "", showMode}, false);
}

bool cShellExecute::LaunchProgram(const std::string& program, const std::string& parameters,
                                  const std::string& folder, int showMode) {
  return Run({"Open", program, parameters, folder, showMode}, true);
}

bool cShellExecute::LaunchURL(const std::string& address, int showMode) {
  return Run({"", address, "", "", showMode}, false);
}

bool cShellExecute::PrintDocument(const std::string& file, int showMode) {
  return Run({"print", file, "", "", showMode}, false);
}

bool cShellExecute::Run(const ShellRequest& request, bool keepProcess) {
  errorCode_ = 0;
  process_ = 0;
  try {
    const ShellResult result = services_->RunShell(request);
    if (keepProcess) {
      process_ = result.process;
    }
    if (result.code < kLowestSuccess) {
      errorCode_ = result.code;
      return false;
    }
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

}  // namespace lorvane
