#include "desktop/binder/FormGrid.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <algorithm>
#include <utility>

#include "screen/Buttons.h"
#include "screen/Screen.h"
#include "screen/TextBox.h"

namespace lorvane {
namespace {

constexpr std::size_t kPrefix = 3;
// Fields for more characters than this grow with the window instead.
constexpr int kWidest = 34;
// Less of a field can't be read; so much fits on a small screen.
constexpr int kNarrowest = 24;
constexpr int kLines = 3;

}  // namespace

FormGrid::FormGrid(WindowBinder& binder) : binder_(binder), grid_(new QGridLayout) {
  grid_->setColumnStretch(1, 1);
}

QLabel* FormGrid::LabelOf(const Control& field, QWidget& widget) const {
  // A button beside a field has that field's name, and no label of its own.
  if (qobject_cast<QAbstractButton*>(&widget) != nullptr ||
      qobject_cast<QLabel*>(&widget) != nullptr) {
    return nullptr;
  }
  auto* label = dynamic_cast<Label*>(binder_.Model().Find("lbl" + field.Name().substr(kPrefix)));
  return label == nullptr ? nullptr : binder_.MakeNaming(*label, widget);
}

QWidget* FormGrid::Sized(Control& field) const {
  QWidget* widget = binder_.MakeField(field);
  const int character = widget->fontMetrics().averageCharWidth();
  constexpr int kFrame = 3;
  if (const auto* text = dynamic_cast<const TextBox*>(&field)) {
    const int characters = static_cast<int>(text->MaxLength());
    if (text->MultiLine) {
      widget->setMinimumHeight((kLines + 1) * widget->fontMetrics().lineSpacing());
      widget->setMaximumHeight(2 * widget->minimumHeight());
    } else if (characters > 0 && characters < kWidest) {
      widget->setFixedWidth(
          (characters + kFrame) *
          std::max(character, widget->fontMetrics().horizontalAdvance(QLatin1Char('0'))));
    } else {
      widget->setMinimumWidth(kNarrowest * character);
    }
  } else if (auto* button = qobject_cast<QPushButton*>(widget); button != nullptr) {
    if (button->text().size() <= static_cast<qsizetype>(kPrefix)) {
      button->setFixedWidth(widget->fontMetrics().horizontalAdvance(QLatin1String("  ...  ")));
    }
  }
  return widget;
}

void FormGrid::Row(std::initializer_list<Control*> fields) {
  auto* line = new QHBoxLayout;
  bool named = false;
  QString name;
  for (Control* field : fields) {
    QWidget* widget = Sized(*field);
    if (QLabel* label = LabelOf(*field, *widget)) {
      name = widget->accessibleName();
      // The first label names the row, also where a field without one stands before it.
      if (!std::exchange(named, true)) {
        grid_->addWidget(label, row_, 0, Qt::AlignVCenter);
      } else {
        line->addSpacing(widget->fontMetrics().averageCharWidth());
        line->addWidget(label);
      }
    }
    // The button beside a field says nothing but that there is more to choose from.
    if (qobject_cast<QPushButton*>(widget) != nullptr && field->Tip().empty() && !name.isEmpty()) {
      widget->setAccessibleName(QWidget::tr("Choose: %1").arg(name));
    }
    line->addWidget(widget, widget->minimumWidth() == widget->maximumWidth() ? 0 : 1);
  }
  // Takes the room that is left where nothing else does.
  line->addStretch(0);
  grid_->addLayout(line, row_++, 1);
}

void FormGrid::Wide(QWidget* widget) { grid_->addWidget(widget, row_++, 0, 1, 2); }

void FormGrid::Fill() { grid_->setRowStretch(row_++, 1); }

}  // namespace lorvane
