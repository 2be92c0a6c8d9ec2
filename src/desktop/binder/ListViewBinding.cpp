#include "desktop/binder/ListViewBinding.h"

#include <QEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QItemSelectionModel>
#include <QToolTip>
#include <algorithm>
#include <numeric>

namespace lorvane {
namespace {

// A character of a list takes about this many of the screens' units.
constexpr int kUnitsPerCharacter = 120;

// The selected rows of the control, with runs of rows as one range each.
QItemSelection SelectionOf(const ListView& control, const QAbstractItemModel& model) {
  QItemSelection selection;
  const int lastColumn = model.columnCount() - 1;
  const int count = std::min(control.Count(), model.rowCount());
  for (int row = 0; row < count; ++row) {
    if (!control.IsSelected(row)) {
      continue;
    }
    const int first = row;
    while (row + 1 < count && control.IsSelected(row + 1)) {
      ++row;
    }
    selection.select(model.index(first, 0), model.index(row, lastColumn));
  }
  return selection;
}

}  // namespace

ListViewBinding::ListViewBinding(WindowBinder& window, ListView& control, QTreeView& view)
    : Binding(window, control, view),
      control_(control),
      view_(view),
      model_(new ListViewModel(control, &view)) {
  view.setModel(model_);
  view.setRootIsDecorated(false);
  view.setItemsExpandable(false);
  view.setUniformRowHeights(true);
  view.setAllColumnsShowFocus(true);
  view.setEditTriggers(QAbstractItemView::NoEditTriggers);
  view.setSelectionBehavior(QAbstractItemView::SelectRows);
  view.setSelectionMode(control.MultiSelect() ? QAbstractItemView::ExtendedSelection
                                              : QAbstractItemView::SingleSelection);
  view.header()->setSectionsClickable(true);
  view.header()->setSectionsMovable(false);
  view.header()->setStretchLastSection(false);
  view.header()->setHighlightSections(false);
  Watch(*view.viewport());
  connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this] { TellSelection(); });
  connect(&view, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) {
    Act([this, row = index.row()] { control_.UserDoubleClick(row); });
  });
  connect(view.header(), &QHeaderView::sectionClicked, this, [this](int section) {
    Act([this, section] { control_.UserColumnClick(static_cast<std::size_t>(section)); });
  });
}

bool ListViewBinding::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonDblClick) {
    // The view tells which row it was.
    return false;
  }
  if (event->type() == QEvent::Resize && watched == view_.viewport()) {
    FitColumns();
  }
  if (event->type() == QEvent::ToolTip && watched == view_.viewport()) {
    return TellCutText(*static_cast<QHelpEvent*>(event));
  }
  if (control_.SelectedIndex() < 0 && SelectsFirstRow(*event)) {
    Act([this] { control_.UserSelectRows({0}); });
    return true;
  }
  return Binding::eventFilter(watched, event);
}

// The whole text of a cell that has no room for it.
bool ListViewBinding::TellCutText(const QHelpEvent& event) {
  const QModelIndex index = view_.indexAt(event.pos());
  if (!index.isValid() ||
      view_.sizeHintForIndex(index).width() <= view_.visualRect(index).width()) {
    return false;
  }
  QToolTip::showText(event.globalPos(), index.data().toString(), &view_);
  return true;
}

void ListViewBinding::ShowValue() {
  if (model_->Follow()) {
    LayOutColumns();
  }
  const std::optional<std::size_t> sorted = control_.SortPlace();
  view_.header()->setSortIndicatorShown(sorted.has_value());
  if (sorted) {
    view_.header()->setSortIndicator(static_cast<int>(*sorted), Qt::AscendingOrder);
  }
  ShowSelection();
}

void ListViewBinding::LayOutColumns() {
  QHeaderView& header = *view_.header();
  const int character = view_.fontMetrics().averageCharWidth();
  widths_.clear();
  for (int i = 0; i < model_->columnCount({}); ++i) {
    const int width = control_.Columns()[static_cast<std::size_t>(i)].width;
    header.setSectionHidden(i, width == 0);
    widths_.push_back(
        width == 0 ? 0
                   : std::max(width * character / kUnitsPerCharacter, header.sectionSizeHint(i)));
  }
  FitColumns();
}

// The columns share what room there is beyond their own widths.
void ListViewBinding::FitColumns() {
  QHeaderView& header = *view_.header();
  const int total = std::accumulate(widths_.begin(), widths_.end(), 0);
  const int room = std::max(view_.viewport()->width(), total);
  for (int i = 0; i < header.count() && total > 0; ++i) {
    const int width = widths_[static_cast<std::size_t>(i)];
    if (width > 0) {
      header.resizeSection(i, width * room / total);
    }
  }
}

void ListViewBinding::ShowSelection() {
  QItemSelectionModel& selection = *view_.selectionModel();
  selection.select(SelectionOf(control_, *model_), QItemSelectionModel::ClearAndSelect);
  const int current = control_.SelectedIndex();
  if (current >= 0 && selection.currentIndex().row() != current) {
    selection.setCurrentIndex(model_->index(current, 0), QItemSelectionModel::NoUpdate);
    view_.scrollTo(model_->index(current, 0));
  }
  if (control_.RowToShow() != shownRow_) {
    shownRow_ = control_.RowToShow();
    if (shownRow_ >= 0) {
      view_.scrollTo(model_->index(shownRow_, 0));
    }
  }
}

void ListViewBinding::TellSelection() {
  std::vector<int> rows;
  const int current = view_.selectionModel()->currentIndex().row();
  for (const QModelIndex& index : view_.selectionModel()->selectedRows()) {
    if (index.row() != current) {
      rows.push_back(index.row());
    }
  }
  // The current row is the one that is named last.
  if (current >= 0 && view_.selectionModel()->isRowSelected(current)) {
    rows.push_back(current);
  }
  Act([&] { control_.UserSelectRows(rows); });
}

}  // namespace lorvane
