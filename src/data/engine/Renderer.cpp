#include "data/engine/Renderer.h"

#include <algorithm>
#include <string>
#include <utility>

#include "basic/RuntimeError.h"
#include "data/engine/Conversion.h"
#include "data/engine/ExpressionRenderer.h"
#include "data/engine/Lexer.h"
#include "data/engine/Names.h"
#include "data/engine/Resolver.h"

namespace lorvane::sql {
namespace {

constexpr std::size_t kUsualLength = 768;
constexpr int kFirstUnnamed = 1000;

void AppendComma(std::string& sql, bool first) {
  if (!first) {
    sql += ',';
  }
}

const Column& InsertedColumn(const Table& table, std::string_view name) {
  const Column* column = table.Find(name);
  if (column == nullptr) {
    FailStatement("the table " + table.name + " has no column " + std::string(name) + ".");
  }
  return *column;
}

const Column& UpdatedColumn(const Table& table, std::string_view name) {
  const Column* column = table.Find(name);
  if (column == nullptr) {
    FailUnknownColumn(name);
  }
  return *column;
}

void RefuseTwice(const std::vector<const Column*>& columns) {
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (std::find(columns.begin(), columns.begin() + static_cast<std::ptrdiff_t>(i), columns[i]) !=
        columns.begin() + static_cast<std::ptrdiff_t>(i)) {
      FailStatement("the column " + columns[i]->name + " is given twice.");
    }
  }
}

class StatementRenderer {
 public:
  StatementRenderer(Statement& statement, const Table* table)
      : statement_(&statement), table_(table), expression_(statement.expressions, out_) {
    Resolve(statement, table);
    out_.sql.reserve(kUsualLength);
    out_.parameters.reserve(statement.expressions.nodes.size());
  }

  Rendered Select(const SelectStatement& select, bool forUpdate) {
    out_.sql = select.distinct ? "SELECT DISTINCT " : "SELECT ";
    if (forUpdate) {
      out_.sql += "_rowid_";
    }
    for (const SelectItem& item : select.items) {
      AppendItem(item, select.distinct);
    }
    if (table_ != nullptr) {
      out_.sql += " FROM ";
      AppendName(out_.sql, table_->name);
    }
    AppendWhere(select.where);
    AppendGroups(select);
    AppendOrder(select);
    if (select.top) {
      out_.sql += " LIMIT ";
      expression_.BindValue(*select.top);
    }
    return std::move(out_);
  }

  Rendered Insert(const InsertStatement& insert) {
    std::vector<const Column*> columns;
    for (const std::string_view name : insert.columns) {
      columns.push_back(&InsertedColumn(*table_, name));
    }
    if (columns.empty()) {
      for (const Column& column : table_->columns) {
        columns.push_back(&column);
      }
    }
    RefuseTwice(columns);
    if (columns.size() != insert.values.size()) {
      FailStatement("it names " + std::to_string(columns.size()) + " columns and gives " +
                    std::to_string(insert.values.size()) + " values.");
    }
    out_.sql = "INSERT INTO ";
    AppendName(out_.sql, table_->name);
    out_.sql += " (";
    for (std::size_t i = 0; i < columns.size(); ++i) {
      AppendComma(out_.sql, i == 0);
      AppendName(out_.sql, columns[i]->name);
    }
    out_.sql += ") VALUES (";
    for (std::size_t i = 0; i < columns.size(); ++i) {
      AppendComma(out_.sql, i == 0);
      expression_.RenderAssigned(insert.values[i], *columns[i]);
    }
    out_.sql += ")";
    // It is one row, written whole or not at all.
    out_.mayFailMidway = false;
    return std::move(out_);
  }

  Rendered Update(const UpdateStatement& update) {
    out_.sql = "UPDATE ";
    AppendName(out_.sql, table_->name);
    out_.sql += " SET ";
    std::vector<const Column*> columns;
    for (const Assignment& assignment : update.assignments) {
      const Column& column = UpdatedColumn(*table_, assignment.column);
      AppendComma(out_.sql, columns.empty());
      columns.push_back(&column);
      AppendName(out_.sql, column.name);
      out_.sql += "=";
      expression_.RenderAssigned(assignment.value, column);
    }
    RefuseTwice(columns);
    AppendWhere(update.where);
    return std::move(out_);
  }

  Rendered Delete(const DeleteStatement& remove) {
    out_.sql = "DELETE FROM ";
    AppendName(out_.sql, table_->name);
    AppendWhere(remove.where);
    return std::move(out_);
  }

 private:
  void AppendItem(const SelectItem& item, bool distinct) {
    if (item.expression == kNoNode) {
      if (table_ == nullptr) {
        FailStatement("it names no table.");
      }
      for (const Column& column : table_->columns) {
        AppendComma(out_.sql, IsFirstColumn());
        AppendName(out_.sql, column.name);
        out_.columns.push_back(column);
      }
      return;
    }
    AppendComma(out_.sql, IsFirstColumn());
    if (distinct) {
      expression_.RenderKey(item.expression);
    } else {
      expression_.RenderValue(item.expression);
    }
    out_.columns.push_back(ResultColumn(item));
  }

