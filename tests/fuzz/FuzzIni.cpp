// Whatever a configuration file holds, a value that is set is there afterwards and every other one
// is as before. The input's first lines are section, key and value; the rest is the file.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "basic/Text.h"
#include "data/IniDocument.h"

namespace lorvane {
namespace {

std::string TakeLine(std::string_view& text) {
  const std::size_t end = text.find('\n');
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  return ToUtf8(line);
}

// What could be a heading, a comment or a part of one is no name.
bool IsName(const std::string& name) {
  return !name.empty() && name.find_first_of("[]=;\r\n\t ") == std::string::npos;
}

void Require(bool holds) {
  if (!holds) {
    std::abort();
  }
}

void Try(std::string_view input) {
  const std::string section = TakeLine(input);
  const std::string key = TakeLine(input);
  const std::string value = TakeLine(input);
  IniDocument document(input);
  const std::optional<std::string> other = document.Get("Assessment", "LastEntry");
  static_cast<void>(document.Section(section));
  Require(IniDocument(document.Text()).Text() == document.Text());
  if (!IsName(section) || !IsName(key)) {
    return;
  }
  document.Set(section, key, value);
  IniDocument again(document.Text());
  Require(again.Text() == document.Text());
  Require(again.Get(section, key) == document.Get(section, key));
  Require(again.Get(section, key).has_value());
  if (!EqualsNoCase(key, "LastEntry")) {
    Require(again.Get("Assessment", "LastEntry") == other);
  }
}

}  // namespace
}  // namespace lorvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  lorvane::Try({reinterpret_cast<const char*>(data), size});
  return 0;
}
