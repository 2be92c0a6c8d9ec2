#include <filesystem>
#include <iostream>

#include "cli/Commands.h"
#include "data/Backups.h"

namespace lorvane {
namespace {

std::string AbsolutePath(const std::string& path) {
  return std::filesystem::absolute(path).lexically_normal().string();
}

}  // namespace

int RunBackup(const CommandOptions& options) {
  CommandProgram program(options);
  program.OpenFile();
  if (program.IsArchive()) {
    throw CommandFailure("'" + program.File() +
                         "' is the archive of a closed year, which gets no backups: nothing in it "
                         "changes.");
  }
  Session& session = program.GetSession();
  const Backup backup =
      Backups(session.files, program.File()).Make(*session.gDataConn, program.Services().Now());
  std::cout << "Made the backup " << backup.folder << ": " << backup.size << " bytes.\n";
  return 0;
}

int RunBackups(const CommandOptions& options) {
  CommandProgram program(options);
  const std::vector<Backup> backups = Backups(program.GetSession().files, program.File()).List();
  for (const Backup& backup : backups) {
    std::cout << backup.name << "  " << backup.size << " bytes  " << backup.folder << '\n';
  }
  if (backups.empty()) {
    std::cout << "There are no backups of " << program.File() << ".\n";
  }
  return 0;
}

int RunRestore(const std::string& backup, const std::string& folder) {
  CommandProgram program({});
  Session& session = program.GetSession();
  const RestoredCompany company =
      RestoreBackup(*session.gDataConn, session.files, AbsolutePath(backup), AbsolutePath(folder));
  std::cout << "Restored " << company.dataFile << ": " << company.size << " bytes.\n";
  return 0;
}

}  // namespace lorvane
