#include "desktop/binder/ListBindings.h"

#include <QBrush>
#include <QEvent>
#include <QItemSelectionModel>
#include <QLineEdit>

#include "desktop/binder/Contrast.h"
#include "desktop/binder/QtText.h"

namespace lorvane {
namespace {

QString EntryTextOf(const ListControl& control, int index) {
  const ListEntry& entry = control.Entries()[static_cast<std::size_t>(index)];
  return ToQt(entry.remark.empty() ? entry.text : entry.text + " (" + entry.remark + ")");
}

// The remark says the same in words.
QBrush ColourOf(const ListControl& control, int index, const QColor& ground) {
  switch (control.Entries()[static_cast<std::size_t>(index)].urgency) {
    case Urgency::kOverdue:
      return ReadableOn(ground, QColor(0xD0, 0x3A, 0x2E));
    case Urgency::kSoon:
      return ReadableOn(ground, QColor(0xB0, 0x74, 0x00));
    case Urgency::kNone:
      break;
  }
  return {};
}

void ShowEntries(const ListControl& control, QListWidget& list) {
  while (list.count() > control.Count()) {
    delete list.takeItem(list.count() - 1);
  }
  for (int i = 0; i < control.Count(); ++i) {
    const QString text = EntryTextOf(control, i);
    if (i >= list.count()) {
      list.addItem(text);
    } else if (list.item(i)->text() != text) {
      list.item(i)->setText(text);
    }
    const QBrush colour = ColourOf(control, i, list.palette().color(QPalette::Base));
    if (list.item(i)->foreground() != colour) {
      list.item(i)->setForeground(colour);
    }
  }
}

void ShowEntries(const ListControl& control, QComboBox& combo) {
  while (combo.count() > control.Count()) {
    combo.removeItem(combo.count() - 1);
  }
  for (int i = 0; i < control.Count(); ++i) {
    const QString text = EntryTextOf(control, i);
    if (i >= combo.count()) {
      combo.addItem(text);
    } else if (combo.itemText(i) != text) {
      combo.setItemText(i, text);
    }
  }
}

}  // namespace

ListBoxBinding::ListBoxBinding(WindowBinder& window, ListBox& control, QListWidget& list)
    : Binding(window, control, list), control_(control), list_(list) {
  Watch(*list.viewport());
  // Getting the focus makes an entry current, but selects none.
  connect(&list, &QListWidget::itemSelectionChanged, this, [this] {
    const QList<QListWidgetItem*> selected = list_.selectedItems();
    if (!selected.empty()) {
      Act([this, row = list_.row(selected.front())] { control_.UserSelect(row); });
    }
  });
  connect(&list, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
    const int row = list_.row(item);
    // A click on the entry that is selected already counts once more.
    if (row == selectedAtPress_) {
      Act([this, row] { control_.UserSelect(row); });
    }
  });
  connect(&list, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem* item) {
    const int row = list_.row(item);
    Act([this, row] { control_.UserDoubleClick(row); });
  });
}

bool ListBoxBinding::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) {
    selectedAtPress_ = control_.ListIndex();
  } else if (event->type() == QEvent::MouseButtonDblClick) {
    // The list tells which entry it was.
    return false;
  } else if (control_.ListIndex() < 0 && SelectsFirstRow(*event)) {
    Act([this] { control_.UserSelect(0); });
    return true;
  }
  return Binding::eventFilter(watched, event);
}

void ListBoxBinding::ShowValue() {
  ShowEntries(control_, list_);
  QListWidgetItem* chosen = list_.item(control_.ListIndex());
  if (chosen == nullptr) {
    list_.clearSelection();
  } else if (!chosen->isSelected() || list_.currentItem() != chosen) {
    list_.setCurrentItem(chosen, QItemSelectionModel::ClearAndSelect);
  }
}

void DropDown::showPopup() {
  if (OnOpening) {
    OnOpening();
  }
  if (isEnabled() && isVisible()) {
    QComboBox::showPopup();
  }
}

ComboBinding::ComboBinding(WindowBinder& window, ComboBox& control, DropDown& combo)
    : Binding(window, control, combo), control_(control), combo_(combo) {
  combo.setEditable(control.BoxStyle() == ComboBox::Style::kDropDown);
  combo.setInsertPolicy(QComboBox::NoInsert);
  combo.OnOpening = [this] { Act([this] { control_.UserDropDown(); }); };
  connect(&combo, &QComboBox::activated, this,
          [this](int index) { Act([this, index] { control_.ListControl::UserSelect(index); }); });
  if (QLineEdit* edit = combo.lineEdit()) {
    Watch(*edit);
    edit->setCompleter(nullptr);
    connect(edit, &QLineEdit::textEdited, this, [this](const QString& typed) {
      Act([this, typed] { control_.SetText(FromQt(typed)); });
    });
  }
}

void ComboBinding::ShowValue() {
  ShowEntries(control_, combo_);
  if (combo_.currentIndex() != control_.ListIndex()) {
    combo_.setCurrentIndex(control_.ListIndex());
  }
  if (QLineEdit* edit = combo_.lineEdit()) {
    const QString text = ToQt(control_.Text());
    if (edit->text() != text) {
      edit->setText(text);
    }
  }
}

}  // namespace lorvane
