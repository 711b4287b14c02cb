#include "viewer/overlay/OverlayLayout.h"

#include <QFontMetrics>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace {

constexpr int kMostRows = 1000; // that are laid out, whatever the room

// A name in a script that runs from the right must not turn what stands beside it: the direction of writing
// ends with the row.
constexpr int kFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextForceLeftToRight | Qt::TextSingleLine;
QString isolated(const QString& text) { return QChar(0x2068) + text + QChar(0x2069); }

int widthOf(const QString& text, const QFont& font) {
    return QFontMetrics(font).size(kFlags, isolated(text)).width();
}

QString moreSign(int lines) { return QStringLiteral("\u2026 (+%1)").arg(lines); }

} // namespace

OverlayLayout::Room OverlayLayout::Room::over(const QSize& view, int margin, const QFont& font) {
    const int spacing = QFontMetrics(font).lineSpacing();
    const int most = (view.height() - 2 * margin) / spacing * spacing;
    const int least = view.height() >= spacing + 2 * margin ? spacing : 0;
    return {qMax(1, view.width() - 2 * margin), qMax(least, most)};
}

OverlayLayout::OverlayLayout(const QVector<InfoLine>& lines, const OverlayStyle& style, const QImage& logo,
                             const Room& room)
    : m_style(style), m_font(style.font()), m_width(qMin(style.width, room.width)), m_isTight(room.isTight) {
    if (!logo.isNull()) {
        const QSize most = logo.size().boundedTo(QSize(m_width, style.logoHeight));
        m_logo = logo.scaled(logo.size().scaled(most, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)),
                             Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    int leftOut = 0;
    for (const InfoLine& line : lines) {
        if (bottom() > room.height || m_rows.size() >= kMostRows) {
            leftOut += line.kind == InfoLine::Kind::Separator ? 0 : 1 + line.leftOut;
        } else {
            add(line, bottom());
        }
    }
    const bool isCut =
        std::any_of(m_rows.begin(), m_rows.end(), [](const Row& row) { return row.lines > 1; });
    if (bottom() > room.height || leftOut > 0 || isCut) {
        cutTo(room.height, leftOut);
    }
    align();
}

void OverlayLayout::add(const InfoLine& line, int top) {
    const int spacing = QFontMetrics(m_font).lineSpacing();
    switch (line.kind) {
    case InfoLine::Kind::Text:
        addText(line, top);
        break;
    case InfoLine::Kind::Separator:
        m_rows.append({line.kind, line.key, QString(),
                       QRect(0, top, 0, m_style.blankLine ? spacing : qMax(3, spacing / 2)), 0});
        break;
    case InfoLine::Kind::Logo:
        if (!m_logo.isNull()) {
            m_rows.append({line.kind, line.key, QString(), QRect(QPoint(0, top), m_logo.size())});
        } else if (!m_rows.isEmpty() && m_rows.last().kind == InfoLine::Kind::Separator) {
            m_rows.removeLast(); // it stood before the logo alone
        }
        break;
    }
}

void OverlayLayout::addText(const InfoLine& line, int top) {
    const int spacing = QFontMetrics(m_font).lineSpacing();
    QTextLayout text(line.text, m_font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(Qt::LeftToRight);
    text.setTextOption(option);
    text.setCacheEnabled(true);
    text.beginLayout();
    for (QTextLine row = text.createLine(); row.isValid() && m_rows.size() < kMostRows;
         row = text.createLine()) {
        row.setLineWidth(m_width);
        QString part = line.text.mid(row.textStart(), row.textLength());
        while (part.endsWith(QLatin1Char(' '))) {
            part.chop(1);
        }
        m_rows.append(
            {line.kind, line.key, part, QRect(0, top, qMin(m_width, widthOf(part, m_font)), spacing)});
        top += spacing;
    }
    text.endLayout();
    m_rows.last().lines += line.leftOut;
}

/// The sign that tells of more stands in a row of its own, or behind the text if there is room for one alone.
void OverlayLayout::cutTo(int height, int leftOut) {
    const int spacing = QFontMetrics(m_font).lineSpacing();
    int kept = 0;
    while (kept < m_rows.size() && m_rows.at(kept).box.bottom() + 1 + spacing <= height) {
        ++kept;
    }
    // What is left out behind a row that stays is told too; the row itself is not.
    for (int i = 0; i < m_rows.size(); ++i) {
        leftOut += i < kept ? qMax(0, m_rows.at(i).lines - 1) : m_rows.at(i).lines;
    }
    if (kept == 0 && height >= spacing) {
        const auto first = std::find_if(m_rows.begin(), m_rows.end(),
                                        [](const Row& row) { return row.kind == InfoLine::Kind::Text; });
        if (first == m_rows.end()) {
            m_rows.clear();
            return;
        }
        Row row = *first;
        const QString sign = leftOut > 1 ? QLatin1Char(' ') + moreSign(leftOut - 1) : QString();
        row.text = elided(row.text, m_width - widthOf(sign, m_font)) + sign;
        row.box = QRect(0, 0, qMin(m_width, widthOf(row.text, m_font)), spacing);
        m_rows = {row};
        return;
    }
    m_rows.resize(kept);
    while (!m_rows.isEmpty() && m_rows.last().kind == InfoLine::Kind::Separator) {
        m_rows.removeLast();
    }
    if (kept > 0 && leftOut > 0) {
        const QString sign = elided(moreSign(leftOut), m_width); // a column may be narrower
        m_rows.append({InfoLine::Kind::Text, QString(), sign,
                       QRect(0, bottom(), qMin(m_width, widthOf(sign, m_font)), spacing)});
    }
}

QString OverlayLayout::elided(const QString& text, int width) const {
    return QFontMetrics(m_font).elidedText(text, Qt::ElideRight, qMax(1, width));
}

/// In the width that the user chose. Lines between groups are as long as the longest text.
void OverlayLayout::align() {
    while (!m_rows.isEmpty() && m_rows.last().kind == InfoLine::Kind::Separator) {
        m_rows.removeLast();
    }
    int widest = 0;
    for (const Row& row : qAsConst(m_rows)) {
        widest = qMax(widest, row.box.width());
    }
    const int whole = m_isTight ? widest : m_width;
    for (Row& row : m_rows) {
        if (row.kind == InfoLine::Kind::Separator) {
            row.box.setWidth(widest);
        }
        const int free = whole - row.box.width();
        row.box.moveLeft(m_style.alignment == Qt::AlignRight     ? free
                         : m_style.alignment == Qt::AlignHCenter ? free / 2
                                                                 : 0);
    }
    // One pixel more for the edge.
    const int width = m_style.alignment == Qt::AlignLeft ? widest : whole;
    m_size = m_rows.isEmpty() ? QSize() : QSize(width + 1, bottom() + 1);
}

bool OverlayLayout::isShown(const char* key) const {
    return std::any_of(m_rows.begin(), m_rows.end(),
                       [key](const Row& row) { return row.key == QLatin1String(key); });
}

// Each text has an edge that stands out from it, so that it can be read on any picture.
void OverlayLayout::paint(QPainter& painter) const {
    const bool isLight = m_style.color.lightness() > 100;
    const QColor edge = isLight ? QColor(0, 0, 0, 210) : QColor(255, 255, 255, 210);
    painter.setFont(m_font);
    painter.setLayoutDirection(Qt::LeftToRight);
    // On the font's own line: in a box, a mark out of a taller font would push the text into the next row.
    const int ascent = painter.fontMetrics().ascent();
    for (const Row& row : m_rows) {
        for (const auto& [color, shift] : {std::make_pair(edge, 1), std::make_pair(m_style.color, 0)}) {
            if (row.kind == InfoLine::Kind::Text) {
                painter.setPen(color);
                painter.drawText(row.box.topLeft() + QPoint(shift, shift + ascent), isolated(row.text));
            } else if (row.kind == InfoLine::Kind::Separator && !m_style.blankLine) {
                painter.fillRect(row.box.left() + shift, row.box.top() + row.box.height() * 2 / 3 + shift,
                                 row.box.width(), 1, color);
            }
        }
        if (row.kind == InfoLine::Kind::Logo) {
            painter.drawImage(row.box, m_logo);
        }
    }
}

QImage OverlayLayout::image(double pixelRatio) const {
    if (isEmpty()) {
        return QImage();
    }
    QImage image((QSizeF(m_size) * pixelRatio).toSize().expandedTo(QSize(1, 1)),
                 QImage::Format_RGBA8888_Premultiplied);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paint(painter);
    return image;
}
