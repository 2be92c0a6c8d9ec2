#pragma once

#include <string>
#include <string_view>

#include "data/engine/Lexer.h"

namespace lorvane::sql {

/// Words that have a meaning of their own. Only those from kSelect to kDistinct are reserved; the
/// others are names wherever a name can stand. A name in brackets is never a word.
enum class Word {
  kNone,
  kSelect,
  kFrom,
  kWhere,
  kGroup,
  kHaving,
  kOrder,
  kBy,
  kAs,
  kAnd,
  kOr,
  kNot,
  kIs,
  kLike,
  kIn,
  kBetween,
  kNull,
  kTrue,
  kFalse,
  kYes,
  kNo,
  kInto,
  kValues,
  kSet,
  kDistinct,
  kTop,
  kAsc,
  kDesc,
  kInsert,
  kUpdate,
  kDelete,
  kAlter,
  kTable,
  kAdd,
  kColumn,
};

[[nodiscard]] constexpr bool IsReserved(Word word) {
  return word >= Word::kSelect && word <= Word::kDistinct;
}

/// The tokens of a statement, one looked at ahead.
class TokenStream {
 public:
  explicit TokenStream(std::string_view statement) : lexer_(statement) { Advance(); }

  [[nodiscard]] const Token& Current() const { return current_; }
  [[nodiscard]] Word CurrentWord() const { return word_; }
  [[nodiscard]] bool Is(char symbol) const {
    return current_.kind == TokenKind::kSymbol && current_.text.size() == 1 &&
           current_.text.front() == symbol;
  }
  [[nodiscard]] bool IsName() const {
    return current_.kind == TokenKind::kBracketedName ||
           (current_.kind == TokenKind::kName && !IsReserved(word_));
  }

  void Advance();
  bool Accept(Word word);
  bool Accept(char symbol);
  void Expect(Word word);
  void Expect(char symbol);
  [[nodiscard]] std::string_view TakeName();
  /// A whole number that isn't negative.
  [[nodiscard]] int TakeCount();

  /// Raises the command error for the current token.
  [[noreturn]] void FailHere() const;

 private:
  Lexer lexer_;
  Token current_;
  Word word_ = Word::kNone;
};

}  // namespace lorvane::sql
