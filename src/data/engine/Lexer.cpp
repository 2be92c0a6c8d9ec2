#include "data/engine/Lexer.h"

#include <fmt/format.h>

#include <array>

#include "basic/RuntimeError.h"
#include "basic/Text.h"

namespace lorvane::sql {
namespace {

enum class CharKind : unsigned char { kOther, kBlank, kLetter, kDigit };

constexpr std::array<CharKind, 256> MakeCharKinds() {
  std::array<CharKind, 256> kinds{};
  for (std::size_t c = 0; c < kinds.size(); ++c) {
    const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c >= 0x80;
    const bool blank = c == ' ' || c == '\t' || c == '\r' || c == '\n';
    kinds[c] = letter                 ? CharKind::kLetter
               : c >= '0' && c <= '9' ? CharKind::kDigit
               : blank                ? CharKind::kBlank
                                      : CharKind::kOther;
  }
  return kinds;
}

constexpr std::array<CharKind, 256> kCharKinds = MakeCharKinds();

CharKind KindOf(char c) { return kCharKinds[static_cast<unsigned char>(c)]; }
bool IsDigit(char c) { return KindOf(c) == CharKind::kDigit; }
bool IsNameCharacter(char c) { return KindOf(c) == CharKind::kLetter || IsDigit(c); }

constexpr std::size_t kLongestExcerpt = 40;

}  // namespace

void FailStatement(const std::string& reason) {
  throw RuntimeError(error_number::kEngineCommand,
                     "The statement could not be understood: " + reason);
}

Token Lexer::Next() {
  while (at_ < statement_.size() && KindOf(statement_[at_]) == CharKind::kBlank) {
    ++at_;
  }
  if (at_ >= statement_.size()) {
    return {};
  }
  const char c = statement_[at_];
  const std::size_t from = at_;
  if (KindOf(c) == CharKind::kLetter) {
    while (at_ < statement_.size() && IsNameCharacter(statement_[at_])) {
      ++at_;
    }
    return {TokenKind::kName, Slice(from)};
  }
  if (IsDigit(c) || (c == '.' && IsDigit(At(at_ + 1)))) {
    return NumberToken();
  }
  switch (c) {
    case '\'':
    case '"':
      return QuotedToken(c);
    case '#':
      return EnclosedToken(TokenKind::kDate, '#');
    case '[':
      return EnclosedToken(TokenKind::kBracketedName, ']');
    default:
      return SymbolToken();
  }
}

Token Lexer::NumberToken() {
  const std::size_t from = at_;
  const auto takeDigits = [this] {
    while (IsDigit(At(at_))) {
      ++at_;
    }
  };
  takeDigits();
  if (At(at_) == '.') {
    ++at_;
    takeDigits();
  }
  if (At(at_) == 'e' || At(at_) == 'E') {
    const std::size_t sign = At(at_ + 1) == '+' || At(at_ + 1) == '-' ? 1 : 0;
    if (IsDigit(At(at_ + 1 + sign))) {
      at_ += 1 + sign;
      takeDigits();
    }
  }
  if (IsNameCharacter(At(at_)) || At(at_) == '.') {
    FailStatement(
        fmt::format("\"{}\" is no number.", Left(statement_.substr(from), kLongestExcerpt)));
  }
  return {TokenKind::kNumber, Slice(from)};
}

Token Lexer::QuotedToken(char mark) {
  const std::size_t from = ++at_;
  for (;;) {
    at_ = statement_.find(mark, at_);
    if (at_ == std::string_view::npos) {
      FailStatement("a text has no closing quotation mark.");
    }
    if (At(at_ + 1) != mark) {
      break;
    }
    at_ += 2;
  }
  const Token token{TokenKind::kText, Slice(from), mark};
  ++at_;
  return token;
}

Token Lexer::EnclosedToken(TokenKind kind, char close) {
  const std::size_t from = ++at_;
  at_ = statement_.find(close, at_);
  if (at_ == std::string_view::npos || at_ == from) {
    FailStatement(kind == TokenKind::kDate ? "a date has no closing mark."
                                           : "a name in brackets is empty or isn't closed.");
  }
  const Token token{kind, Slice(from)};
  ++at_;
  return token;
}

Token Lexer::SymbolToken() {
  const std::string_view pair = statement_.substr(at_, 2);
  const bool twoCharacters = pair == "<=" || pair == ">=" || pair == "<>";
  const std::size_t from = at_;
  at_ += twoCharacters ? 2 : 1;
  if (!twoCharacters &&
      std::string_view("(),;=<>+-*/.").find(statement_[from]) == std::string_view::npos) {
    FailStatement("it holds a mark that means nothing here.");
  }
  return {TokenKind::kSymbol, Slice(from)};
}

std::string TextOfToken(const Token& token) {
  std::string text;
  text.reserve(token.text.size());
  for (std::size_t i = 0; i < token.text.size(); ++i) {
    text += token.text[i];
    if (token.text[i] == token.mark) {
      ++i;
    }
  }
  return text;
}

}  // namespace lorvane::sql
