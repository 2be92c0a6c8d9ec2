#include "desktop/binder/Icons.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

namespace lorvane {
namespace {

class DrawingEngine : public QIconEngine {
 public:
  explicit DrawingEngine(QByteArray drawing) : drawing_(std::move(drawing)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    Q_UNUSED(state)
    const QPalette palette = QApplication::palette();
    const QPalette::ColorGroup group =
        mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const QColor colour = palette.color(
        group, mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText);
    QByteArray coloured = drawing_;
    coloured.replace("currentColor", colour.name().toLatin1());
    QSvgRenderer renderer(coloured);
    constexpr double kFaint = 0.45;
    painter->save();
    painter->setOpacity(mode == QIcon::Disabled ? kFaint : 1.0);
    renderer.render(painter, rect);
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new DrawingEngine(*this); }

 private:
  QByteArray drawing_;
};

}  // namespace

QIcon IconOf(const char* name) {
  QFile file(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name)));
  return file.open(QIODevice::ReadOnly) ? QIcon(new DrawingEngine(file.readAll())) : QIcon();
}

QIcon ProgramIcon() { return IconOf("lorvane"); }

}  // namespace lorvane
