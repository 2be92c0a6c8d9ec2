#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

#include "data/engine/Value.h"

namespace lorvane::sql {

// A parsed statement. Names are views into the statement's own text, which must outlive it.
//
// Expressions lie in one list, operands before the expressions that use them, so that whoever works
// on all of them walks the list and needs no recursion.

using NodeIndex = std::int32_t;
inline constexpr NodeIndex kNoNode = -1;

enum class NodeKind {
  kLiteral,
  kColumn,
  kNegate,
  kNot,
  kAnd,
  kOr,
  kAdd,
  kSubtract,
  kMultiply,
  kDivide,
  kEqual,
  kNotEqual,
  kLess,
  kLessEqual,
  kGreater,
  kGreaterEqual,
  kIsNull,
  kLike,
  kIn,
  kBetween,
  kCount,
  kSum,
  kMin,
  kMax,
  kAvg,
};

[[nodiscard]] constexpr bool IsComparison(NodeKind kind) {
  return kind >= NodeKind::kEqual && kind <= NodeKind::kGreaterEqual;
}
[[nodiscard]] constexpr bool IsAggregate(NodeKind kind) { return kind >= NodeKind::kCount; }
/// Whether the expression is true, false or null.
[[nodiscard]] constexpr bool IsCondition(NodeKind kind) {
  return IsComparison(kind) || (kind >= NodeKind::kNot && kind <= NodeKind::kOr) ||
         (kind >= NodeKind::kIsNull && kind <= NodeKind::kBetween);
}

struct Node {
  NodeKind kind = NodeKind::kLiteral;
  /// IS NOT NULL, NOT LIKE, NOT IN, NOT BETWEEN.
  bool negated = false;
  /// Levels of operands below.
  int depth = 0;
  /// The only operand stands on the left. Count(*) has none.
  NodeIndex left = kNoNode;
  NodeIndex right = kNoNode;
  /// The list of an IN, or the two limits of a BETWEEN, in Expressions::items.
  std::size_t firstItem = 0;
  std::size_t itemCount = 0;
  /// Of a column: the table in front of the dot, if any, and the name.
  std::string_view qualifier;
  std::string_view name;
  Value literal;

  // Filled by the resolver.
  ColumnType type = ColumnType::kUnknown;
  const Column* column = nullptr;
};

struct Expressions {
  std::vector<Node> nodes;
  std::vector<NodeIndex> items;

  [[nodiscard]] const Node& At(NodeIndex index) const {
    return nodes[static_cast<std::size_t>(index)];
  }
  [[nodiscard]] std::span<const NodeIndex> ItemsOf(const Node& node) const {
    return std::span(items).subspan(node.firstItem, node.itemCount);
  }
  [[nodiscard]] Node& At(NodeIndex index) { return nodes[static_cast<std::size_t>(index)]; }
};

struct SelectItem {
  /// No node stands for all columns.
  NodeIndex expression = kNoNode;
  std::string_view alias;
};

struct OrderItem {
  NodeIndex expression = kNoNode;
  bool descending = false;
};

struct SelectStatement {
  bool distinct = false;
  std::optional<std::int32_t> top;
  std::vector<SelectItem> items;
  /// Empty for a SELECT of expressions alone.
  std::string_view table;
  std::string_view tableAlias;
  NodeIndex where = kNoNode;
  std::vector<NodeIndex> groupBy;
  NodeIndex having = kNoNode;
  std::vector<OrderItem> orderBy;
};

struct InsertStatement {
  std::string_view table;
  /// Empty: all columns in their order.
  std::vector<std::string_view> columns;
  std::vector<NodeIndex> values;
};

struct Assignment {
  std::string_view column;
  NodeIndex value = kNoNode;
};

struct UpdateStatement {
  std::string_view table;
  std::vector<Assignment> assignments;
  NodeIndex where = kNoNode;
};

struct DeleteStatement {
  std::string_view table;
  NodeIndex where = kNoNode;
};

struct AlterStatement {
  std::string_view table;
  /// Adds the column, or gives an existing one another type.
  bool adds = true;
  Column column;
};

struct Statement {
  Expressions expressions;
  std::variant<SelectStatement, InsertStatement, UpdateStatement, DeleteStatement, AlterStatement>
      body;
};

}  // namespace lorvane::sql
