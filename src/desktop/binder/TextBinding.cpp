#include "desktop/binder/TextBinding.h"

#include <QEvent>
#include <QTextCursor>
#include <algorithm>

#include "basic/Text.h"
#include "desktop/binder/QtText.h"
#include "screen/Screen.h"

namespace lorvane {

TextBinding::TextBinding(WindowBinder& window, TextBox& control, QWidget& widget)
    : Binding(window, control, widget), control_(control) {}

bool TextBinding::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress && control_.Owner().Focus() != &control_) {
    // A click that brings the focus leaves the text selected where the screen selects it.
    const bool handled = Binding::eventFilter(watched, event);
    const Span span = EditorSpan();
    return handled || span.start != span.end;
  }
  return Binding::eventFilter(watched, event);
}

std::size_t TextBinding::CharactersTo(const QString& text, qsizetype units) const {
  QString before = text.left(units);
  if (control_.MultiLine) {
    before.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
  }
  return static_cast<std::size_t>(before.toUcs4().size());
}

void TextBinding::SelectSpan(const QString& text, qsizetype start, qsizetype end) {
  const std::size_t from = CharactersTo(text, start);
  control_.Select(from, CharactersTo(text, end) - from);
}

void TextBinding::ShowValue() {
  const QString text = ToQt(control_.Text());
  if (EditorText() != text) {
    SetEditorText(text);
  }
  SetEditorReadOnly(control_.ReadOnly());
  // What can only be read lies on the window's own ground.
  QPalette palette = Widget().parentWidget()->palette();
  if (control_.ReadOnly()) {
    palette.setColor(QPalette::Base, palette.color(QPalette::Window));
  }
  Widget().setPalette(palette);
  const std::size_t start = control_.SelectionStart();
  const Span span{
      static_cast<int>(ToQt(Left(control_.Text(), start)).size()),
      static_cast<int>(ToQt(Left(control_.Text(), start + control_.SelectionLength())).size())};
  if (EditorSpan() != span) {
    SetEditorSpan(span);
  }
}

void TextBinding::TellSelection() {
  const QString text = EditorText();
  if (!Showing() && text == ToQt(control_.Text())) {
    const Span span = EditorSpan();
    SelectSpan(text, span.start, span.end);
  }
}

bool TextBinding::PressKey(int key) {
  TellSelection();
  return Binding::PressKey(key);
}

void TextBinding::Replay() {
  const QString before = ToQt(control_.Text());
  const QString after = EditorText();
  if (Showing() || before == after) {
    return;
  }
  const qsizetype shorter = std::min(before.size(), after.size());
  const qsizetype start =
      std::mismatch(before.begin(), before.begin() + shorter, after.begin()).first - before.begin();
  qsizetype tail = 0;
  while (tail < shorter - start &&
         before.at(before.size() - 1 - tail) == after.at(after.size() - 1 - tail)) {
    ++tail;
  }
  const QList<uint> entered = after.mid(start, after.size() - tail - start).toUcs4();
  Act([&] {
    Screen& screen = control_.Owner();
    SelectSpan(before, start, before.size() - tail);
    if (entered.empty()) {
      screen.UserKey(control_, key_code::kBackspace);
    }
    for (const uint character : entered) {
      if (character >= ' ') {
        screen.UserKey(control_, static_cast<int>(character));
      } else if (character == '\n' && control_.MultiLine) {
        screen.UserKey(control_, key_code::kEnter);
      }
    }
  });
}

LineBinding::LineBinding(WindowBinder& window, TextBox& control, QLineEdit& edit)
    : TextBinding(window, control, edit), edit_(edit) {
  connect(&edit, &QLineEdit::selectionChanged, this, [this] { TellSelection(); });
  connect(&edit, &QLineEdit::cursorPositionChanged, this, [this] { TellSelection(); });
  connect(&edit, &QLineEdit::textEdited, this, [this] { Replay(); });
}

TextBinding::Span LineBinding::EditorSpan() const {
  return edit_.hasSelectedText() ? Span{edit_.selectionStart(), edit_.selectionEnd()}
                                 : Span{edit_.cursorPosition(), edit_.cursorPosition()};
}

void LineBinding::SetEditorSpan(Span span) {
  edit_.setCursorPosition(span.start);
  if (span.end > span.start) {
    edit_.setSelection(span.start, span.end - span.start);
  }
}

LinesBinding::LinesBinding(WindowBinder& window, TextBox& control, QPlainTextEdit& edit)
    : TextBinding(window, control, edit), edit_(edit) {
  edit.setTabChangesFocus(true);
  Watch(*edit.viewport());
  connect(&edit, &QPlainTextEdit::cursorPositionChanged, this, [this] { TellSelection(); });
  connect(&edit, &QPlainTextEdit::selectionChanged, this, [this] { TellSelection(); });
  connect(&edit, &QPlainTextEdit::textChanged, this, [this] { Replay(); });
}

TextBinding::Span LinesBinding::EditorSpan() const {
  const QTextCursor cursor = edit_.textCursor();
  return {cursor.selectionStart(), cursor.selectionEnd()};
}

void LinesBinding::SetEditorSpan(Span span) {
  QTextCursor cursor = edit_.textCursor();
  cursor.setPosition(span.start);
  cursor.setPosition(span.end, QTextCursor::KeepAnchor);
  edit_.setTextCursor(cursor);
}

}  // namespace lorvane
