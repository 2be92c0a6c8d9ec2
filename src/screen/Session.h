#pragma once

#include <functional>
#include <memory>
#include <string>

#include "basic/Date.h"
#include "data/DataConnection.h"
#include "data/Files.h"
#include "data/cINI.h"

namespace lorvane {

/// The three text panels of the main window's status bar.
struct StatusPanels {
  std::string Msg;
  std::string Assessment;
  std::string Form;
  /// Called after a text has changed.
  std::function<void()> OnChanged;
};

/// The state of a run of the program: one connection, the path of the open company's configuration
/// file, and the posting date. Everything else is in the tables and in that file.
class Session {
 public:
  /// The posting date that means that none was chosen.
  static constexpr DateTime kNoPostingDate{1899, 12, 31};

  Session(DataEnvironment environment, Files& files);

  /// The connection that every screen and record borrows. One at a time.
  std::unique_ptr<DataConnection> gDataConn;
  /// Full path of the open company's configuration file; empty until a company is open.
  std::string gConfigFile;
  DateTime PostingDate = kNoPostingDate;

  StatusPanels status;
  Files& files;
  /// The folder of the program itself, with no separator at its end.
  std::string programFolder;

  /// A reader and writer of the open company's configuration file.
  [[nodiscard]] cINI Ini() const { return {files, gConfigFile}; }
};

}  // namespace lorvane
