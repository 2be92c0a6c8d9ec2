#include "cli/ScriptParser.h"

#include <cstddef>
#include <utility>

#include "basic/Text.h"
#include "cli/ScriptErrors.h"

namespace lorvane {
namespace {

constexpr char kQuote = '"';
constexpr char kEscape = '\\';
constexpr char kComment = '#';
constexpr std::string_view kVariable = "${";

bool IsBlank(char character) { return character == ' ' || character == '\t' || character == '\r'; }

class LineParser {
 public:
  LineParser(std::string_view line, const ScriptVariables& variables)
      : line_(line), variables_(&variables) {}

  std::vector<ScriptWord> Words() {
    std::vector<ScriptWord> words;
    while (true) {
      while (!AtEnd() && IsBlank(line_[at_])) {
        ++at_;
      }
      if (AtEnd() || line_[at_] == kComment) {
        return words;
      }
      words.push_back(line_[at_] == kQuote ? QuotedWord() : PlainWord());
      if (!AtEnd() && !IsBlank(line_[at_]) && line_[at_] != kComment) {
        throw ScriptFailure{"a blank is missing between a text in quotes and its neighbour"};
      }
    }
  }

 private:
  [[nodiscard]] bool AtEnd() const { return at_ >= line_.size(); }

  ScriptWord PlainWord() {
    ScriptWord word;
    while (!AtEnd() && !IsBlank(line_[at_]) && line_[at_] != kComment && line_[at_] != kQuote) {
      TakeOne(word.text);
    }
    return word;
  }

  ScriptWord QuotedWord() {
    ScriptWord word{"", true};
    for (++at_; !AtEnd();) {
      if (line_[at_] == kQuote) {
        ++at_;
        return word;
      }
      if (line_[at_] == kEscape) {
        ++at_;
        word.text += Escaped();
      } else {
        TakeOne(word.text);
      }
    }
    throw ScriptFailure{"a text has no quote at its end"};
  }

  char Escaped() {
    const char character = AtEnd() ? '\0' : line_[at_++];
    switch (character) {
      case 'n':
        return '\n';
      case kQuote:
      case kEscape:
        return character;
      default:
        throw ScriptFailure{"\\ stands only before n, \" and \\"};
    }
  }

  // One character, or a variable's value as it stands.
  void TakeOne(std::string& text) {
    if (line_.substr(at_, kVariable.size()) != kVariable) {
      text += line_[at_++];
      return;
    }
    const std::size_t begin = at_ + kVariable.size();
    const std::size_t end = line_.find('}', begin);
    if (end == std::string_view::npos) {
      throw ScriptFailure{"${ has no } behind it"};
    }
    const std::string_view name = line_.substr(begin, end - begin);
    const auto found = variables_->find(name);
    if (found == variables_->end()) {
      throw ScriptFailure{"nothing is set for ${" + std::string(name) + "}"};
    }
    text += found->second;
    at_ = end + 1;
  }

  std::string_view line_;
  const ScriptVariables* variables_;
  std::size_t at_ = 0;
};

}  // namespace

std::vector<ScriptLine> ParseScript(std::string_view text, const ScriptVariables& variables) {
  std::vector<ScriptLine> lines;
  int number = 0;
  for (const std::string& line : Split(text, '\n')) {
    ++number;
    try {
      std::vector<ScriptWord> words = LineParser(line, variables).Words();
      if (!words.empty()) {
        lines.push_back({number, std::move(words)});
      }
    } catch (ScriptFailure& failure) {
      failure.line = number;
      throw;
    }
  }
  return lines;
}

std::string ScriptText(std::string_view text) {
  std::string written = Replace(WithLineFeeds(text), "\\", "\\\\");
  written = Replace(Replace(written, "\"", "\\\""), "\n", "\\n");
  return kQuote + written + kQuote;
}

std::string WithLineFeeds(std::string_view text) { return Replace(text, kCrLf, "\n"); }

}  // namespace lorvane
