#include "cli/Console.h"

#include <unistd.h>

#include <iostream>

#include "basic/Text.h"

namespace lorvane {

Console StandardConsole() {
  const bool interactive = isatty(STDIN_FILENO) != 0 && isatty(STDERR_FILENO) != 0;
  return {std::cin, std::cout, std::cerr, interactive};
}

std::string OnOneLine(std::string_view text) {
  return Replace(Replace(text, kCrLf, "\n"), "\n", " / ");
}

}  // namespace lorvane
