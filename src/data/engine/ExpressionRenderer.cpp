#include "data/engine/ExpressionRenderer.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "data/engine/Conversion.h"
#include "data/engine/Lexer.h"
#include "data/engine/Names.h"
#include "data/engine/SqlNames.h"

namespace lorvane::sql {
namespace {

constexpr std::size_t kMostParameters = 999;

std::string_view SymbolOf(NodeKind kind) {
  switch (kind) {
    case NodeKind::kEqual:
      return "=";
    case NodeKind::kNotEqual:
      return "<>";
    case NodeKind::kLess:
      return "<";
    case NodeKind::kLessEqual:
      return "<=";
    case NodeKind::kGreater:
      return ">";
    case NodeKind::kGreaterEqual:
      return ">=";
    case NodeKind::kAnd:
      return " AND ";
    case NodeKind::kOr:
      return " OR ";
    case NodeKind::kAdd:
      return "+";
    case NodeKind::kSubtract:
      return "-";
    default:
      return "*";
  }
}

std::string_view FunctionOf(NodeKind kind) {
  switch (kind) {
    case NodeKind::kCount:
      return "count(";
    case NodeKind::kSum:
      return "sum(";
    case NodeKind::kMin:
      return "min(";
    case NodeKind::kMax:
      return "max(";
    default:
      return "avg(";
  }
}

bool IsLiteral(const Node& node) { return node.kind == NodeKind::kLiteral; }

const std::string* LiteralText(const Node& node) {
  return IsLiteral(node) ? std::get_if<std::string>(&node.literal) : nullptr;
}

const DateTime* LiteralDate(const Node& node) {
  return IsLiteral(node) ? std::get_if<DateTime>(&node.literal) : nullptr;
}

}  // namespace

void ExpressionRenderer::BindValue(Value stored) {
  if (out_->parameters.size() >= kMostParameters) {
    FailStatement("it holds more than " + std::to_string(kMostParameters) + " values.");
  }
  out_->parameters.push_back(std::move(stored));
  Append("?");
}

void ExpressionRenderer::RenderLiteral(const Value& literal) {
  // A column of no type stores what a literal is by itself.
  BindValue(ToStored(literal, Column{}));
}

void ExpressionRenderer::RenderCondition(NodeIndex index) {
  const Node& node = At(index);
  if (!IsCondition(node.kind)) {
    RenderAs(index, Reading::kNumber);
    return;
  }
  Append("(");
  RenderTest(node);
  Append(")");
}

void ExpressionRenderer::RenderTest(const Node& node) {
  switch (node.kind) {
    case NodeKind::kNot:
      Append("NOT ");
      RenderCondition(node.left);
      break;
    case NodeKind::kAnd:
    case NodeKind::kOr:
      if (At(node.left).kind == node.kind) {
        RenderTest(At(node.left));
      } else {
        RenderCondition(node.left);
      }
      Append(SymbolOf(node.kind));
      RenderCondition(node.right);
      break;
    case NodeKind::kIsNull:
      RenderValue(node.left);
      Append(node.negated ? " IS NOT NULL" : " IS NULL");
      break;
    case NodeKind::kLike:
      RenderLike(node);
      break;
    case NodeKind::kIn:
    case NodeKind::kBetween:
      RenderList(node);
      break;
    default:
      RenderComparison(node);
      break;
  }
}

void ExpressionRenderer::RenderValue(NodeIndex index) {
  const Node& node = At(index);
  if (IsCondition(node.kind)) {
    Append("(-");
    RenderCondition(index);
    Append(")");
    return;
  }
  if (IsAggregate(node.kind)) {
    RenderAggregate(node);
    return;
  }
  switch (node.kind) {
    case NodeKind::kLiteral:
      RenderLiteral(node.literal);
      break;
    case NodeKind::kColumn:
      AppendName(out_->sql, node.column->name);
      break;
    case NodeKind::kNegate:
      Append("(-");
      RenderAs(node.left, Reading::kNumber);
      Append(")");
      break;
    default:
      RenderArithmetic(node);
      break;
  }
}

void ExpressionRenderer::RenderKey(NodeIndex index) {
  RenderValue(index);
  if (At(index).type == ColumnType::kText) {
    Append(" COLLATE ");
    Append(kTextCollation);
  }
}

void ExpressionRenderer::RenderAssigned(NodeIndex index, const Column& column) {
  const Node& node = At(index);
  if (IsLiteral(node)) {
    BindValue(ToStored(node.literal, column));
    return;
  }
  out_->mayFailMidway = true;
  Append(kStoreFunction);
  Append("(");
  if (node.type != ColumnType::kDate || column.type == ColumnType::kDate) {
    RenderValue(index);
  } else {
    RenderAs(index, column.type == ColumnType::kText ? Reading::kText : Reading::kNumber);
  }
  fmt::format_to(std::back_inserter(out_->sql), ",{},{},", static_cast<int>(column.type),
                 column.size);
  BindValue(column.name);
  Append(")");
}

ExpressionRenderer::Reading ExpressionRenderer::CommonReading(const Node& left, const Node& right) {
  const auto either = [&](ColumnType type) { return left.type == type || right.type == type; };
  if (either(ColumnType::kUnknown)) {
    return Reading::kAsIs;
  }
  if (left.type == ColumnType::kText && right.type == ColumnType::kText) {
    return Reading::kText;
  }
  const Node& text = left.type == ColumnType::kText ? left : right;
  const bool hasText = text.type == ColumnType::kText;
  if (either(ColumnType::kDate)) {
    return hasText || left.type == right.type ? Reading::kDate : Reading::kNumber;
  }
  if (hasText) {
    return !IsLiteral(text)             ? Reading::kText
           : either(ColumnType::kYesNo) ? Reading::kFlag
                                        : Reading::kNumber;
  }
  return Reading::kNumber;
}

ExpressionRenderer::Reading ExpressionRenderer::ListReading(const Node& list) const {
  Reading common = Reading::kAsIs;
  for (const NodeIndex item : expressions_->ItemsOf(list)) {
    common = std::max(common, CommonReading(At(list.left), At(item)));
  }
  return common;
}

void ExpressionRenderer::RenderAs(NodeIndex index, Reading reading) {
  switch (reading) {
    case Reading::kAsIs:
      RenderValue(index);
      break;
    case Reading::kNumber:
    case Reading::kFlag:
      RenderNumber(index, reading);
      break;
    case Reading::kText:
      RenderText(index);
      break;
    case Reading::kDate:
      RenderDate(index);
      break;
  }
}

void ExpressionRenderer::RenderNumber(NodeIndex index, Reading reading) {
  const Node& node = At(index);
  if (const std::string* text = LiteralText(node)) {
    BindValue(reading == Reading::kFlag ? FlagInText(*text) : NumberInText(*text));
  } else if (const DateTime* date = LiteralDate(node)) {
    BindValue(SerialOf(*date));
  } else if (node.type == ColumnType::kText) {
    RenderCall(kNumberFunction, index);
  } else if (node.type == ColumnType::kDate) {
    RenderCall(kSerialFunction, index);
  } else {
    RenderValue(index);
  }
}

void ExpressionRenderer::RenderText(NodeIndex index) {
  const Node& node = At(index);
  if (node.type == ColumnType::kText || node.type == ColumnType::kUnknown) {
    RenderValue(index);
  } else if (IsLiteral(node)) {
    BindValue(ListingTextOf(node.literal));
  } else {
    RenderCall(node.type == ColumnType::kDate ? kShortDateFunction : kTextFunction, index);
  }
}

void ExpressionRenderer::RenderDate(NodeIndex index) {
  const Node& node = At(index);
  if (const std::string* text = LiteralText(node)) {
    BindValue(IsoDate(DateInText(*text)));
  } else if (node.type == ColumnType::kText) {
    RenderCall(kDateFunction, index);
  } else {
    RenderValue(index);
  }
}

void ExpressionRenderer::RenderCall(const char* function, NodeIndex index) {
  out_->mayFailMidway = true;
  Append(function);
  Append("(");
  RenderValue(index);
  Append(")");
}

void ExpressionRenderer::RenderComparison(const Node& node) {
  const Reading reading = CommonReading(At(node.left), At(node.right));
  RenderAs(node.left, reading);
  if (reading == Reading::kText) {
    Append(" COLLATE ");
    Append(kTextCollation);
    Append(" ");
  }
  Append(SymbolOf(node.kind));
  RenderAs(node.right, reading);
}

void ExpressionRenderer::RenderArithmetic(const Node& node) {
  const bool rounds = node.type == ColumnType::kCurrency;
  if (node.kind == NodeKind::kDivide) {
    out_->mayFailMidway = true;
    Append(kDivideFunction);
    Append("(");
    RenderAs(node.left, Reading::kNumber);
    Append(",");
    RenderAs(node.right, Reading::kNumber);
    Append(")");
    return;
  }
  Append(rounds ? "round(" : "(");
  RenderChain(node);
  Append(rounds ? ",4)" : ")");
}

// A chain such as a + b + c is one operation with one rounding: the library's parser has room for
// few brackets inside one another.
void ExpressionRenderer::RenderChain(const Node& node) {
  const Node& left = At(node.left);
  const bool isProduct = node.kind == NodeKind::kMultiply;
  const bool leftIsSum = left.kind == NodeKind::kAdd || left.kind == NodeKind::kSubtract;
  const bool goesOn = isProduct ? left.kind == NodeKind::kMultiply : leftIsSum;
  const Reading reading = node.type == ColumnType::kText ? Reading::kText : Reading::kNumber;
  if (goesOn && left.type == node.type) {
    RenderChain(left);
  } else {
    RenderAs(node.left, reading);
  }
  Append(reading == Reading::kText ? "||" : SymbolOf(node.kind));
  RenderAs(node.right, reading);
}

void ExpressionRenderer::RenderList(const Node& node) {
  const Reading reading = ListReading(node);
  RenderAs(node.left, reading);
  if (reading == Reading::kText) {
    Append(" COLLATE ");
    Append(kTextCollation);
  }
  Append(node.negated ? " NOT" : "");
  const std::span<const NodeIndex> items = expressions_->ItemsOf(node);
  const bool isIn = node.kind == NodeKind::kIn;
  Append(isIn ? " IN (" : " BETWEEN ");
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (i != 0) {
      Append(isIn ? "," : " AND ");
    }
    RenderAs(items[i], reading);
  }
  Append(isIn ? ")" : "");
}

void ExpressionRenderer::RenderLike(const Node& node) {
  Append(node.negated ? "NOT " : "");
  Append(kLikeFunction);
  Append("(");
  RenderAs(node.left, Reading::kText);
  Append(",");
  RenderAs(node.right, Reading::kText);
  Append(")");
}

void ExpressionRenderer::RenderAggregate(const Node& node) {
  const bool rounds = node.kind == NodeKind::kSum && node.type == ColumnType::kCurrency;
  Append(rounds ? "round(" : "");
  Append(FunctionOf(node.kind));
  if (node.left == kNoNode) {
    Append("*");
  } else if (node.kind == NodeKind::kSum || node.kind == NodeKind::kAvg) {
    RenderAs(node.left, Reading::kNumber);
  } else {
    RenderKey(node.left);
  }
  Append(rounds ? "),4)" : ")");
}

}  // namespace lorvane::sql
