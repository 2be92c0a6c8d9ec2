#include "PictureScripts.h"

#include <fmt/format.h>

#include <charconv>
#include <fstream>
#include <optional>
#include <sstream>
#include <utility>

#include "basic/RuntimeError.h"
#include "basic/Text.h"

namespace lorvane {
namespace {

constexpr std::string_view kPageEnding = ".md";

bool BeginsWith(std::string_view text, std::string_view beginning) {
  return text.substr(0, beginning.size()) == beginning;
}

std::vector<std::string> WordsOf(std::string_view line) {
  std::istringstream stream{std::string(line)};
  std::vector<std::string> words;
  for (std::string word; stream >> word;) {
    words.push_back(word);
  }
  return words;
}

std::optional<int> NumberOf(const std::string& word) {
  int number = 0;
  const char* end = word.data() + word.size();
  const auto [rest, error] = std::from_chars(word.data(), end, number);
  return error == std::errc() && rest == end && number > 0 ? std::optional(number) : std::nullopt;
}

// Nothing for a comment that asks for no picture.
std::optional<WantedPicture> WantedBy(const std::vector<std::string>& words) {
  using Kind = WantedPicture::Kind;
  constexpr std::size_t kOfScreen = 5;
  if (words.size() == kOfScreen - 2 && words[1] == "picture") {
    return WantedPicture{Kind::kWindow, words[2], {}};
  }
  if (words.size() == kOfScreen && words[1] == "picture" && words[3] == "of") {
    const bool manual = words[4] == "manual";
    return WantedPicture{manual ? Kind::kManual : Kind::kWindow, words[2],
                         manual ? std::string() : words[4]};
  }
  if (words.size() == kOfScreen - 1 && words[1] == "page") {
    if (const std::optional<int> page = NumberOf(words[3])) {
      return WantedPicture{Kind::kPage, words[2], {}, *page};
    }
  }
  return std::nullopt;
}

std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  if (!file) {
    throw RuntimeError(error_number::kFileNotFound, path + " can't be read.");
  }
  return text.str();
}

}  // namespace

PictureScript ReadPictureScript(std::string name, std::string text) {
  PictureScript script{std::move(name), std::move(text), {}};
  int number = 0;
  int carriedOut = 0;
  for (const std::string& line : Split(script.text, '\n')) {
    ++number;
    const std::vector<std::string> words = WordsOf(line);
    if (words.empty()) {
      continue;
    }
    if (!BeginsWith(words[0], "#")) {
      carriedOut = number;
    } else if (BeginsWith(line, "# picture ") || BeginsWith(line, "# page ")) {
      const std::optional<WantedPicture> wanted = WantedBy(words);
      if (!wanted || carriedOut == 0) {
        throw RuntimeError(error_number::kInternalError,
                           script.name + ":" + std::to_string(number) + ": no picture: " + line);
      }
      script.pictures[carriedOut].push_back(*wanted);
    }
  }
  return script;
}

std::vector<PictureScript> ReadPictureScripts(const std::string& path) {
  const std::string text = ReadFile(path);
  if (path.size() < kPageEnding.size() ||
      path.substr(path.size() - kPageEnding.size()) != kPageEnding) {
    return {ReadPictureScript(path, text)};
  }
  std::vector<PictureScript> scripts;
  std::optional<std::string> block;
  std::string name;
  bool begins = false;
  for (const std::string& line : Split(text, '\n')) {
    if (BeginsWith(line, "```")) {
      if (block && !name.empty()) {
        scripts.push_back(ReadPictureScript(fmt::format("{}, {}", path, name), *block));
      }
      begins = !block && line == "```text";
      block = block || !begins ? std::nullopt : std::optional<std::string>(std::in_place);
      name.clear();
    } else if (block) {
      if (begins && BeginsWith(line, "# ")) {
        name = line.substr(2);
      }
      begins = false;
      block->append(line).append("\n");
    }
  }
  return scripts;
}

}  // namespace lorvane
