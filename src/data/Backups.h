#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "basic/Date.h"
#include "data/DataConnection.h"
#include "data/Files.h"

namespace lorvane {

/// A backup: a folder named by date and time that holds the data file and, where the company had
/// one, LorvaneConfig.ini. It is a company of its own that opens like any other.
struct Backup {
  std::string folder;
  /// "2026-01-05_10-00-00"; one of the same second has "-02" and so on behind it.
  std::string name;
  /// Bytes of the data file.
  std::uintmax_t size = 0;
};

/// The backups of a company, in the folder Backup beside its data file.
class Backups {
 public:
  /// How many are kept.
  static constexpr std::size_t kKept = 10;

  /// `dataFile` is the full path of the company's data file, which needn't be there.
  Backups(Files& files, std::string dataFile);

  /// The newest first.
  [[nodiscard]] std::vector<Backup> List() const;

  /// Copies the data file of an open connection, everything written included, and the configuration
  /// file beside it. The copy is compared with the file before it counts as a backup; then the
  /// oldest ones go, down to kKept.
  ///
  /// Raises 61 when the disk wouldn't have `roomToLeave` bytes left, 70 when another program's
  /// backup of the company takes too long, 3704 for a closed connection, and what copying raises;
  /// nothing is left behind then.
  Backup Make(const DataConnection& connection, const DateTime& now,
              std::uintmax_t roomToLeave = 0);

 private:
  void RequireRoom(std::uintmax_t roomToLeave) const;
  void MakeOwnFolder() const;
  void CopyInto(const std::string& folder, const DataConnection& connection) const;
  [[nodiscard]] std::string NewName(const DateTime& now) const;
  [[nodiscard]] bool IsPlain(const std::string& folder) const;
  void RemoveOldest(const std::string& kept) const;
  void RemoveWithFiles(const std::string& folder) const;

  Files& files_;
  std::string dataFile_;
  /// With no separator at the end.
  std::string folder_;
};

/// What RestoreBackup has put into place.
struct RestoredCompany {
  std::string dataFile;
  std::uintmax_t size = 0;
};

/// Puts the company of a backup into a folder, which is made when it is missing. The backup is
/// checked before, and its copy compared with it afterwards.
///
/// `backup` is the backup's folder or the data file in it; `connection` tells how to open it and
/// may be closed. Raises 53 when there is no backup, 58 when the folder holds a company already,
/// and what copying raises; nothing is left behind then.
RestoredCompany RestoreBackup(const DataConnection& connection, Files& files,
                              const std::string& backup, const std::string& folder);

}  // namespace lorvane
