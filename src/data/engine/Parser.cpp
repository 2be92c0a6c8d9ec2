#include "data/engine/Parser.h"

#include <utility>

#include "data/engine/ColumnTypes.h"
#include "data/engine/ExpressionParser.h"
#include "data/engine/TokenStream.h"

namespace lorvane::sql {
namespace {

constexpr std::size_t kUsualNodes = 32;
constexpr int kWidestText = 65535;

class StatementParser {
 public:
  explicit StatementParser(std::string_view text)
      : tokens_(text), expression_(tokens_, result_.expressions) {
    result_.expressions.nodes.reserve(kUsualNodes);
  }

  Statement Parse() {
    if (tokens_.Current().kind == TokenKind::kEnd) {
      FailStatement("it is empty.");
    }
    ParseBody();
    const bool ended = tokens_.Accept(';');
    if (tokens_.Current().kind != TokenKind::kEnd) {
      if (ended) {
        FailStatement("more follows its semicolon, and one statement is run at a time.");
      }
      tokens_.FailHere();
    }
    return std::move(result_);
  }

 private:
  void ParseBody() {
    if (tokens_.Accept(Word::kSelect)) {
      result_.body = ParseSelect();
    } else if (tokens_.Accept(Word::kInsert)) {
      result_.body = ParseInsert();
    } else if (tokens_.Accept(Word::kUpdate)) {
      result_.body = ParseUpdate();
    } else if (tokens_.Accept(Word::kDelete)) {
      result_.body = ParseDelete();
    } else if (tokens_.Accept(Word::kAlter)) {
      result_.body = ParseAlter();
    } else {
      FailStatement("it must begin with SELECT, INSERT, UPDATE, DELETE or ALTER.");
    }
  }

  SelectStatement ParseSelect() {
    SelectStatement select;
    select.distinct = tokens_.Accept(Word::kDistinct);
    ParseTop(select);
    do {
      select.items.push_back(ParseItem());
    } while (tokens_.Accept(','));
    if (tokens_.Accept(Word::kFrom)) {
      select.table = tokens_.TakeName();
      if (tokens_.Accept(Word::kAs) || tokens_.IsName()) {
        select.tableAlias = tokens_.TakeName();
      }
    }
    select.where = ParseWhere();
    if (tokens_.Accept(Word::kGroup)) {
      tokens_.Expect(Word::kBy);
      do {
        select.groupBy.push_back(expression_.Parse());
      } while (tokens_.Accept(','));
    }
    if (tokens_.Accept(Word::kHaving)) {
      select.having = expression_.Parse();
    }
    ParseOrder(select);
    return select;
  }

  // TOP is a name as well: "SELECT Top, Name" asks for a column.
  void ParseTop(SelectStatement& select) {
    if (tokens_.CurrentWord() != Word::kTop) {
      return;
    }
    TokenStream ahead = tokens_;
    ahead.Advance();
    if (ahead.Current().kind == TokenKind::kNumber) {
      tokens_ = ahead;
      select.top = tokens_.TakeCount();
    }
  }

  SelectItem ParseItem() {
    SelectItem item;
    if (tokens_.Accept('*')) {
      return item;
    }
    item.expression = expression_.Parse();
    if (tokens_.Accept(Word::kAs) || tokens_.IsName()) {
      item.alias = tokens_.TakeName();
    }
    return item;
  }

  NodeIndex ParseWhere() { return tokens_.Accept(Word::kWhere) ? expression_.Parse() : kNoNode; }

  void ParseOrder(SelectStatement& select) {
    if (!tokens_.Accept(Word::kOrder)) {
      return;
    }
    tokens_.Expect(Word::kBy);
    do {
      OrderItem item;
      item.expression = expression_.Parse();
      item.descending = tokens_.Accept(Word::kDesc);
      if (!item.descending) {
        tokens_.Accept(Word::kAsc);
      }
      select.orderBy.push_back(item);
    } while (tokens_.Accept(','));
  }

  InsertStatement ParseInsert() {
    InsertStatement insert;
    tokens_.Expect(Word::kInto);
    insert.table = tokens_.TakeName();
    if (tokens_.Accept('(')) {
      do {
        insert.columns.push_back(tokens_.TakeName());
      } while (tokens_.Accept(','));
      tokens_.Expect(')');
    }
    tokens_.Expect(Word::kValues);
    tokens_.Expect('(');
    do {
      insert.values.push_back(expression_.Parse());
    } while (tokens_.Accept(','));
    tokens_.Expect(')');
    return insert;
  }

  UpdateStatement ParseUpdate() {
    UpdateStatement update;
    update.table = tokens_.TakeName();
    tokens_.Expect(Word::kSet);
    do {
      Assignment assignment;
      assignment.column = tokens_.TakeName();
      tokens_.Expect('=');
      assignment.value = expression_.Parse();
      update.assignments.push_back(assignment);
    } while (tokens_.Accept(','));
    update.where = ParseWhere();
    return update;
  }

  DeleteStatement ParseDelete() {
    DeleteStatement remove;
    tokens_.Accept('*');
    tokens_.Expect(Word::kFrom);
    remove.table = tokens_.TakeName();
    remove.where = ParseWhere();
    return remove;
  }

  AlterStatement ParseAlter() {
    AlterStatement alter;
    tokens_.Expect(Word::kTable);
    alter.table = tokens_.TakeName();
    alter.adds = tokens_.Accept(Word::kAdd);
    if (alter.adds) {
      tokens_.Accept(Word::kColumn);
    } else {
      tokens_.Expect(Word::kAlter);
      tokens_.Expect(Word::kColumn);
    }
    alter.column.name = tokens_.TakeName();
    ParseType(alter.column);
    return alter;
  }

  void ParseType(Column& column) {
    const std::optional<ColumnType> type = TypeNamed(tokens_.Current().text);
    if (!type) {
      tokens_.FailHere();
    }
    column.type = *type;
    tokens_.Advance();
    if (column.type != ColumnType::kText || !tokens_.Accept('(')) {
      return;
    }
    column.size = tokens_.TakeCount();
    if (column.size < 1 || column.size > kWidestText) {
      FailStatement("a text column can't be " + std::to_string(column.size) + " characters wide.");
    }
    tokens_.Expect(')');
  }

  Statement result_;
  TokenStream tokens_;
  ExpressionParser expression_;
};

}  // namespace

Statement Parse(std::string_view text) { return StatementParser(text).Parse(); }

}  // namespace lorvane::sql
