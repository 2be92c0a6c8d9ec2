#pragma once

#include <QSet>
#include <QTextBrowser>

namespace lorvane {

/// A page of the manual. Links lead to pages and to their headings. The pictures are as large as
/// they are meant to be, and smaller where the window is.
class HelpText : public QTextBrowser {
 public:
  /// `folder` holds the pages; pictures are named from there.
  HelpText(const QString& folder, QWidget* parent);

  [[nodiscard]] QVariant loadResource(int type, const QUrl& name) override;

 protected:
  void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  [[nodiscard]] QImage Fitted(const QUrl& name) const;
  void FitPictures();
  void GoToAnchor(const QString& anchor);

  QString folder_;
  /// Those on the page.
  QSet<QUrl> pictures_;
};

}  // namespace lorvane
