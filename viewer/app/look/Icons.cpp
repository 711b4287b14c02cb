#include "viewer/app/look/Icons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace {

// On a grid of 24 by 24: M and L with a point, C with three points, O with middle and radius, A with the box
// of an arc, its start and its length in degrees (counter-clockwise), Z. "fill" paints the area, otherwise
// lines of 2 units.
struct Shape {
    const char* path;
    bool fill = false;
    QRgb color = 0; // 0: that of the text
};

constexpr QRgb kRed = 0xffe5484d;
constexpr QRgb kGreen = 0xff30a46c;

const QHash<QString, QList<Shape>>& shapes() {
    static const QHash<QString, QList<Shape>> table{
        {QStringLiteral("live"),
         {{"M 3 7 L 15 7 L 15 17 L 3 17 Z"}, {"M 15 11 L 21 7.5 L 21 16.5 L 15 13 Z", true}}},
        {QStringLiteral("memory"),
         {{"M 6 6 L 18 6 L 18 18 L 6 18 Z"},
          {"M 9 2.5 L 9 6 M 15 2.5 L 15 6 M 9 18 L 9 21.5 M 15 18 L 15 21.5 M 2.5 9 L 6 9 M 2.5 15 L 6 15 M "
           "18 9 L "
           "21.5 9 M 18 15 L 21.5 15"}}},
        {QStringLiteral("file"), {{"M 3 6 L 9 6 L 11 8.5 L 21 8.5 L 21 19 L 3 19 Z"}}},
        {QStringLiteral("ready"), {{"O 12 12 8"}, {"O 12 12 3.5", true, kGreen}}},
        {QStringLiteral("record"), {{"O 12 12 7", true, kRed}}},
        {QStringLiteral("stop"), {{"M 6 6 L 18 6 L 18 18 L 6 18 Z", true}}},
        {QStringLiteral("play"), {{"M 7 4.5 L 19 12 L 7 19.5 Z", true}}},
        {QStringLiteral("pause"), {{"M 6 5 L 10 5 L 10 19 L 6 19 Z M 14 5 L 18 5 L 18 19 L 14 19 Z", true}}},
        {QStringLiteral("first"), {{"M 19 5 L 9 12 L 19 19 Z", true}, {"M 6 5 L 6 19"}}},
        {QStringLiteral("previous"), {{"M 16 5 L 6 12 L 16 19 Z", true}}},
        {QStringLiteral("next"), {{"M 8 5 L 18 12 L 8 19 Z", true}}},
        {QStringLiteral("keep"),
         {{"M 12 3.5 L 12 14 M 7.5 10 L 12 14.5 L 16.5 10"}, {"M 4 16 L 4 20 L 20 20 L 20 16"}}},
        {QStringLiteral("more"), {{"M 5 5 L 12 12 L 5 19 M 13 5 L 20 12 L 13 19"}}},
        {QStringLiteral("close"), {{"M 6 6 L 18 18 M 18 6 L 6 18"}}},
        {QStringLiteral("tile"),
         {{"M 4 4 L 11 4 L 11 11 L 4 11 Z M 13 4 L 20 4 L 20 11 L 13 11 Z M 4 13 L 11 13 L 11 20 L 4 20 Z M "
           "13 13 L 20 "
           "13 L 20 20 L 13 20 Z"}}},
        {QStringLiteral("single"), {{"M 4 5 L 20 5 L 20 19 L 4 19 Z"}, {"M 4 8 L 20 8"}}},
        {QStringLiteral("cycle"),
         {{"A 5 5 14 14 30 130"},
          {"A 5 5 14 14 210 130"},
          {"M 18.5 3.5 L 18.5 9 L 13 9"},
          {"M 5.5 20.5 L 5.5 15 L 11 15"}}},
        {QStringLiteral("full"),
         {{"M 4 9 L 4 4 L 9 4 M 15 4 L 20 4 L 20 9 M 20 15 L 20 20 L 15 20 M 9 20 L 4 20 L 4 15"}}},
        {QStringLiteral("rotateLeft"), {{"A 5 6 14 14 -60 220"}, {"M 4.5 4.5 L 4.5 11 L 11 11"}}},
        {QStringLiteral("rotateRight"), {{"A 5 6 14 14 20 220"}, {"M 19.5 4.5 L 19.5 11 L 13 11"}}},
        {QStringLiteral("flipA"),
         {{"M 12 3 L 12 21"}, {"M 9 6 L 9 18 L 3 18 Z", true}, {"M 15 6 L 15 18 L 21 18 Z"}}},
        {QStringLiteral("flipB"),
         {{"M 3 12 L 21 12"}, {"M 6 9 L 18 9 L 6 3 Z", true}, {"M 6 15 L 18 15 L 6 21 Z"}}},
        {QStringLiteral("bin"),
         {{"M 4 4 L 20 4 L 20 20 L 4 20 Z M 12 4 L 12 20 M 4 12 L 20 12"},
          {"M 4 4 L 12 4 L 12 12 L 4 12 Z", true}}},
        {QStringLiteral("zoomIn"),
         {{"O 10.5 10.5 6.5"}, {"M 15.5 15.5 L 20.5 20.5 M 10.5 7.5 L 10.5 13.5 M 7.5 10.5 L 13.5 10.5"}}},
        {QStringLiteral("zoomOut"),
         {{"O 10.5 10.5 6.5"}, {"M 15.5 15.5 L 20.5 20.5 M 7.5 10.5 L 13.5 10.5"}}},
        {QStringLiteral("zoomFit"),
         {{"M 3 5 L 21 5 L 21 19 L 3 19 Z"},
          {"M 7 12 L 17 12 M 9.5 9.5 L 7 12 L 9.5 14.5 M 14.5 9.5 L 17 12 L 14.5 14.5"}}},
        {QStringLiteral("undo"),
         {{"A 5 8 14 10 -90 180"}, {"M 12 8 L 4.5 8 M 8.5 4 L 4.5 8 L 8.5 12 M 12 18 L 8 18"}}},
        {QStringLiteral("redo"),
         {{"A 5 8 14 10 90 180"}, {"M 12 8 L 19.5 8 M 15.5 4 L 19.5 8 L 15.5 12 M 12 18 L 16 18"}}},
        {QStringLiteral("style"), {{"O 12 12 8"}, {"M 12 4 C 22.6 4 22.6 20 12 20 Z", true}}},
        {QStringLiteral("language"),
         {{"O 12 12 8.5"}, {"M 3.5 12 L 20.5 12 M 12 3.5 C 7 8 7 16 12 20.5 C 17 16 17 8 12 3.5"}}},
        {QStringLiteral("settings"),
         {{"M 3 7 L 21 7 M 3 12 L 21 12 M 3 17 L 21 17"},
          {"O 8 7 2.5", true},
          {"O 16 12 2.5", true},
          {"O 10 17 2.5", true}}},
        {QStringLiteral("plug"),
         {{"M 9 3 L 9 8 M 15 3 L 15 8 M 12 15 L 12 21"},
          {"M 6 8 L 18 8 L 18 11 C 18 16.5 6 16.5 6 11 Z", true}}},
        {QStringLiteral("unplug"),
         {{"M 9 3 L 9 8 M 15 3 L 15 8 M 12 15 L 12 21"},
          {"M 6 8 L 18 8 L 18 11 C 18 16.5 6 16.5 6 11 Z"},
          {"M 3 21 L 21 3", false, kRed}}},
    };
    return table;
}

