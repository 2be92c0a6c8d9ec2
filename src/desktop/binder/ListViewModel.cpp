#include "desktop/binder/ListViewModel.h"

#include <QGuiApplication>
#include <QPalette>
#include <algorithm>

#include "desktop/binder/Contrast.h"
#include "desktop/binder/QtText.h"

namespace lorvane {
namespace {

Qt::Alignment AlignmentOf(const ListView::ViewColumn& column) {
  return Qt::AlignVCenter |
         (column.alignment == ListView::Alignment::kRight ? Qt::AlignRight : Qt::AlignLeft);
}

// Black is the system's own text colour; another one is made to be read on the ground of every row.
QVariant ColourOf(const ListView& control) {
  if (control.TextColour() == ListView::kBlack) {
    return {};
  }
  const QPalette palette = QGuiApplication::palette();
  const QColor colour = ReadableOn(palette.color(QPalette::Base),
                                   QColor::fromRgb(static_cast<QRgb>(control.TextColour())));
  return ReadableOn(palette.color(QPalette::AlternateBase), colour);
}

}  // namespace

ListViewModel::ListViewModel(const ListView& control, QObject* parent)
    : QAbstractTableModel(parent), control_(control) {}

bool ListViewModel::Follow() {
  const bool sameColumns = SameColumns();
  if (sameColumns && rows_ == control_.Count()) {
    if (rows_ > 0) {
      emit dataChanged(index(0, 0), index(rows_ - 1, static_cast<int>(columns_.size()) - 1));
    }
    return false;
  }
  beginResetModel();
  columns_ = control_.Columns();
  rows_ = control_.Count();
  endResetModel();
  return !sameColumns;
}

bool ListViewModel::SameColumns() const {
  return std::equal(columns_.begin(), columns_.end(), control_.Columns().begin(),
                    control_.Columns().end(), [](const auto& left, const auto& right) {
                      return left.heading == right.heading && left.width == right.width &&
                             left.alignment == right.alignment;
                    });
}

int ListViewModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int ListViewModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant ListViewModel::data(const QModelIndex& index, int role) const {
  if (index.row() >= control_.Count() || index.column() >= static_cast<int>(columns_.size())) {
    return {};
  }
  const auto place = static_cast<std::size_t>(index.column());
  switch (role) {
    case Qt::DisplayRole:
      return ToQt(control_.Cell(index.row(), place));
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(AlignmentOf(columns_[place]));
    case Qt::ForegroundRole:
      return ColourOf(control_);
    default:
      return {};
  }
}

QVariant ListViewModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section >= static_cast<int>(columns_.size())) {
    return {};
  }
  const ListView::ViewColumn& column = columns_[static_cast<std::size_t>(section)];
  if (role == Qt::DisplayRole) {
    return ToQt(column.heading);
  }
  return role == Qt::TextAlignmentRole ? QVariant::fromValue(AlignmentOf(column)) : QVariant();
}

}  // namespace lorvane
