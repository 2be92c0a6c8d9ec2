#include "desktop/glance/YearChart.h"

#include <QAccessibleWidget>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QToolTip>
#include <algorithm>

#include "desktop/binder/QtText.h"

namespace lorvane {
namespace {

QAccessibleInterface* TellOf(const QString& /*kind*/, QObject* object) {
  auto* chart = dynamic_cast<YearChart*>(object);
  return chart == nullptr ? nullptr : new QAccessibleWidget(chart, QAccessible::Chart);
}

constexpr int kLast = static_cast<int>(YearAtAGlance::kMonths) - 1;

}  // namespace

YearChart::YearChart(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("yearChart"));
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  static const bool kTold = [] {
    QAccessible::installFactory(TellOf);
    return true;
  }();
  Q_UNUSED(kTold)
}

void YearChart::Show(const YearAtAGlance& glance, ChartMeasure measure) {
  glance_ = glance;
  measure_ = measure;
  setAccessibleName(tr("Chart: %1").arg(ChartTitle(glance_, measure_)));
  Select(month_);
}

QSize YearChart::sizeHint() const {
  constexpr int kWidth = 90;
  constexpr int kHeight = 17;
  return {kWidth * fontMetrics().averageCharWidth(), kHeight * fontMetrics().lineSpacing()};
}

QSize YearChart::minimumSizeHint() const {
  constexpr int kWidth = 56;
  constexpr int kHeight = 11;
  return {kWidth * fontMetrics().averageCharWidth(), kHeight * fontMetrics().lineSpacing()};
}

QImage YearChart::Picture() const {
  constexpr int kScale = 2;
  constexpr QSize kSize(900, 480);
  QImage image(kSize * kScale, QImage::Format_RGB32);
  image.setDevicePixelRatio(kScale);
  image.fill(Qt::white);
  const QPalette palette(Qt::black, Qt::white, Qt::white, Qt::black, Qt::gray, Qt::black, Qt::white,
                         Qt::white, Qt::white);
  constexpr int kMargin = 12;
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF room(QPointF(kMargin, kMargin),
                    QSizeF(kSize).shrunkBy(QMargins(kMargin, kMargin, kMargin, kMargin)));
  ChartPainter(glance_, measure_, room, font()).Paint(painter, palette, ChartPainter::kNoMonth);
  return image;
}

bool YearChart::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = dynamic_cast<QHelpEvent*>(event);
    const int month = Painter().MonthAt(help->pos());
    QToolTip::showText(help->globalPos(), month < 0 ? QString() : WordsOf(month), this);
    return true;
  }
  return QWidget::event(event);
}

void YearChart::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  Painter().Paint(painter, palette(), month_);
  if (hasFocus()) {
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.backgroundColor = palette().color(QPalette::Window);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
  }
}

void YearChart::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return Select(std::max(month_ - 1, 0));
    case Qt::Key_Right:
      return Select(std::min(month_ + 1, kLast));
    case Qt::Key_Home:
      return Select(0);
    case Qt::Key_End:
      return Select(kLast);
    default:
      QWidget::keyPressEvent(event);
  }
}

void YearChart::mousePressEvent(QMouseEvent* event) {
  Select(Painter().MonthAt(event->position()));
}

void YearChart::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  Select(month_);
}

ChartPainter YearChart::Painter() const {
  const int margin = fontMetrics().averageCharWidth();
  return {glance_, measure_, QRectF(rect()).adjusted(margin, margin, -margin, -margin), font()};
}

QString YearChart::WordsOf(int month) const {
  YearSums sum;
  QStringList parts;
  for (const IndustrySlot slot : kAllSlots) {
    const YearSums sums = month < 0 ? glance_.TotalOf(slot)
                                    : glance_.months.at(static_cast<std::size_t>(month))[slot];
    sum += sums;
    if (AmountOf(sums, measure_) != 0) {
      const Currency amount =
          measure_ == ChartMeasure::kAssessable ? sums.assessable : sums.assessment;
      parts.append(tr("%1 %2").arg(QLatin1Char(LetterOf(slot))).arg(ToQt(Money(amount))));
    }
  }
  const QString when = month < 0 ? QString::number(glance_.year)
                                 : QLocale().standaloneMonthName(month + 1) + QLatin1Char(' ') +
                                       QString::number(glance_.year);
  const QString total = tr("%1: assessable %2, assessment %3")
                            .arg(when, ToQt(Money(sum.assessable)), ToQt(Money(sum.assessment)));
  return parts.size() < 2
             ? total
             : total + QStringLiteral(" (") + parts.join(QStringLiteral(", ")) + QLatin1Char(')');
}

void YearChart::Select(int month) {
  month_ = month;
  const QString words = Words();
  if (accessibleDescription() != words) {
    setAccessibleDescription(words);
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
  }
  update();
  if (OnWords) {
    OnWords(words);
  }
}

}  // namespace lorvane
