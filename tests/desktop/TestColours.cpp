#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QPalette>
#include <QTest>
#include <QTreeView>
#include <algorithm>
#include <cmath>
#include <map>

#include "DesktopRun.h"
#include "desktop/binder/Contrast.h"

namespace lorvane {
namespace {

constexpr double kReadable = 4.5;

// The program's colours on a desktop's, which come back at the end.
class Desktop {
 public:
  explicit Desktop(const QPalette& palette) : before_(QApplication::palette()) {
    QApplication::setPalette(palette);
  }
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;
  ~Desktop() { QApplication::setPalette(before_); }

 private:
  QPalette before_;
};

QPalette Coloured(QRgb ground, QRgb other, QRgb text, QRgb selection) {
  QPalette palette{QColor(ground)};
  palette.setColor(QPalette::Base, QColor(ground));
  palette.setColor(QPalette::AlternateBase, QColor(other));
  palette.setColor(QPalette::Text, QColor(text));
  palette.setColor(QPalette::WindowText, QColor(text));
  palette.setColor(QPalette::Highlight, QColor(selection));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  return palette;
}

const QPalette kLight = Coloured(0xFFFFFFFF, 0xFFF0F0F0, 0xFF000000, 0xFF1F5FA8);
const QPalette kDark = Coloured(0xFF202225, 0xFF2C2F33, 0xFFF0F0F0, 0xFF1F5FA8);

// Of the ground, which is most of it, and the letter that differs most from it.
double ContrastIn(const QImage& picture) {
  std::map<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      ++counts[picture.pixel(x, y)];
    }
  }
  const auto ground = std::max_element(counts.begin(), counts.end(), [](auto& left, auto& right) {
    return left.second < right.second;
  });
  double best = 1;
  for (const auto& [colour, count] : counts) {
    best = std::max(best, ContrastOf(QColor(colour), QColor(ground->first)));
  }
  return best;
}

double ContrastOfRow(QAbstractItemView& view, const QModelIndex& index) {
  return ContrastIn(view.viewport()->grab(view.visualRect(index)).toImage());
}

TEST(Colours, ContrastIsThatOfTheWebGuidelines) {
  EXPECT_NEAR(ContrastOf(Qt::black, Qt::white), 21, 0.01);
  EXPECT_NEAR(ContrastOf(Qt::white, Qt::white), 1, 0.01);
  EXPECT_NEAR(ContrastOf(QColor(0x777777), Qt::white), 4.48, 0.01);
  EXPECT_NEAR(ContrastOf(Qt::red, Qt::white), 4.0, 0.01);
  EXPECT_NEAR(ContrastOf(Qt::blue, Qt::black), 2.44, 0.01);
}

TEST(Colours, AreChangedNoMoreThanReadingNeeds) {
  EXPECT_EQ(ReadableOn(Qt::white, Qt::blue), QColor(Qt::blue));
  for (const QRgb ground : {0xFFFFFFFF, 0xFF000000, 0xFF202225, 0xFF777777, 0xFFF5E6C8}) {
    for (const QRgb colour : {0xFF0000FF, 0xFFD03A2E, 0xFFB07400, 0xFF777777, 0xFFFFFFFF}) {
      EXPECT_GE(ContrastOf(ReadableOn(QColor(ground), QColor(colour)), QColor(ground)), kReadable)
          << std::hex << ground << " " << colour;
    }
  }
}

// The blue of the sub-contractors' list, selected and not, on rows of both grounds; and words that
// say the same.
TEST(Colours, OfThePaymentListCanBeRead) {
  for (const QPalette& palette : {kLight, kDark}) {
    const Desktop desktop(palette);
    DesktopRun run;
    run.OpenCompany();
    run.In(QStringLiteral("frmSelectAssessment"), [](QWidget& window) {
      auto& choice = Part<QAbstractButton>(window, "optSubContractor");
      choice.click();
      EXPECT_TRUE(choice.isChecked());
      Part<QListWidget>(window, "lstIndustries").setCurrentRow(1);
      EXPECT_TRUE(
          Part<QLabel>(window, "lblListCount").text().contains(QLatin1String("sub-contractors")));
      auto& list = Part<QTreeView>(window, "lvwPayments");
      for (const int row : {1, 2}) {
        const QModelIndex name = list.model()->index(row, 1);
        list.setCurrentIndex(list.model()->index(0, 1));
        EXPECT_GE(ContrastOfRow(list, name), kReadable) << row;
        list.setCurrentIndex(name);
        EXPECT_GE(ContrastOfRow(list, name), kReadable) << row << " selected";
      }
      window.close();
    });
    run.Choose("mnuFEnterPayments");
  }
}

TEST(Colours, OfClearanceLettersCanBeReadAndAreToldInWords) {
  for (const QPalette& palette : {kLight, kDark}) {
    const Desktop desktop(palette);
    DesktopRun run;
    run.OpenCompany();
    run.In(QStringLiteral("frmSubContractor"), [](QWidget& window) {
      auto& names = Part<QListWidget>(window, "lstSubContractors");
      int coloured = 0;
      for (int row = 1; row < names.count(); ++row) {
        const QListWidgetItem& item = *names.item(row);
        if (item.foreground().style() != Qt::NoBrush) {
          ++coloured;
          EXPECT_TRUE(item.text().contains(QLatin1String("(expire"))) << item.text().toStdString();
          EXPECT_GE(ContrastOfRow(names, names.indexFromItem(&item)), kReadable);
        }
      }
      EXPECT_EQ(coloured, 2);
      window.close();
    });
    run.Choose("mnuFSubContractors");
  }
}

}  // namespace
}  // namespace lorvane
