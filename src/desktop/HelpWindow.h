#pragma once

#include <QMainWindow>

class QLineEdit;
class QTreeWidget;

namespace lorvane {

class HelpText;

/// The manual in a window of its own: contents at the left, which a search narrows down to the
/// pages and headings that hold the words, and the page at the right.
class HelpWindow : public QMainWindow {
 public:
  /// `folder` holds the pages and the list of contents.
  explicit HelpWindow(const QString& folder);

  /// Whether the folder holds a manual.
  [[nodiscard]] static bool IsThere(const QString& folder);

 private:
  void LoadPages(const QString& folder);
  void ShowContents(const QString& wanted);
  void GoTo(const QString& page, const QString& heading);

  struct Page {
    QString name;
    QString title;
    QString text;
    QStringList headings;
  };

  QString folder_;
  QList<Page> pages_;
  QLineEdit* search_;
  QTreeWidget* contents_;
  HelpText* text_;
};

}  // namespace lorvane
