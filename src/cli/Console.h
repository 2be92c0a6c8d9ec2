#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

namespace lorvane {

/// Where the command line talks to its user. The streams outlive it.
struct Console {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  /// Whether somebody sits there who can be asked.
  bool interactive = false;
};

/// The console of the process.
[[nodiscard]] Console StandardConsole();

/// A text for one line of output, its line breaks as " / ".
[[nodiscard]] std::string OnOneLine(std::string_view text);

}  // namespace lorvane
