#include "reports/ListFill.h"

#include <algorithm>
#include <utility>

#include "basic/Money.h"
#include "basic/RuntimeError.h"

namespace lorvane {
namespace {

Currency Sum(Currency left, Currency right) {
  std::int64_t sum = 0;
  if (__builtin_add_overflow(left.TenThousandths(), right.TenThousandths(), &sum)) {
    throw RuntimeError(error_number::kOverflow);
  }
  return Currency::FromTenThousandths(sum);
}

// A sum takes the kind of what is added; nothing has been added to a null one.
void AddTo(Value& sum, const Value& value) {
  if (IsNull(value)) {
    return;
  }
  if (IsNull(sum)) {
    sum = value;
  } else if (Currency* amount = std::get_if<Currency>(&sum)) {
    *amount = Sum(*amount, std::get<Currency>(value));
  } else {
    std::get<std::int32_t>(sum) += std::get<std::int32_t>(value);
  }
}

class Filler {
 public:
  Filler(const DesignList& list, const FillMoment& moment) : list_(list), moment_(moment) {
    section_.heading = list.heading;
    section_.labelColumn = list.labelColumn;
    for (const DesignColumn& column : list.columns) {
      section_.columns.push_back({column.heading, column.format, column.width, column.grouped});
    }
    ofGroup_.resize(list.columns.size());
    ofAll_.resize(list.columns.size());
  }

  void Add(const DataRow& row) {
    const bool newGroup =
        list_.group && (last_ == nullptr || list_.group->key(*last_) != list_.group->key(row));
    if (newGroup) {
      EndGroup();
      section_.rows.push_back({ReportRow::Kind::kGroup, {}, list_.group->heading(row)});
    }
    const bool joins =
        !newGroup && last_ != nullptr && list_.alike != nullptr && list_.alike(*last_, row);
    std::vector<Value> cells = Read(row);
    AddSums(ofGroup_, cells);
    if (joins) {
      AddSums(section_.rows.back().cells, cells);
    } else {
      section_.rows.push_back({ReportRow::Kind::kDetail, std::move(cells), {}});
    }
    last_ = &row;
  }

  FilledList End(std::size_t rows) {
    EndGroup();
    std::string count;
    if (*list_.one != '\0') {
      count = std::to_string(rows) + " " + (rows == 1 ? list_.one : list_.several);
      section_.rows.push_back({ReportRow::Kind::kTotal, std::move(ofAll_), "Total of " + count});
    }
    LeaveOutEmptyColumns();
    return {std::move(section_), std::move(count)};
  }

 private:
  // The label column is never one of them, and they stand behind it.
  void LeaveOutEmptyColumns() {
    for (std::size_t column = list_.columns.size(); column-- > 0;) {
      const auto isEmpty = [&](const ReportRow& row) {
        return row.cells.empty() || IsNull(row.cells[column]);
      };
      if (!list_.columns[column].optional ||
          !std::all_of(section_.rows.begin(), section_.rows.end(), isEmpty)) {
        continue;
      }
      const auto place = static_cast<std::ptrdiff_t>(column);
      section_.columns.erase(section_.columns.begin() + place);
      for (ReportRow& row : section_.rows) {
        if (!row.cells.empty()) {
          row.cells.erase(row.cells.begin() + place);
        }
      }
    }
  }

  [[nodiscard]] std::vector<Value> Read(const DataRow& row) const {
    std::vector<Value> cells;
    cells.reserve(list_.columns.size());
    for (const DesignColumn& column : list_.columns) {
      cells.push_back(column.read(row, moment_));
    }
    return cells;
  }

  void AddSums(std::vector<Value>& sums, const std::vector<Value>& cells) const {
    for (std::size_t i = 0; i < cells.size(); ++i) {
      if (list_.columns[i].summed) {
        AddTo(sums[i], cells[i]);
      }
    }
  }

  void EndGroup() {
    AddSums(ofAll_, ofGroup_);
    if (last_ != nullptr && list_.group && list_.group->subtotal != nullptr) {
      section_.rows.push_back(
          {ReportRow::Kind::kSubtotal, ofGroup_, list_.group->subtotal(*last_)});
    }
    ofGroup_.assign(list_.columns.size(), Value());
  }

  const DesignList& list_;
  const FillMoment& moment_;
  ReportSection section_;
  const DataRow* last_ = nullptr;
  std::vector<Value> ofGroup_;
  std::vector<Value> ofAll_;
};

}  // namespace

FilledList FillList(const DesignList& list, EngineConnection& connection,
                    const FillMoment& moment) {
  ResultTable table = connection.Query(list.statement);
  if (list.group && list.group->sorted) {
    std::stable_sort(table.rows.begin(), table.rows.end(),
                     [&](const DataRow& left, const DataRow& right) {
                       return list.group->key(left) < list.group->key(right);
                     });
  }
  Filler filler(list, moment);
  for (const DataRow& row : table.rows) {
    filler.Add(row);
  }
  return filler.End(table.rows.size());
}

}  // namespace lorvane
