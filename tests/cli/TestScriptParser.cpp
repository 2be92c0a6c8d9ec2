#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cli/ScriptErrors.h"
#include "cli/ScriptParser.h"

namespace lorvane {
namespace {

const ScriptVariables kVariables{{"DIR", "C:\\my \"new\" books"}, {"EMPTY", ""}};

std::vector<std::string> TextsOf(std::string_view line) {
  std::vector<std::string> texts;
  for (const ScriptLine& parsed : ParseScript(line, kVariables)) {
    for (const ScriptWord& word : parsed.words) {
      texts.push_back(word.text);
    }
  }
  return texts;
}

TEST(ScriptParser, WordsTextsEscapesCommentsAndVariables) {
  using Texts = std::vector<std::string>;
  EXPECT_EQ(TextsOf("type txtName \"a \\\"b\\\" \\\\c\\nd # e\"\r\n"),
            (Texts{"type", "txtName", "a \"b\" \\c\nd # e"}));
  EXPECT_EQ(TextsOf("\n  # a comment\n\tclick cmdOK# and another"), (Texts{"click", "cmdOK"}));
  EXPECT_EQ(TextsOf("type x \"\""), (Texts{"type", "x", ""}));
  // A value stands as it is: its quotes and backslashes mean nothing.
  EXPECT_EQ(TextsOf("open \"${DIR}/Data.mdb\""), (Texts{"open", "C:\\my \"new\" books/Data.mdb"}));
  EXPECT_EQ(TextsOf("open ${EMPTY}${DIR}"), (Texts{"open", "C:\\my \"new\" books"}));
  EXPECT_EQ(TextsOf("expect x \"$##,0.00 {é}\""), (Texts{"expect", "x", "$##,0.00 {é}"}));
}

TEST(ScriptParser, RemembersLinesAndQuotes) {
  const std::vector<ScriptLine> lines = ParseScript("\n\nanswer \"yes\"\n#\nanswer yes", {});
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].number, 3);
  EXPECT_FALSE(lines[0].words[1].Is("yes"));
  EXPECT_EQ(lines[1].number, 5);
  EXPECT_TRUE(lines[1].words[1].Is("yes"));
}

TEST(ScriptParser, RefusesMalformedLinesByNumber) {
  for (const char* line : {"type x \"abc", "type x \"a\\", "type x \"a\\tb\"", "type x \"a\"b",
                           "type x\"a\"", "open ${NOPE}", "open \"${DIR\""}) {
    try {
      static_cast<void>(ParseScript("close\n" + std::string(line), kVariables));
      ADD_FAILURE() << line;
    } catch (const ScriptFailure& failure) {
      EXPECT_EQ(failure.line, 2) << line;
      EXPECT_FALSE(failure.message.empty());
    }
  }
}

TEST(ScriptParser, WrittenTextReadsBack) {
  const std::string text = "say \"\\n\"\r\nthen \\ go";
  EXPECT_EQ(TextsOf("print " + ScriptText(text)).at(1), WithLineFeeds(text));
}

}  // namespace
}  // namespace lorvane
