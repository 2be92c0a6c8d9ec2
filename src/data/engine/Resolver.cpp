#include "data/engine/Resolver.h"

#include <algorithm>
#include <string>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "data/engine/Lexer.h"
#include "data/engine/Names.h"

namespace lorvane::sql {
namespace {

struct TypeOfLiteral {
  ColumnType operator()(std::monostate) const { return ColumnType::kUnknown; }
  ColumnType operator()(bool) const { return ColumnType::kYesNo; }
  ColumnType operator()(std::int32_t) const { return ColumnType::kLong; }
  ColumnType operator()(double) const { return ColumnType::kDouble; }
  ColumnType operator()(Currency) const { return ColumnType::kCurrency; }
  ColumnType operator()(const DateTime&) const { return ColumnType::kDate; }
  ColumnType operator()(const std::string&) const { return ColumnType::kText; }
};

bool IsWhole(ColumnType type) { return type == ColumnType::kLong || type == ColumnType::kYesNo; }

// Amounts added stay amounts, so that 0.1 and 0.2 make 0.3.
ColumnType SumType(ColumnType left, ColumnType right) {
  const auto exact = [](ColumnType type) { return type == ColumnType::kCurrency || IsWhole(type); };
  if (IsWhole(left) && IsWhole(right)) {
    return ColumnType::kLong;
  }
  return exact(left) && exact(right) ? ColumnType::kCurrency : ColumnType::kDouble;
}

class Resolver {
 public:
  Resolver(Expressions& expressions, const Table* table, std::string_view alias)
      : expressions_(&expressions), table_(table), alias_(alias) {}

  void ResolveAll() {
    for (Node& node : expressions_->nodes) {
      if (node.kind == NodeKind::kColumn) {
        node.column = ColumnOf(node);
      }
      node.type = TypeOf(node);
    }
  }

 private:
  const Column* ColumnOf(const Node& node) const {
    const bool ours = node.qualifier.empty() || SameName(node.qualifier, alias_) ||
                      (table_ != nullptr && SameName(node.qualifier, table_->name));
    const Column* column = table_ != nullptr && ours ? table_->Find(node.name) : nullptr;
    if (column == nullptr) {
      FailUnknownColumn(node.name);
    }
    return column;
  }

  [[nodiscard]] ColumnType Left(const Node& node) const { return expressions_->At(node.left).type; }
  [[nodiscard]] ColumnType Right(const Node& node) const {
    return expressions_->At(node.right).type;
  }

  [[nodiscard]] ColumnType TypeOf(const Node& node) const {
    switch (node.kind) {
      case NodeKind::kLiteral:
        return std::visit(TypeOfLiteral(), node.literal);
      case NodeKind::kColumn:
        return node.column->type;
      case NodeKind::kNegate:
        return IsWhole(Left(node))                   ? ColumnType::kLong
               : Left(node) == ColumnType::kCurrency ? ColumnType::kCurrency
                                                     : ColumnType::kDouble;
      case NodeKind::kAdd:
        if (Left(node) == ColumnType::kText && Right(node) == ColumnType::kText) {
          return ColumnType::kText;
        }
        return SumType(Left(node), Right(node));
      case NodeKind::kSubtract:
        return SumType(Left(node), Right(node));
      case NodeKind::kMultiply:
        return IsWhole(Left(node)) && IsWhole(Right(node)) ? ColumnType::kLong
                                                           : ColumnType::kDouble;
      case NodeKind::kDivide:
        return ColumnType::kDouble;
      default:
        return IsAggregate(node.kind) ? AggregateType(node) : ColumnType::kLong;
    }
  }

  [[nodiscard]] ColumnType AggregateType(const Node& node) const {
    if (node.kind == NodeKind::kCount) {
      return ColumnType::kLong;
    }
    const ColumnType operand = Left(node);
    if (node.kind == NodeKind::kMin || node.kind == NodeKind::kMax) {
      return operand;
    }
    if (operand == ColumnType::kText) {
      throw RuntimeError(error_number::kEngineTypeMismatch,
                         "Texts can't be summed; only numbers can.");
    }
    if (node.kind == NodeKind::kAvg) {
      return ColumnType::kDouble;
    }
    return operand == ColumnType::kCurrency ? operand
           : IsWhole(operand)               ? ColumnType::kLong
                                            : ColumnType::kDouble;
  }

  Expressions* expressions_;
  const Table* table_;
  std::string_view alias_;
};

// Where sums and the like may stand, and what may stand beside them.
class AggregateCheck {
 public:
  AggregateCheck(const Expressions& expressions, const SelectStatement& select)
      : expressions_(&expressions), select_(&select) {}

