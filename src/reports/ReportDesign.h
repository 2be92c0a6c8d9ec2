#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "data/engine/Value.h"
#include "reports/ReportDocument.h"

namespace lorvane {

/// A row of a design's statement, in the order of the statement's columns.
using DataRow = std::vector<Value>;

/// What a list needs to know besides its rows.
struct FillMoment {
  DateTime now;
};

struct DesignColumn {
  std::string heading;
  ReportFormat format = ReportFormat::kText;
  /// See ReportColumn.
  double width = 60;
  Value (*read)(const DataRow& row, const FillMoment& moment) = nullptr;
  /// Added up, in fixed point, where rows become one, in subtotals and in the total.
  bool summed = false;
  bool grouped = false;
  /// Left out of a report in which it has nothing to show.
  bool optional = false;
};

/// How rows are brought together under a heading.
struct DesignGroup {
  /// Rows of the same key belong together. Groups follow each other by their keys when `sorted`,
  /// and otherwise as the statement gives them.
  Value (*key)(const DataRow& row) = nullptr;
  bool sorted = false;
  std::string (*heading)(const DataRow& row) = nullptr;
  /// The label of the group's sums; null for none.
  std::string (*subtotal)(const DataRow& row) = nullptr;
};

/// A table filled from the rows of a statement, which sorts them.
struct DesignList {
  std::string heading;
  std::string statement;
  std::vector<DesignColumn> columns;
  std::optional<DesignGroup> group;
  /// Neighbours for which this gives the same become one row; null keeps every row.
  bool (*alike)(const DataRow& left, const DataRow& right) = nullptr;
  std::size_t labelColumn = 0;
  /// What the total counts, for one and for several: "payment", "payments". Empty for no total.
  const char* one = "";
  const char* several = "";
};

/// A line of a form: a name, the named text that stands beside it, and a mark in front.
struct DesignField {
  const char* label;
  const char* text;
  /// The named text of the mark; null for none.
  const char* mark = nullptr;
};

struct DesignForm {
  std::string heading;
  std::vector<DesignField> fields;
};

/// A named text object. It keeps what the design gives it until it is set.
struct DesignText {
  enum class Place {
    kElsewhere,
    kHeading,  // a line under the title
    kStated,   // the same, and again on the last page
  };

  const char* name;
  Place place = Place::kElsewhere;
  const char* initial = "";
};

/// A report as it is described: its texts, the tables that it reads, and what it makes of them.
struct ReportDesign {
  std::string title;
  PageOrientation orientation = PageOrientation::kPortrait;
  /// The tables it is pointed at, counted from 1.
  std::vector<std::string> tables;
  std::vector<DesignText> texts;
  std::vector<std::variant<DesignList, DesignForm>> sections;
  /// How the figures were made, for the last page.
  std::vector<std::string> method;
};

}  // namespace lorvane