  [[nodiscard]] bool IsFirstColumn() const {
    const char last = out_.sql.back();
    return out_.columns.empty() && last == ' ';
  }

  Column ResultColumn(const SelectItem& item) {
    const Node& node = statement_->expressions.At(item.expression);
    Column column;
    if (node.kind == NodeKind::kColumn) {
      column = *node.column;
    } else if (node.kind == NodeKind::kLiteral || IsCondition(node.kind) ||
               (IsAggregate(node.kind) && node.kind != NodeKind::kAvg)) {
      column.type = node.type;
    }
    if (!item.alias.empty()) {
      column.name = item.alias;
    } else if (node.kind != NodeKind::kColumn) {
      column.name = "Expr" + std::to_string(nextUnnamed_++);
    }
    return column;
  }

  void AppendWhere(NodeIndex where) {
    if (where != kNoNode) {
      out_.sql += " WHERE ";
      expression_.RenderCondition(where);
    }
  }

  void AppendGroups(const SelectStatement& select) {
    for (std::size_t i = 0; i < select.groupBy.size(); ++i) {
      out_.sql += i == 0 ? " GROUP BY " : ",";
      expression_.RenderKey(select.groupBy[i]);
    }
    if (select.having != kNoNode) {
      // Without groups all rows are one.
      out_.sql += select.groupBy.empty() ? " GROUP BY NULL HAVING " : " HAVING ";
      expression_.RenderCondition(select.having);
    }
  }

  void AppendOrder(const SelectStatement& select) {
    for (std::size_t i = 0; i < select.orderBy.size(); ++i) {
      out_.sql += i == 0 ? " ORDER BY " : ",";
      expression_.RenderKey(select.orderBy[i].expression);
      out_.sql += select.orderBy[i].descending ? " DESC" : "";
    }
  }

  Statement* statement_;
  const Table* table_;
  Rendered out_;
  ExpressionRenderer expression_;
  int nextUnnamed_ = kFirstUnnamed;
};

template <typename Body>
const Body& BodyOf(const Statement& statement) {
  return std::get<Body>(statement.body);
}

}  // namespace

Rendered RenderSelect(Statement& statement, const Table* table) {
  return StatementRenderer(statement, table).Select(BodyOf<SelectStatement>(statement), false);
}

Rendered RenderSelectForUpdate(Statement& statement, const Table& table) {
  const auto& select = BodyOf<SelectStatement>(statement);
  const bool plain =
      !select.distinct && select.groupBy.empty() && select.having == kNoNode &&
      std::all_of(select.items.begin(), select.items.end(), [&](const SelectItem& item) {
        return item.expression == kNoNode ||
               (item.alias.empty() &&
                statement.expressions.At(item.expression).kind == NodeKind::kColumn);
      });
  if (!plain) {
    FailStatement("rows to be changed are selected by plain columns.");
  }
  return StatementRenderer(statement, &table).Select(select, true);
}

Rendered RenderInsert(Statement& statement, const Table& table) {
  return StatementRenderer(statement, &table).Insert(BodyOf<InsertStatement>(statement));
}

Rendered RenderUpdate(Statement& statement, const Table& table) {
  return StatementRenderer(statement, &table).Update(BodyOf<UpdateStatement>(statement));
}

Rendered RenderDelete(Statement& statement, const Table& table) {
  return StatementRenderer(statement, &table).Delete(BodyOf<DeleteStatement>(statement));
}

Rendered RenderRowUpdate(const Table& table, std::int64_t rowNumber, const ColumnValues& values) {
  Rendered out;
  out.sql = "UPDATE ";
  AppendName(out.sql, table.name);
  for (std::size_t i = 0; i < values.size(); ++i) {
    const Column& column = UpdatedColumn(table, values[i].first);
    out.sql += i == 0 ? " SET " : ",";
    AppendName(out.sql, column.name);
    out.sql += "=?";
    out.parameters.push_back(ToStored(values[i].second, column));
  }
  out.sql += " WHERE _rowid_=?";
  out.rowNumber = rowNumber;
  return out;
}

Rendered RenderRowInsert(const Table& table, const ColumnValues& values) {
  Rendered out;
  std::string marks;
  out.sql = "INSERT INTO ";
  AppendName(out.sql, table.name);
  for (const auto& [name, value] : values) {
    const Column& column = InsertedColumn(table, name);
    out.sql += out.parameters.empty() ? " (" : ",";
    AppendName(out.sql, column.name);
    marks += out.parameters.empty() ? "?" : ",?";
    out.parameters.push_back(ToStored(value, column));
  }
  out.sql += values.empty() ? " DEFAULT VALUES" : ") VALUES (" + marks + ")";
  return out;
}

}  // namespace lorvane::sql
