#include "desktop/binder/TextBinding.h"

#include <QEvent>
#include <algorithm>

#include "desktop/binder/QtText.h"
#include "screen/Screen.h"

namespace lorvane {

TextBinding::TextBinding(WindowBinder& window, TextBox& control, QLineEdit& edit)
    : Binding(window, control, edit), control_(control), edit_(edit) {
  const auto tell = [this] { TellSelection(); };
  connect(&edit, &QLineEdit::selectionChanged, this, tell);
  connect(&edit, &QLineEdit::cursorPositionChanged, this, tell);
  connect(&edit, &QLineEdit::textEdited, this, [this](const QString& typed) { Replay(typed); });
}

bool TextBinding::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress && control_.Owner().Focus() != &control_) {
    // A click that brings the focus leaves the text selected where the screen selects it.
    return Binding::eventFilter(watched, event) || edit_.hasSelectedText();
  }
  return Binding::eventFilter(watched, event);
}

void TextBinding::ShowValue() {
  const QString text = ToQt(control_.Text());
  if (edit_.text() != text) {
    edit_.setText(text);
  }
  edit_.setReadOnly(control_.ReadOnly());
  const int start = UnitsBefore(text, control_.SelectionStart());
  const int end = UnitsBefore(text, control_.SelectionStart() + control_.SelectionLength());
  if (end == start) {
    if (edit_.hasSelectedText() || edit_.cursorPosition() != start) {
      edit_.setCursorPosition(start);
    }
  } else if (edit_.selectionStart() != start || edit_.selectionEnd() != end) {
    edit_.setSelection(start, end - start);
  }
}

void TextBinding::TellSelection() {
  const QString text = edit_.text();
  if (Showing() || text != ToQt(control_.Text())) {
    return;
  }
  const int from = edit_.hasSelectedText() ? edit_.selectionStart() : edit_.cursorPosition();
  const int to = edit_.hasSelectedText() ? edit_.selectionEnd() : from;
  const std::size_t start = CharactersBefore(text, from);
  control_.Select(start, CharactersBefore(text, to) - start);
}

bool TextBinding::PressKey(int key) {
  TellSelection();
  return Binding::PressKey(key);
}

void TextBinding::Replay(const QString& typed) {
  if (Showing()) {
    return;
  }
  const QList<uint> before = ToQt(control_.Text()).toUcs4();
  const QList<uint> after = typed.toUcs4();
  const auto [beforeFrom, afterFrom] =
      std::mismatch(before.begin(), before.end(), after.begin(), after.end());
  const auto start = beforeFrom - before.begin();
  qsizetype tail = 0;
  while (tail < before.size() - start && tail < after.size() - start &&
         before.at(before.size() - 1 - tail) == after.at(after.size() - 1 - tail)) {
    ++tail;
  }
  const QList<uint> entered = after.mid(start, after.size() - tail - start);
  Act([&] {
    Screen& screen = control_.Owner();
    control_.Select(static_cast<std::size_t>(start),
                    static_cast<std::size_t>(before.size() - tail - start));
    if (entered.empty()) {
      screen.UserKey(control_, key_code::kBackspace);
    }
    for (const uint character : entered) {
      if (character >= ' ') {
        screen.UserKey(control_, static_cast<int>(character));
      }
    }
  });
}

}  // namespace lorvane
