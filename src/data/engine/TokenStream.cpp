#include "data/engine/TokenStream.h"

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <utility>

#include "basic/Text.h"
#include "data/engine/Names.h"

namespace lorvane::sql {
namespace {

constexpr std::size_t kLongestWord = 8;
constexpr std::size_t kLongestExcerpt = 40;

struct WordName {
  std::string_view name;
  Word word;
};

constexpr std::array<WordName, 34> kWords{{
    {"select", Word::kSelect}, {"from", Word::kFrom},     {"where", Word::kWhere},
    {"group", Word::kGroup},   {"having", Word::kHaving}, {"order", Word::kOrder},
    {"by", Word::kBy},         {"as", Word::kAs},         {"and", Word::kAnd},
    {"or", Word::kOr},         {"not", Word::kNot},       {"is", Word::kIs},
    {"like", Word::kLike},     {"in", Word::kIn},         {"between", Word::kBetween},
    {"null", Word::kNull},     {"true", Word::kTrue},     {"false", Word::kFalse},
    {"yes", Word::kYes},       {"no", Word::kNo},         {"into", Word::kInto},
    {"values", Word::kValues}, {"set", Word::kSet},       {"distinct", Word::kDistinct},
    {"top", Word::kTop},       {"asc", Word::kAsc},       {"desc", Word::kDesc},
    {"insert", Word::kInsert}, {"update", Word::kUpdate}, {"delete", Word::kDelete},
    {"alter", Word::kAlter},   {"table", Word::kTable},   {"add", Word::kAdd},
    {"column", Word::kColumn},
}};

// Every name of a statement comes by here, so most are told from a word by their first letter.
constexpr std::size_t kLetters = 26;
constexpr std::size_t kWordsOfALetter = 5;
using WordsByLetter = std::array<std::array<WordName, kWordsOfALetter>, kLetters>;

constexpr WordsByLetter MakeWordsByLetter() {
  WordsByLetter words{};
  for (const WordName& entry : kWords) {
    std::size_t slot = 0;
    auto& ofLetter = words[static_cast<std::size_t>(entry.name.front() - 'a')];
    while (!ofLetter[slot].name.empty()) {
      ++slot;
    }
    ofLetter[slot] = entry;
  }
  return words;
}

constexpr WordsByLetter kWordsByLetter = MakeWordsByLetter();

Word WordOf(const Token& token) {
  if (token.kind != TokenKind::kName || token.text.size() > kLongestWord) {
    return Word::kNone;
  }
  const char first = FoldName(token.text.front());
  if (first < 'a' || first > 'z') {
    return Word::kNone;
  }
  for (const WordName& entry : kWordsByLetter[static_cast<std::size_t>(first - 'a')]) {
    if (SameName(entry.name, token.text)) {
      return entry.word;
    }
  }
  return Word::kNone;
}

}  // namespace

void TokenStream::Advance() {
  current_ = lexer_.Next();
  word_ = WordOf(current_);
}

bool TokenStream::Accept(Word word) {
  if (word_ != word) {
    return false;
  }
  Advance();
  return true;
}

bool TokenStream::Accept(char symbol) {
  if (!Is(symbol)) {
    return false;
  }
  Advance();
  return true;
}

void TokenStream::Expect(Word word) {
  if (!Accept(word)) {
    FailHere();
  }
}

void TokenStream::Expect(char symbol) {
  if (!Accept(symbol)) {
    FailHere();
  }
}

std::string_view TokenStream::TakeName() {
  if (!IsName()) {
    FailHere();
  }
  const std::string_view name = current_.text;
  Advance();
  return name;
}

int TokenStream::TakeCount() {
  int count = 0;
  const char* end = current_.text.data() + current_.text.size();
  const std::from_chars_result result = std::from_chars(current_.text.data(), end, count);
  if (current_.kind != TokenKind::kNumber || result.ec != std::errc() || result.ptr != end) {
    FailHere();
  }
  Advance();
  return count;
}

void TokenStream::FailHere() const {
  if (current_.kind == TokenKind::kEnd) {
    FailStatement("it ends too early.");
  }
  FailStatement(fmt::format("\"{}\" isn't expected there.", Left(current_.text, kLongestExcerpt)));
}

}  // namespace lorvane::sql
