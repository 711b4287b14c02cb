#include "viewer/overlay/SavedBlock.h"

#include <QPainter>

namespace {

/// Down the first column, then down the next one; what belongs to one item stays together.
QVector<QVector<InfoLine>> inColumns(const QVector<InfoLine>& lines, int columns) {
    QVector<int> starts; // of the items
    for (int i = 0; i < lines.size(); ++i) {
        const bool isText = lines.at(i).kind != InfoLine::Kind::Separator;
        if (isText && (i == 0 || lines.at(i).key != lines.at(i - 1).key)) {
            starts.append(i);
        }
    }
    // As many columns as asked for, if there are so many items: the first ones have one item more than the
    // last.
    const int count = qMin(columns, starts.size());
    QVector<QVector<InfoLine>> parts;
    for (int column = 0, item = 0; column < count; ++column) {
        const int next = item + starts.size() / count + (column < starts.size() % count ? 1 : 0);
        const int end = next < starts.size() ? starts.at(next) : lines.size();
        parts.append(lines.mid(starts.at(item), end - starts.at(item)));
        item = next;
    }
    return parts;
}

} // namespace

SavedBlock::SavedBlock(const QVector<InfoLine>& lines, const SavedGroup& group, const QImage& logo,
                       const QSize& most) {
    const QVector<QVector<InfoLine>> parts = inColumns(lines, group.columns);
    if (parts.isEmpty()) {
        return;
    }
    const int width = qMin(group.texts.style.width, most.width());
    OverlayLayout::Room room;
    room.width = qMax(1, (width - (parts.size() - 1) * group.columnSpacing) / parts.size());
    room.height = most.height();
    room.isTight = true;
    int left = 0;
    for (const QVector<InfoLine>& part : parts) {
        OverlayLayout layout(part, group.texts.style, logo, room);
        if (!layout.isEmpty()) {
            m_size = QSize(left + layout.size().width(), qMax(m_size.height(), layout.size().height()));
            m_columns.push_back({left, layout});
            left = m_size.width() + group.columnSpacing;
        }
    }
}

void SavedBlock::paint(QPainter& painter) const {
    for (const Column& column : m_columns) {
        painter.save();
        painter.translate(column.left, 0);
        column.layout.paint(painter);
        painter.restore();
    }
}
