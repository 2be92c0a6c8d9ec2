#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "screen/ListView.h"

namespace lorvane {

/// The rows of a list view as the toolkit's views read them, straight from the control.
class ListViewModel : public QAbstractTableModel {
 public:
  ListViewModel(const ListView& control, QObject* parent);

  /// Tells the views what has changed in the control since the last time. True when the columns
  /// did.
  bool Follow();

  [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role) const override;

 private:
  [[nodiscard]] bool SameColumns() const;

  const ListView& control_;
  std::vector<ListView::ViewColumn> columns_;
  int rows_ = 0;
};

}  // namespace lorvane
