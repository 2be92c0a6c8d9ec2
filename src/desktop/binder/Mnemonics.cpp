#include "desktop/binder/Mnemonics.h"

#include <QAbstractButton>
#include <QAction>
#include <QKeySequence>
#include <QLabel>
#include <QMenuBar>
#include <QSet>
#include <QVariant>
#include <algorithm>

#include "desktop/binder/QtText.h"

namespace lorvane {
namespace {

constexpr const char* kGiven = "mnemonic";

QChar OwnMnemonic(const QString& caption) {
  const QKeySequence keys = QKeySequence::mnemonic(caption);
  return keys.isEmpty() ? QChar() : keys.toString().back().toUpper();
}

// Marks the letter where it begins a word, or else where it first stands.
QString Marked(QString caption, QChar letter) {
  qsizetype place = -1;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption.at(i).toUpper() != letter) {
      continue;
    }
    const bool beginsWord = i == 0 || !caption.at(i - 1).isLetterOrNumber();
    if (beginsWord || place < 0) {
      place = i;
    }
    if (beginsWord) {
      break;
    }
  }
  return place < 0 ? caption : caption.insert(place, QLatin1Char('&'));
}

// The caption without its mark; "&&" stands for one "&" of the text.
QString Unmarked(const QString& caption) {
  QString text;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption.at(i) != QLatin1Char('&')) {
      text += caption.at(i);
    } else if (i + 1 < caption.size() && caption.at(i + 1) == QLatin1Char('&')) {
      text += QLatin1String("&&");
      ++i;
    }
  }
  return text;
}

QString CaptionFor(const QWidget& widget, std::string_view caption) {
  const QString text = ToQt(caption);
  const QChar given = widget.property(kGiven).toChar();
  return given.isNull() ? text : Marked(Unmarked(text), given);
}

// Letters that begin a word come first, then all others.
QString Candidates(const QString& caption) {
  QString first;
  QString rest;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    const QChar letter = caption.at(i);
    if (letter.isLetterOrNumber()) {
      const bool beginsWord = i == 0 || !caption.at(i - 1).isLetterOrNumber();
      (beginsWord ? first : rest).append(letter.toUpper());
    }
  }
  return first + rest;
}

// Parts that widgets are made of have no mnemonics of ours.
QString CaptionOf(const QWidget& widget) {
  if (widget.objectName().isEmpty() || widget.objectName().startsWith(QLatin1String("qt_"))) {
    return {};
  }
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    return button->text();
  }
  const auto* label = qobject_cast<const QLabel*>(&widget);
  return label != nullptr && label->buddy() != nullptr ? label->text() : QString();
}

void Show(QWidget& widget, const QString& caption) {
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
    button->setText(caption);
  } else if (auto* label = qobject_cast<QLabel*>(&widget)) {
    label->setText(caption);
  }
}

}  // namespace

void SetCaptionOf(QAbstractButton& button, std::string_view caption) {
  button.setText(CaptionFor(button, caption));
}

void SetCaptionOf(QLabel& label, std::string_view caption) {
  label.setText(CaptionFor(label, caption));
}

void AssignMnemonics(QWidget& window) {
  QSet<QChar> used;
  if (const auto* bar = window.findChild<QMenuBar*>()) {
    for (const QAction* menu : bar->actions()) {
      used.insert(OwnMnemonic(menu->text()));
    }
  }
  QList<QWidget*> without;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const QString caption = CaptionOf(*widget);
    const QChar own = OwnMnemonic(caption);
    if (!own.isNull() && !used.contains(own)) {
      used.insert(own);
    } else if (!caption.isEmpty()) {
      without.append(widget);
    }
  }
  // There may be more of them than letters: buttons come first.
  std::stable_partition(without.begin(), without.end(), [](const QWidget* widget) {
    return qobject_cast<const QAbstractButton*>(widget) != nullptr;
  });
  for (QWidget* widget : without) {
    const QString caption = Unmarked(CaptionOf(*widget));
    for (const QChar letter : Candidates(caption)) {
      if (!used.contains(letter)) {
        used.insert(letter);
        widget->setProperty(kGiven, letter);
        Show(*widget, Marked(caption, letter));
        break;
      }
    }
  }
}

QString WithoutMnemonic(QString caption) {
  return caption.remove(QLatin1Char('&')).remove(QLatin1Char(':'));
}

}  // namespace lorvane
