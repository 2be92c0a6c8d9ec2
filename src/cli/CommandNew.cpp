#include <iostream>

#include "basic/Text.h"
#include "cli/Commands.h"
#include "company/modNewCompany.h"

namespace lorvane {

int RunNew(const CommandOptions& options) {
  CommandProgram program(options);
  program.RequireFileName();
  Session& session = program.GetSession();
  if (HoldsCompany(session.files, program.File())) {
    throw CommandFailure("'" + GetPathPart(program.File()) +
                         "' holds a company already: each new company needs its own folder.");
  }
  if (!MakeCompanyFiles(program.Context(), program.File()) ||
      !OpenNewCompany(program.Context(), program.File())) {
    return 1;
  }
  std::cout << "Made " << program.File() << " and LorvaneConfig.ini.\n";
  return 0;
}

}  // namespace lorvane
