#include <iostream>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "cli/Commands.h"
#include "company/modNewCompany.h"

namespace lorvane {

int RunNew(const CommandOptions& options) {
  CommandProgram program(options);
  Session& session = program.GetSession();
  const std::string configFile = GetPathPart(program.File()) + "LorvaneConfig.ini";
  if (session.files.Exists(FindWithoutCase(configFile))) {
    throw CommandFailure("'" + GetPathPart(program.File()) +
                         "' holds a company already: each new company needs its own folder.");
  }
  if (!CopyTemplateDatabase(program.Context(), program.File())) {
    return 1;
  }
  CreateConfigFile(program.Context(), program.File());
  if (!session.files.Exists(configFile)) {
    session.files.Remove(program.File());
    throw CommandFailure("'" + configFile + "' can't be written.");
  }
  program.OpenCompany();
  std::cout << "Made " << program.File() << " and LorvaneConfig.ini.\n";
  return 0;
}

}  // namespace lorvane
