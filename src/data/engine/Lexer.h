#pragma once

#include <string>
#include <string_view>

namespace lorvane::sql {

enum class TokenKind { kEnd, kName, kBracketedName, kNumber, kText, kDate, kSymbol };

struct Token {
  TokenKind kind = TokenKind::kEnd;
  /// A name without its brackets, a text or date without its marks, a symbol as written.
  std::string_view text;
  /// The mark of a text, which stands doubled inside the text for itself.
  char mark = 0;
};

/// Cuts a statement into tokens, one at a time. The tokens are views into the statement.
class Lexer {
 public:
  explicit Lexer(std::string_view statement) : statement_(statement) {}

  /// The next token. Raises the engine's command error where none can be read.
  [[nodiscard]] Token Next();

 private:
  [[nodiscard]] Token NumberToken();
  [[nodiscard]] Token SymbolToken();
  [[nodiscard]] Token QuotedToken(char mark);
  [[nodiscard]] Token EnclosedToken(TokenKind kind, char close);
  [[nodiscard]] char At(std::size_t at) const {
    return at < statement_.size() ? statement_[at] : '\0';
  }
  [[nodiscard]] std::string_view Slice(std::size_t from) const {
    return statement_.substr(from, at_ - from);
  }

  std::string_view statement_;
  std::size_t at_ = 0;
};

/// The text of a kText token, its doubled marks read as one.
[[nodiscard]] std::string TextOfToken(const Token& token);

/// Raises the engine's command error for a statement that isn't understood.
[[noreturn]] void FailStatement(const std::string& reason);

}  // namespace lorvane::sql
