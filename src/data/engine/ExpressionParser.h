#pragma once

#include "data/engine/Ast.h"
#include "data/engine/TokenStream.h"

namespace lorvane::sql {

/// Reads expressions from a statement's tokens into a list of nodes.
///
/// From the loosest to the tightest: OR; AND; NOT; the comparisons, which chain from the left; +
/// and
/// -; * and /; the minus sign. Raises the command error for what isn't an expression and for one
/// that is nested too deeply.
class ExpressionParser {
 public:
  ExpressionParser(TokenStream& tokens, Expressions& expressions)
      : tokens_(&tokens), expressions_(&expressions) {}

  NodeIndex Parse();

 private:
  NodeIndex ParseFrom(int loosest);
  NodeIndex ParseOperand();
  NodeIndex ParsePrimary();
  NodeIndex ParseNamed();
  NodeIndex ParseAggregate(NodeKind kind);
  NodeIndex ParseLiteral();
  NodeIndex ParseNumber();
  NodeIndex ParseDateLiteral();
  NodeIndex ParseTest(NodeIndex left);
  NodeIndex ParseIs(NodeIndex left);
  NodeIndex ParseIn(NodeIndex left, bool negated);
  NodeIndex ParseBetween(NodeIndex left, bool negated);

  NodeIndex Add(Node node);
  NodeIndex AddUnary(NodeKind kind, NodeIndex operand);
  NodeIndex AddBinary(NodeKind kind, NodeIndex left, NodeIndex right);
  NodeIndex AddList(NodeKind kind, NodeIndex left, bool negated,
                    const std::vector<NodeIndex>& items);
  NodeIndex AddLiteral(Value literal);
  NodeIndex Negate(NodeIndex operand);

  TokenStream* tokens_;
  Expressions* expressions_;
  int nesting_ = 0;
};

}  // namespace lorvane::sql
