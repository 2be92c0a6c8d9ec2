#include "OpenCompany.h"

#include <iostream>
#include <ostream>
#include <stdexcept>

#include "basic/Text.h"
#include "company/modNewCompany.h"
#include "shell/modLorvane.h"

namespace lorvane {
namespace {

constexpr DateTime kNow{2026, 1, 5, 10, 0, 0};

Console SilentConsole() {
  static std::ostream nowhere(nullptr);
  return {std::cin, nowhere, nowhere};
}

}  // namespace

OpenCompany::OpenCompany()
    : engine_(MakeFileEngine()),
      files_(std::make_unique<DiskFiles>()),
      screens_(std::make_unique<ScreenRegistry>(AllScreens())),
      session_(Main({engine_.get(), ProgramFolder(), FixedClock(kNow)}, *files_)),
      services_(std::make_unique<CommandLineServices>(*session_, *screens_, SilentConsole(),
                                                      FixedClock(kNow), true)) {}

OpenCompany::OpenCompany(const std::string& dataFile) : OpenCompany() { Open(dataFile); }

OpenCompany OpenCompany::New(const std::string& dataFile) {
  OpenCompany company;
  if (!CopyTemplateDatabase(company.Context(), dataFile)) {
    throw std::runtime_error(dataFile + " can't be made.");
  }
  CreateConfigFile(company.Context(), dataFile);
  company.Open(dataFile);
  return company;
}

void OpenCompany::Open(const std::string& dataFile) {
  session_->gDataConn->DataSource = dataFile;
  session_->gConfigFile = GetPathPart(dataFile) + "LorvaneConfig.ini";
  if (!session_->gDataConn->DataOpen()) {
    throw std::runtime_error(session_->gDataConn->ErrorHandler());
  }
}

}  // namespace lorvane
