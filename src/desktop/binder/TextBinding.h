#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include "desktop/binder/Binding.h"
#include "screen/TextBox.h"

namespace lorvane {

/// What a field of one line and one of several have in common. Every key goes through the screen's
/// filters and is entered by the control; what the toolkit enters by itself (pasting, cutting,
/// composed letters) is taken back and goes the same way, key by key.
class TextBinding : public Binding {
 public:
  TextBinding(WindowBinder& window, TextBox& control, QWidget& widget);

 protected:
  /// The editor's selection in its own units; a cursor when both are the same.
  struct Span {
    int start = 0;
    int end = 0;
    bool operator==(const Span&) const = default;
  };

  bool eventFilter(QObject* watched, QEvent* event) override;
  void ShowValue() override;
  bool PressKey(int key) override;

  [[nodiscard]] virtual QString EditorText() const = 0;
  virtual void SetEditorText(const QString& text) = 0;
  [[nodiscard]] virtual Span EditorSpan() const = 0;
  virtual void SetEditorSpan(Span span) = 0;
  virtual void SetEditorReadOnly(bool readOnly) = 0;

  /// The user moved the cursor.
  void TellSelection();
  /// The toolkit changed the text by itself.
  void Replay();

 private:
  /// Characters of the control's text that stand before a place of the editor's.
  [[nodiscard]] std::size_t CharactersTo(const QString& text, qsizetype units) const;
  void SelectSpan(const QString& text, qsizetype start, qsizetype end);

  TextBox& control_;
};

/// A field of one line.
class LineBinding : public TextBinding {
 public:
  LineBinding(WindowBinder& window, TextBox& control, QLineEdit& edit);

 protected:
  [[nodiscard]] QString EditorText() const override { return edit_.text(); }
  void SetEditorText(const QString& text) override { edit_.setText(text); }
  [[nodiscard]] Span EditorSpan() const override;
  void SetEditorSpan(Span span) override;
  void SetEditorReadOnly(bool readOnly) override { edit_.setReadOnly(readOnly); }

 private:
  QLineEdit& edit_;
};

/// A field of several lines.
class LinesBinding : public TextBinding {
 public:
  LinesBinding(WindowBinder& window, TextBox& control, QPlainTextEdit& edit);

 protected:
  [[nodiscard]] QString EditorText() const override { return edit_.toPlainText(); }
  void SetEditorText(const QString& text) override { edit_.setPlainText(text); }
  [[nodiscard]] Span EditorSpan() const override;
  void SetEditorSpan(Span span) override;
  void SetEditorReadOnly(bool readOnly) override { edit_.setReadOnly(readOnly); }

 private:
  QPlainTextEdit& edit_;
};

}  // namespace lorvane
