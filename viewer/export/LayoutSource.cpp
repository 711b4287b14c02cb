#include "viewer/export/LayoutSource.h"

#include <cmath>

namespace {

void draw(const QImage& picture, const QRect& place, QImage& onto) {
    const QImage scaled = picture.scaled(place.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation)
                              .convertToFormat(onto.format());
    const QPoint corner = place.center() - scaled.rect().center();
    const QRect visible = QRect(corner, scaled.size()).intersected(onto.rect());
    for (int y = visible.top(); y <= visible.bottom(); ++y) {
        const uchar* const from = scaled.constScanLine(y - corner.y()) + 3 * (visible.left() - corner.x());
        std::copy_n(from, 3 * visible.width(), onto.scanLine(y) + 3 * visible.left());
    }
}

} // namespace

LayoutSource::LayoutSource(const QVector<Tile>& tiles, const QSize& size) : m_tiles(tiles) {
    m_info = tiles.first().source->info();
    m_info.size = size;
    m_info.bitDepth = 8;
    m_info.color = true;
}

int LayoutSource::indexOf(const Tile& tile, int index) const {
    const RecordingInfo& info = tile.source->info();
    const double offset = index - m_info.triggerIndex;
    const double ratio = m_info.rate > 0 && info.rate > 0 ? double(info.rate) / m_info.rate : 1;
    return qBound(0, info.triggerIndex + int(std::lround(offset * ratio)), info.frames - 1);
}

Frame LayoutSource::frame(int index) const {
    Frame result;
    result.image = QImage(m_info.size, QImage::Format_RGB888);
    result.image.fill(Qt::black);
    for (const Tile& tile : m_tiles) {
        const int own = indexOf(tile, index);
        const Frame frame = tile.source->frame(own);
        if (&tile == &m_tiles.first()) {
            result.number = frame.number;
            result.time = frame.time;
        }
        draw((tile.compose ? tile.compose(frame, own) : frame).displayImage(), tile.place, result.image);
    }
    return result;
}
