#pragma once

#include "viewer/overlay/InfoText.h"
#include "viewer/overlay/OverlaySettings.h"

#include <QImage>
#include <QRect>

class QPainter;

/// The information laid out, ready to be painted anywhere. All lengths are device-independent pixels.
class OverlayLayout {
public:
    /// What there is room for. Of more lines as many stand as leave a row for telling how many more there
    /// are.
    struct Room {
        static constexpr int Unlimited = 1000000;

        int width = Unlimited;
        int height = Unlimited;
        bool isTight = false; // texts are aligned in what they need, not in the width that they may have

        /// Over an image in a view of that size, at that distance from its edges.
        static Room over(const QSize& view, int margin, const QFont& font);
        bool operator==(const Room& other) const {
            return width == other.width && height == other.height && isTight == other.isTight;
        }
    };

    struct Row {
        InfoLine::Kind kind = InfoLine::Kind::Text;
        QString key; // of the item; empty for the row that tells what is left out
        QString text;
        QRect box;
        int lines = 1; // of the item that it stands for, with those that are not there
    };

    OverlayLayout() = default;
    OverlayLayout(const QVector<InfoLine>& lines, const OverlayStyle& style, const QImage& logo,
                  const Room& room);

    const QVector<Row>& rows() const { return m_rows; }
    bool isEmpty() const { return m_rows.isEmpty(); }
    QSize size() const { return m_size; }
    bool isShown(const char* key) const;
    /// With the top left corner at the painter's origin.
    void paint(QPainter& painter) const;
    QImage image(double pixelRatio) const;

private:
    void add(const InfoLine& line, int top);
    void addText(const InfoLine& line, int top);
    void cutTo(int height, int leftOut);
    void align();
    int bottom() const { return m_rows.isEmpty() ? 0 : m_rows.last().box.bottom() + 1; }
    QString elided(const QString& text, int width) const;

    OverlayStyle m_style;
    QFont m_font;
    QImage m_logo;
    int m_width = 0;
    bool m_isTight = false;
    QVector<Row> m_rows;
    QSize m_size;
};
