#include "viewer/overlay/SavedView.h"

#include <QPainter>

namespace {

constexpr size_t kPlaces = SavedViewSettings::Places;

/// What is the same for all frames of a recording.
InfoFacts ofRecording(InfoFacts facts) {
    facts.position = qMin(0, facts.position);
    facts.triggerIndex = 0;
    facts.triggered = QDateTime();
    facts.clock = 0;
    return facts;
}

} // namespace

QVector<InfoLine> SavedView::linesOf(const Group& group, const InfoFacts& facts) const {
    const OutputLanguage::Scope scope(m_settings.language);
    return InfoText::lines(facts, group.settings.texts, m_settings.format);
}

/// What tells of a frame is longest in the first or in the last one.
void SavedView::arrange(const QSize& picture, const InfoFacts& facts) {
    const InfoFacts common = ofRecording(facts);
    if (m_isArranged && m_places.picture.size() == picture && common == m_facts) {
        return;
    }
    m_facts = common;
    std::array<int, kPlaces> gaps{};
    std::array<Qt::AlignmentFlag, kPlaces> alignments{};
    for (size_t i = 0; i < kPlaces; ++i) {
        Group& group = m_groups[i];
        group = Group();
        group.settings = m_settings.groups[i].at(picture.width());
        gaps[i] = group.settings.gap();
        alignments[i] = group.settings.texts.style.alignment;
    }
    const auto measure = [&](int place, const QSize& most) {
        const Group& group = m_groups[size_t(place)];
        QSize needed(0, 0);
        InfoFacts frame = facts;
        for (const int position : {0, facts.frames - 1}) {
            if (facts.isRecorded()) {
                frame.goTo(position);
            }
            needed =
                needed.expandedTo(SavedBlock(linesOf(group, frame), group.settings, m_logo, most).size());
        }
        return needed;
    };
    m_places = m_settings.isWithinImage ? SavedPlaces::within(picture, gaps, alignments, measure)
                                        : SavedPlaces::around(picture, gaps, measure);
    m_isArranged = true;
}

void SavedView::write(const InfoFacts& facts) {
    for (size_t i = 0; i < kPlaces; ++i) {
        Group& group = m_groups[i];
        QVector<InfoLine> lines = linesOf(group, facts);
        if (!group.isLaidOut || lines != group.lines) {
            group.block = SavedBlock(lines, group.settings, m_logo, m_places.places[i].most);
            group.lines = std::move(lines);
            group.isLaidOut = true;
            ++m_layouts;
        }
    }
}

QSize SavedView::size(const QSize& picture, const InfoFacts& facts) {
    arrange(picture, facts);
    return m_places.size;
}

QImage SavedView::compose(const QImage& picture, const InfoFacts& facts) {
    if (picture.isNull()) {
        return QImage();
    }
    arrange(picture.size(), facts);
    write(facts);
    return paint(picture, 1, m_places.size);
}

QImage SavedView::fitted(const QSize& original, const InfoFacts& facts, const QSize& limit,
                         const std::function<QImage(const QSize&)>& pictureOf) {
    if (original.isEmpty() || limit.isEmpty()) {
        return QImage();
    }
    arrange(original, facts);
    const QSize& whole = m_places.size;
    const double scale = qMin(double(limit.width()) / whole.width(), double(limit.height()) / whole.height());
    const auto scaled = [scale](const QSize& full) {
        return scale == 1 ? full : (QSizeF(full) * scale).toSize().expandedTo(QSize(1, 1));
    };
    const QImage picture = pictureOf(scaled(original));
    if (picture.isNull()) {
        return QImage();
    }
    write(facts);
    return paint(picture, scale, scaled(whole));
}

QImage SavedView::paint(const QImage& picture, double scale, const QSize& size) const {
    const QRect area(QPointF(m_places.picture.topLeft() * scale).toPoint(), picture.size());
    const bool fills = area == QRect(QPoint(0, 0), size);
    QImage image = fills ? picture.convertToFormat(QImage::Format_RGB32) : QImage(size, QImage::Format_RGB32);
    QPainter painter;
    if (fills) {
        painter.begin(&image);
    } else {
        image.fill(Qt::black);
        painter.begin(&image);
        painter.drawImage(area.topLeft(), picture);
    }
    painter.scale(scale, scale);
    paintTexts(painter);
    return image;
}

void SavedView::paintTexts(QPainter& painter) const {
    painter.setRenderHint(QPainter::SmoothPixmapTransform); // of the logo
    for (size_t i = 0; i < kPlaces; ++i) {
        const Group& group = m_groups[i];
        const QRect& cell = m_places.places[i].cell;
        if (cell.isEmpty()) {
            continue;
        }
        if (group.settings.background.isValid()) {
            painter.fillRect(cell, group.settings.background);
        }
        const int gap = group.settings.gap();
        const int free = cell.width() - 2 * gap - group.block.size().width();
        const Qt::AlignmentFlag alignment = group.settings.texts.style.alignment;
        const int shift = alignment == Qt::AlignRight ? free : alignment == Qt::AlignHCenter ? free / 2 : 0;
        painter.save();
        painter.setClipRect(cell);
        painter.translate(cell.left() + gap + shift, cell.top() + gap);
        group.block.paint(painter);
        painter.restore();
    }
}
