#pragma once

#include <string_view>

#include "data/engine/Ast.h"
#include "data/engine/Rendered.h"

namespace lorvane::sql {

/// Appends resolved expressions to a statement in the data file's own language.
class ExpressionRenderer {
 public:
  ExpressionRenderer(const Expressions& expressions, Rendered& out)
      : expressions_(&expressions), out_(&out) {}

  /// As a condition, which that language knows as 1, 0 and null.
  void RenderCondition(NodeIndex index);
  /// As a value: a condition gives -1, 0 and null.
  void RenderValue(NodeIndex index);
  /// As something to sort, group or tell apart by: texts without regard to case.
  void RenderKey(NodeIndex index);
  /// As what the column is to store.
  void RenderAssigned(NodeIndex index, const Column& column);
  void BindValue(Value stored);

 private:
  // What both sides of a comparison are read as. In a list the last of these that an entry asks for
  // holds for all.
  enum class Reading { kAsIs, kDate, kNumber, kFlag, kText };

  [[nodiscard]] const Node& At(NodeIndex index) const { return expressions_->At(index); }
  [[nodiscard]] static Reading CommonReading(const Node& left, const Node& right);
  [[nodiscard]] Reading ListReading(const Node& list) const;

  void RenderAs(NodeIndex index, Reading reading);
  void RenderNumber(NodeIndex index, Reading reading);
  void RenderText(NodeIndex index);
  void RenderDate(NodeIndex index);
  void RenderCall(const char* function, NodeIndex index);
  void RenderComparison(const Node& node);
  void RenderArithmetic(const Node& node);
  void RenderChain(const Node& node);
  void RenderList(const Node& node);
  void RenderLike(const Node& node);
  void RenderAggregate(const Node& node);
  void RenderTest(const Node& node);
  void RenderLiteral(const Value& literal);
  void Append(std::string_view text) { out_->sql += text; }

  const Expressions* expressions_;
  Rendered* out_;
};

}  // namespace lorvane::sql
