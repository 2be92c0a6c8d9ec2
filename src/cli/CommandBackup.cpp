#include <filesystem>
#include <iostream>
#include <system_error>

#include "basic/Text.h"
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "data/Backups.h"

namespace lorvane {
namespace {

namespace fs = std::filesystem;

// A folder that isn't there holds no backups; one that can't be read may hold some.
void RequireReadable(const std::string& folder) {
  std::error_code error;
  const fs::directory_iterator entries(folder, error);
  if (error && error != std::errc::no_such_file_or_directory) {
    throw CommandFailure("'" + folder + "' can't be read: " + error.message() + ".");
  }
}

// A company's folder and the one of its backups look much like a backup's.
void RequireNoFolders(const std::string& backup) {
  std::error_code ignored;
  for (const fs::directory_entry& entry : fs::directory_iterator(backup, ignored)) {
    if (entry.is_directory(ignored)) {
      throw CommandFailure("'" + backup +
                           "' is no backup: it holds other folders. Name the folder of one backup; "
                           "'lorvane-cli backups FILE' lists them.");
    }
  }
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
  program.RequireFileName();
  RequireReadable(GetPathPart(program.File()) + "Backup");
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
  const std::string source = AbsolutePath(backup);
  RequireNoFolders(source);
  const RestoredCompany company =
      RestoreBackup(*session.gDataConn, session.files, source, AbsolutePath(folder));
  std::cout << "Restored " << company.dataFile << ": " << company.size << " bytes.\n";
  return 0;
}

}  // namespace lorvane
