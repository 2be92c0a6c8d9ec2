#include <iostream>

#include "cli/Commands.h"
#include "cli/CompanyCheck.h"

namespace lorvane {

int RunCheck(const CommandOptions& options) {
  CommandProgram program(options);
  program.OpenFile();
  const std::vector<std::string> findings = CheckCompany(program.GetSession());
  for (const std::string& finding : findings) {
    std::cout << finding << '\n';
  }
  if (findings.empty()) {
    std::cout << "'" << program.File()
              << "' is in order: data file, tables, key counters and configuration file.\n";
  }
  return findings.empty() ? 0 : 1;
}

}  // namespace lorvane
