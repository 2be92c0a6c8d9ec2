#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lorvane {

/// The text of a configuration file of sections and keys. Names compare without regard to case;
/// comments, blank lines and the order of everything are kept. Lines end in CR LF when written.
class IniDocument {
 public:
  IniDocument() = default;
  /// Reads any bytes: lines that make no sense are kept and passed over.
  explicit IniDocument(std::string_view bytes);

  /// The value, without blanks and one pair of quotes around; nothing when key or section is
  /// missing.
  [[nodiscard]] std::optional<std::string> Get(std::string_view section,
                                               std::string_view key) const;
  /// Sets a value. A missing section is added at the end, a missing key at the end of its section.
  /// A key that is there keeps its spelling. A line break in a value becomes a blank: the file
  /// knows one line a key.
  void Set(std::string_view section, std::string_view key, std::string_view value);
  /// The lines of the section in file order, each key and value joined by an equals sign.
  [[nodiscard]] std::vector<std::string> Section(std::string_view section) const;
  [[nodiscard]] std::string Text() const;

 private:
  /// Places in `lines_`: the section's first line after its heading, and one behind its last.
  struct Span {
    std::size_t from;
    std::size_t to;
  };
  [[nodiscard]] std::optional<Span> SpanOf(std::string_view section) const;

  std::vector<std::string> lines_;
};

}  // namespace lorvane
