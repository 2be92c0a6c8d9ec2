#include <iostream>

#include "cli/BooksCheck.h"
#include "cli/Commands.h"
#include "cli/CompanyCheck.h"

namespace lorvane {

int RunCheck(const CommandOptions& options, bool deep) {
  CommandProgram program(options);
  program.GetSession().gDataConn->ReadOnly = true;
  program.OpenFile();
  const CompanyFindings company = CheckCompany(program.GetSession());
  std::vector<std::string> findings = company.sentences;
  if (deep && company.tablesAreWhole) {
    const std::vector<std::string> books = CheckBooks(program.GetSession());
    findings.insert(findings.end(), books.begin(), books.end());
  } else if (deep) {
    findings.emplace_back("The books were not checked: that takes a file whose tables are whole.");
  }
  for (const std::string& finding : findings) {
    std::cout << finding << '\n';
  }
  if (findings.empty()) {
    std::cout << "'" << program.File() << "' is in order: data file, tables, key counters"
              << (deep ? ", configuration file and books.\n" : " and configuration file.\n");
  }
  return findings.empty() ? 0 : 1;
}

}  // namespace lorvane