  void Run() {
    if (!IsGrouped()) {
      return;
    }
    RefuseIn(select_->where);
    for (const NodeIndex group : select_->groupBy) {
      RefuseIn(group);
    }
    for (const SelectItem& item : select_->items) {
      if (item.expression == kNoNode) {
        FailStatement("all columns can't be listed beside a sum, count or group.");
      }
      CheckOutside(item.expression);
    }
    CheckOutside(select_->having);
    for (const OrderItem& item : select_->orderBy) {
      CheckOutside(item.expression);
    }
  }

 private:
  [[nodiscard]] bool IsGrouped() const {
    return !select_->groupBy.empty() || select_->having != kNoNode ||
           std::any_of(expressions_->nodes.begin(), expressions_->nodes.end(),
                       [](const Node& node) { return IsAggregate(node.kind); });
  }

  template <typename Visit>
  void VisitOperands(const Node& node, Visit visit) const {
    if (node.left != kNoNode) {
      visit(node.left);
    }
    if (node.right != kNoNode) {
      visit(node.right);
    }
    for (const NodeIndex item : expressions_->ItemsOf(node)) {
      visit(item);
    }
  }

  void RefuseIn(NodeIndex index) const {
    if (index == kNoNode) {
      return;
    }
    const Node& node = expressions_->At(index);
    if (IsAggregate(node.kind)) {
      FailStatement("a sum or count can't stand inside another, in WHERE or in GROUP BY.");
    }
    VisitOperands(node, [this](NodeIndex operand) { RefuseIn(operand); });
  }

  void CheckOutside(NodeIndex index) const {
    if (index == kNoNode) {
      return;
    }
    const Node& node = expressions_->At(index);
    if (IsAggregate(node.kind)) {
      RefuseIn(node.left);
      return;
    }
    if (node.kind == NodeKind::kColumn && !IsGroup(node)) {
      FailStatement("the column " + node.column->name +
                    " is neither grouped by nor summed or counted.");
    }
    VisitOperands(node, [this](NodeIndex operand) { CheckOutside(operand); });
  }

  [[nodiscard]] bool IsGroup(const Node& column) const {
    return std::any_of(select_->groupBy.begin(), select_->groupBy.end(), [&](NodeIndex group) {
      return expressions_->At(group).column == column.column;
    });
  }

  const Expressions* expressions_;
  const SelectStatement* select_;
};

// ORDER BY takes, besides columns, the names and the places of the list's own entries.
void ResolveOrder(Expressions& expressions, SelectStatement& select, const Table* table) {
  for (OrderItem& order : select.orderBy) {
    Node& node = expressions.At(order.expression);
    if (const std::int32_t* place = std::get_if<std::int32_t>(&node.literal);
        place != nullptr && node.kind == NodeKind::kLiteral) {
      const auto index = static_cast<std::size_t>(*place) - 1;
      if (*place < 1 || index >= select.items.size() || select.items[index].expression == kNoNode) {
        FailStatement("the list has no entry " + std::to_string(*place) + " to order by.");
      }
      order.expression = select.items[index].expression;
      continue;
    }
    const bool unknown = node.kind == NodeKind::kColumn && node.qualifier.empty() &&
                         (table == nullptr || table->Find(node.name) == nullptr);
    const auto named =
        std::find_if(select.items.begin(), select.items.end(), [&](const SelectItem& item) {
          return unknown && !item.alias.empty() && SameName(item.alias, node.name);
        });
    if (named != select.items.end()) {
      node.kind = NodeKind::kLiteral;
      order.expression = named->expression;
    }
  }
}

}  // namespace

void FailUnknownColumn(std::string_view column) {
  throw RuntimeError(error_number::kEngineUnknownColumn,
                     "There is no column " + lorvane::Left(column, 60) + ".");
}

void Resolve(Statement& statement, const Table* table) {
  SelectStatement* select = std::get_if<SelectStatement>(&statement.body);
  if (select != nullptr) {
    ResolveOrder(statement.expressions, *select, table);
  }
  Resolver(statement.expressions, table,
           select != nullptr ? select->tableAlias : std::string_view())
      .ResolveAll();
  if (select != nullptr) {
    AggregateCheck(statement.expressions, *select).Run();
    return;
  }
  for (const Node& node : statement.expressions.nodes) {
    if (IsAggregate(node.kind)) {
      FailStatement("a sum or count can stand in a SELECT alone.");
    }
  }
}

}  // namespace lorvane::sql
