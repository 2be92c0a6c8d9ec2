#pragma once

#include <QStringList>
#include <optional>
#include <string>

namespace lorvane {

/// What the program is told to do as soon as its main window is there.
struct StartOrder {
  /// Full path of the data file to open; empty for none.
  std::string company;
  bool newCompany = false;
  bool manual = false;
};

/// Reads the program's arguments, its own name first. Nothing when they are wrong: why has been
/// told on standard error by then. --help and --version print and end the program.
[[nodiscard]] std::optional<StartOrder> ReadStartOrder(const QStringList& arguments);

}  // namespace lorvane
