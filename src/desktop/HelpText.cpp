#include "desktop/HelpText.h"

#include <QImage>
#include <QRegularExpression>
#include <QResizeEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

namespace lorvane {

HelpText::HelpText(const QString& folder, QWidget* parent) : QTextBrowser(parent), folder_(folder) {
  setSearchPaths({folder});
  connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& page) {
    FitPictures();
    GoToAnchor(page.fragment());
  });
}

QVariant HelpText::loadResource(int type, const QUrl& name) {
  if (type != QTextDocument::ImageResource) {
    return QTextBrowser::loadResource(type, name);
  }
  pictures_.insert(name);
  return Fitted(name);
}

void HelpText::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
  pictures_.clear();
  QTextBrowser::doSetSource(name, type);
}

void HelpText::resizeEvent(QResizeEvent* event) {
  QTextBrowser::resizeEvent(event);
  if (event->size().width() != event->oldSize().width()) {
    FitPictures();
  }
}

// A picture tells by its resolution how large it is meant to be.
QImage HelpText::Fitted(const QUrl& name) const {
  constexpr double kMetresPerInch = 0.0254;
  QImage picture(folder_ + QLatin1Char('/') + name.path());
  if (picture.isNull()) {
    return picture;
  }
  const double dotsPerInch = picture.dotsPerMeterX() * kMetresPerInch;
  const double meant = picture.width() * logicalDpiX() / dotsPerInch;
  const double room = viewport()->width() - 2 * document()->documentMargin();
  const double scale = devicePixelRatioF();
  const int width = std::max(1, static_cast<int>(std::min(meant, room) * scale));
  picture = picture.scaledToWidth(width, Qt::SmoothTransformation);
  picture.setDevicePixelRatio(scale);
  return picture;
}

// A link names a heading by its letters and digits, with dashes for blanks.
void HelpText::GoToAnchor(const QString& anchor) {
  static const QRegularExpression kOther(QStringLiteral("[^a-z0-9 _-]"));
  for (QTextBlock block = document()->begin(); !anchor.isEmpty() && block.isValid();
       block = block.next()) {
    QString heading =
        block.text().toLower().remove(kOther).replace(QLatin1Char(' '), QLatin1Char('-'));
    if (block.blockFormat().headingLevel() > 0 && heading == anchor) {
      // From the end upwards, so that the heading comes to the top.
      moveCursor(QTextCursor::End);
      setTextCursor(QTextCursor(block));
      ensureCursorVisible();
      return;
    }
  }
}

void HelpText::FitPictures() {
  if (pictures_.isEmpty()) {
    return;
  }
  const int place = verticalScrollBar()->value();
  for (const QUrl& name : pictures_) {
    document()->addResource(QTextDocument::ImageResource, name, Fitted(name));
  }
  document()->markContentsDirty(0, document()->characterCount());
  verticalScrollBar()->setValue(place);
}

}  // namespace lorvane
