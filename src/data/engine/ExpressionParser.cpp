#include "data/engine/ExpressionParser.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "basic/Date.h"
#include "basic/Text.h"
#include "data/engine/Names.h"

namespace lorvane::sql {
namespace {

// Far deeper than any statement that a person writes, and far from the end of the stack. A chain of
// operators is a tree as deep as it is long.
constexpr int kDeepestNesting = 100;
constexpr int kDeepestTree = 900;

constexpr std::size_t kLongestExcerpt = 40;

enum Level : int { kOrLevel = 1, kAndLevel, kComparisonLevel, kSumLevel, kProductLevel };

struct Infix {
  int level = 0;
  NodeKind kind = NodeKind::kLiteral;
};

Infix InfixOfSymbol(std::string_view symbol) {
  if (symbol.size() == 2) {
    return {kComparisonLevel, symbol == "<>"   ? NodeKind::kNotEqual
                              : symbol == "<=" ? NodeKind::kLessEqual
                                               : NodeKind::kGreaterEqual};
  }
  switch (symbol.front()) {
    case '=':
      return {kComparisonLevel, NodeKind::kEqual};
    case '<':
      return {kComparisonLevel, NodeKind::kLess};
    case '>':
      return {kComparisonLevel, NodeKind::kGreater};
    case '+':
      return {kSumLevel, NodeKind::kAdd};
    case '-':
      return {kSumLevel, NodeKind::kSubtract};
    case '*':
      return {kProductLevel, NodeKind::kMultiply};
    case '/':
      return {kProductLevel, NodeKind::kDivide};
    default:
      return {};
  }
}

// The operator at the current token; level 0 when there is none. IS, LIKE, IN, BETWEEN and their
// negations have a level and no kind.
Infix InfixAt(const TokenStream& tokens) {
  if (tokens.Current().kind == TokenKind::kSymbol) {
    return InfixOfSymbol(tokens.Current().text);
  }
  switch (tokens.CurrentWord()) {
    case Word::kOr:
      return {kOrLevel, NodeKind::kOr};
    case Word::kAnd:
      return {kAndLevel, NodeKind::kAnd};
    case Word::kIs:
    case Word::kLike:
    case Word::kIn:
    case Word::kBetween:
    case Word::kNot:
      return {kComparisonLevel, NodeKind::kLiteral};
    default:
      return {};
  }
}

constexpr std::array<std::pair<std::string_view, NodeKind>, 5> kAggregates{{
    {"Count", NodeKind::kCount},
    {"Sum", NodeKind::kSum},
    {"Min", NodeKind::kMin},
    {"Max", NodeKind::kMax},
    {"Avg", NodeKind::kAvg},
}};

}  // namespace

NodeIndex ExpressionParser::Parse() { return ParseFrom(kOrLevel); }

NodeIndex ExpressionParser::ParseFrom(int loosest) {
  NodeIndex left = ParseOperand();
  for (;;) {
    const Infix infix = InfixAt(*tokens_);
    if (infix.level < loosest || infix.level == 0) {
      return left;
    }
    if (infix.kind == NodeKind::kLiteral) {
      left = ParseTest(left);
      continue;
    }
    tokens_->Advance();
    const NodeIndex right = ParseFrom(infix.level + 1);
    left = AddBinary(infix.kind, left, right);
  }
}

NodeIndex ExpressionParser::ParseOperand() {
  if (++nesting_ > kDeepestNesting) {
    FailStatement("it is nested too deeply.");
  }
  NodeIndex operand = kNoNode;
  if (tokens_->Accept(Word::kNot)) {
    operand = AddUnary(NodeKind::kNot, ParseFrom(kComparisonLevel));
  } else if (tokens_->Accept('-')) {
    operand = Negate(ParseOperand());
  } else if (tokens_->Accept('+')) {
    operand = ParseOperand();
  } else {
    operand = ParsePrimary();
  }
  --nesting_;
  return operand;
}

NodeIndex ExpressionParser::ParsePrimary() {
  if (tokens_->Accept('(')) {
    const NodeIndex inner = Parse();
    tokens_->Expect(')');
    return inner;
  }
  return tokens_->IsName() ? ParseNamed() : ParseLiteral();
}

NodeIndex ExpressionParser::ParseNamed() {
  const bool bracketed = tokens_->Current().kind == TokenKind::kBracketedName;
  Node column;
  column.kind = NodeKind::kColumn;
  column.name = tokens_->TakeName();
  if (tokens_->Accept('.')) {
    column.qualifier = column.name;
    column.name = tokens_->TakeName();
    return Add(std::move(column));
  }
  if (!bracketed && tokens_->Is('(')) {
    for (const auto& [name, kind] : kAggregates) {
      if (SameName(name, column.name)) {
        return ParseAggregate(kind);
      }
    }
    FailStatement("there is no function " + std::string(column.name) + ".");
  }
  return Add(std::move(column));
}

NodeIndex ExpressionParser::ParseAggregate(NodeKind kind) {
  tokens_->Expect('(');
  Node aggregate;
  aggregate.kind = kind;
  if (kind != NodeKind::kCount || !tokens_->Accept('*')) {
    aggregate.left = Parse();
  }
  tokens_->Expect(')');
  return Add(std::move(aggregate));
}

NodeIndex ExpressionParser::ParseLiteral() {
  switch (tokens_->Current().kind) {
    case TokenKind::kNumber:
      return ParseNumber();
    case TokenKind::kDate:
      return ParseDateLiteral();
    case TokenKind::kText: {
      const NodeIndex text = AddLiteral(TextOfToken(tokens_->Current()));
      tokens_->Advance();
      return text;
    }
    default:
      break;
  }
  switch (tokens_->CurrentWord()) {
    case Word::kNull:
      tokens_->Advance();
      return AddLiteral(std::monostate());
    case Word::kTrue:
    case Word::kYes:
      tokens_->Advance();
      return AddLiteral(true);
    case Word::kFalse:
    case Word::kNo:
      tokens_->Advance();
      return AddLiteral(false);
    default:
      tokens_->FailHere();
  }
}

NodeIndex ExpressionParser::ParseNumber() {
  const std::string_view text = tokens_->Current().text;
  const char* end = text.data() + text.size();
  std::int32_t whole = 0;
  const std::from_chars_result asWhole = std::from_chars(text.data(), end, whole);
  Value value = whole;
  if (asWhole.ec != std::errc() || asWhole.ptr != end) {
    double number = 0;
    if (std::from_chars(text.data(), end, number).ec != std::errc()) {
      FailStatement(
          fmt::format("the number {} is too large or too small.", Left(text, kLongestExcerpt)));
    }
    value = number;
  }
  tokens_->Advance();
  return AddLiteral(std::move(value));
}

NodeIndex ExpressionParser::ParseDateLiteral() {
  const std::string_view text = tokens_->Current().text;
  const std::optional<DateTime> date = ParseDate(text);
  if (!date) {
    FailStatement(fmt::format("#{}# is no date.", Left(text, kLongestExcerpt)));
  }
  tokens_->Advance();
  return AddLiteral(*date);
}

NodeIndex ExpressionParser::ParseTest(NodeIndex left) {
  if (tokens_->Accept(Word::kIs)) {
    return ParseIs(left);
  }
  const bool negated = tokens_->Accept(Word::kNot);
  if (tokens_->Accept(Word::kIn)) {
    return ParseIn(left, negated);
  }
  if (tokens_->Accept(Word::kBetween)) {
    return ParseBetween(left, negated);
  }
  tokens_->Expect(Word::kLike);
  const NodeIndex pattern = ParseFrom(kSumLevel);
  const NodeIndex like = AddBinary(NodeKind::kLike, left, pattern);
  expressions_->At(like).negated = negated;
  return like;
}

NodeIndex ExpressionParser::ParseIs(NodeIndex left) {
  const bool negated = tokens_->Accept(Word::kNot);
  tokens_->Expect(Word::kNull);
  const NodeIndex test = AddUnary(NodeKind::kIsNull, left);
  expressions_->At(test).negated = negated;
  return test;
}

NodeIndex ExpressionParser::ParseIn(NodeIndex left, bool negated) {
  tokens_->Expect('(');
  std::vector<NodeIndex> items;
  do {
    items.push_back(Parse());
  } while (tokens_->Accept(','));
  tokens_->Expect(')');

  return AddList(NodeKind::kIn, left, negated, items);
}

NodeIndex ExpressionParser::ParseBetween(NodeIndex left, bool negated) {
  const NodeIndex low = ParseFrom(kSumLevel);
  tokens_->Expect(Word::kAnd);
  const NodeIndex high = ParseFrom(kSumLevel);
  return AddList(NodeKind::kBetween, left, negated, {low, high});
}

NodeIndex ExpressionParser::AddList(NodeKind kind, NodeIndex left, bool negated,
                                    const std::vector<NodeIndex>& items) {
  Node list;
  list.kind = kind;
  list.negated = negated;
  list.left = left;
  list.firstItem = expressions_->items.size();
  list.itemCount = items.size();
  for (const NodeIndex item : items) {
    list.depth = std::max(list.depth, expressions_->At(item).depth + 1);
  }
  expressions_->items.insert(expressions_->items.end(), items.begin(), items.end());
  return Add(std::move(list));
}

NodeIndex ExpressionParser::Add(Node node) {
  for (const NodeIndex operand : {node.left, node.right}) {
    if (operand != kNoNode) {
      node.depth = std::max(node.depth, expressions_->At(operand).depth + 1);
    }
  }
  if (node.depth > kDeepestTree) {
    FailStatement("it is nested too deeply.");
  }
  expressions_->nodes.push_back(std::move(node));
  return static_cast<NodeIndex>(expressions_->nodes.size() - 1);
}

NodeIndex ExpressionParser::AddUnary(NodeKind kind, NodeIndex operand) {
  return AddBinary(kind, operand, kNoNode);
}

NodeIndex ExpressionParser::AddBinary(NodeKind kind, NodeIndex left, NodeIndex right) {
  Node node;
  node.kind = kind;
  node.left = left;
  node.right = right;
  return Add(std::move(node));
}

NodeIndex ExpressionParser::AddLiteral(Value literal) {
  Node node;
  node.literal = std::move(literal);
  return Add(std::move(node));
}

// A negative number is a literal like any other, so that it is bound and not computed.
NodeIndex ExpressionParser::Negate(NodeIndex operand) {
  Node& node = expressions_->At(operand);
  if (node.kind == NodeKind::kLiteral) {
    if (std::int32_t* whole = std::get_if<std::int32_t>(&node.literal)) {
      *whole = -*whole;
      return operand;
    }
    if (double* number = std::get_if<double>(&node.literal)) {
      *number = -*number;
      return operand;
    }
  }
  return AddUnary(NodeKind::kNegate, operand);
}

}  // namespace lorvane::sql