QPointF takePoint(QStringList& words) {
    const double x = words.takeFirst().toDouble();
    return {x, words.takeFirst().toDouble()};
}

QPainterPath pathOf(const char* text) {
    QStringList words = QString::fromLatin1(text).split(QLatin1Char(' '));
    QPainterPath path;
    while (!words.isEmpty()) {
        const char command = words.takeFirst().at(0).toLatin1();
        if (command == 'M') {
            path.moveTo(takePoint(words));
        } else if (command == 'L') {
            path.lineTo(takePoint(words));
        } else if (command == 'C') {
            const QPointF first = takePoint(words);
            const QPointF second = takePoint(words);
            path.cubicTo(first, second, takePoint(words));
        } else if (command == 'O') {
            const QPointF middle = takePoint(words);
            const double radius = words.takeFirst().toDouble();
            path.addEllipse(middle, radius, radius);
        } else if (command == 'A') {
            const QPointF corner = takePoint(words);
            const QPointF size = takePoint(words);
            const QRectF box(corner, QSizeF(size.x(), size.y()));
            const QPointF angles = takePoint(words);
            path.arcMoveTo(box, angles.x());
            path.arcTo(box, angles.x(), angles.y());
        } else {
            path.closeSubpath();
        }
    }
    return path;
}

class PathIconEngine : public QIconEngine {
public:
    explicit PathIconEngine(QList<Shape> icon) : m_shapes(std::move(icon)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const QPalette palette = QApplication::palette();
        const bool disabled = mode == QIcon::Disabled;
        const QColor& text =
            palette.color(disabled ? QPalette::Disabled : QPalette::Active,
                          state == QIcon::On && !disabled ? QPalette::HighlightedText : QPalette::ButtonText);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / 24.0, rect.height() / 24.0);
        if (disabled) {
            painter->setOpacity(0.6);
        }
        for (const Shape& shape : m_shapes) {
            const QColor color = shape.color == 0 || disabled ? text : QColor(shape.color);
            if (shape.fill) {
                painter->fillPath(pathOf(shape.path), color);
            } else {
                painter->strokePath(pathOf(shape.path),
                                    QPen(color, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            }
        }
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new PathIconEngine(m_shapes); }

private:
    QList<Shape> m_shapes;
};

} // namespace

QIcon Icons::get(const QString& name) {
    const auto it = shapes().constFind(name);
    return it == shapes().constEnd() ? QIcon() : QIcon(new PathIconEngine(*it));
}

QStringList Icons::names() { return shapes().keys(); }
