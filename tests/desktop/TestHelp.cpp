#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTreeWidget>

#include "DesktopRun.h"
#include "desktop/HelpWindow.h"
#include "shell/modLorvane.h"

namespace lorvane {
namespace {

QString ManualFolder() {
  return QString::fromStdString(ProgramFolder()) + QStringLiteral("/Resource/Manual");
}

// Every page can be chosen, and every picture on it is there and has room.
TEST(Help, ShowsEveryPageWithPicturesThatFit) {
  HelpWindow help(ManualFolder());
  help.show();
  auto& contents = Part<QTreeWidget>(help, "helpContents");
  auto& page = Part<QTextBrowser>(help, "helpText");
  EXPECT_EQ(contents.topLevelItemCount(),
            QDir(ManualFolder()).entryList({QStringLiteral("*.md")}).size());
  int pictures = 0;
  for (const int width : {1000, 700}) {
    help.resize(width, 500);
    for (int i = 0; i < contents.topLevelItemCount(); ++i) {
      contents.setCurrentItem(contents.topLevelItem(i));
      QApplication::processEvents();
      // Code is never broken into lines; pictures alone decide here.
      for (QTextBlock block = page.document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
          const QTextImageFormat image = part.fragment().charFormat().toImageFormat();
          if (image.isValid()) {
            const auto picture = page.document()
                                     ->resource(QTextDocument::ImageResource, QUrl(image.name()))
                                     .value<QImage>();
            ++pictures;
            EXPECT_FALSE(picture.isNull()) << image.name().toStdString();
            EXPECT_LE(picture.deviceIndependentSize().width(), page.viewport()->width());
          }
        }
      }
    }
  }
  EXPECT_GT(pictures, 80);
}

TEST(Help, LinksLeadToHeadings) {
  HelpWindow help(ManualFolder());
  help.resize(900, 400);
  help.show();
  auto& page = Part<QTextBrowser>(help, "helpText");
  page.setSource(QUrl(QStringLiteral("company.md#bringing-a-years-rates-in")));
  QApplication::processEvents();
  EXPECT_EQ(page.textCursor().block().text(), QStringLiteral("Bringing a year's rates in"));
  EXPECT_LT(page.cursorRect().top(), 60);
  EXPECT_GT(page.verticalScrollBar()->value(), 0);
}

}  // namespace
}  // namespace lorvane
