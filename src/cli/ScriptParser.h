#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace lorvane {

/// A word of a script's line, without its quotes.
struct ScriptWord {
  std::string text;
  bool quoted = false;

  /// Whether it is this word of the language, not a text in quotes.
  [[nodiscard]] bool Is(std::string_view word) const { return !quoted && text == word; }
};

/// A line of a script: a verb and its words. Never without a verb.
struct ScriptLine {
  /// From 1, as editors count.
  int number = 0;
  std::vector<ScriptWord> words;
};

/// What stands for ${NAME}, by name.
using ScriptVariables = std::map<std::string, std::string, std::less<>>;

/// The lines that hold something, with variables put in. Raises ScriptFailure for a line that
/// isn't well-formed.
[[nodiscard]] std::vector<ScriptLine> ParseScript(std::string_view text,
                                                  const ScriptVariables& variables);

/// The text as a script writes it: in quotes, with its line breaks as \n.
[[nodiscard]] std::string ScriptText(std::string_view text);
/// The text with every CR LF as a single LF, as scripts compare texts.
[[nodiscard]] std::string WithLineFeeds(std::string_view text);

}  // namespace lorvane
