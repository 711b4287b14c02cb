#include "viewer/documents/Document.h"

#include "livecontrol/interface/DOC_Interface.h"
#include "viewer/cameras/CameraHead.h"
#include "viewer/documents/DocumentList.h"

#include <algorithm>

Document::Document(DocumentList& list, Kind kind, DOCKEY key) : m_list(list), m_kind(kind), m_key(key) {}

Document::~Document() = default;

void Document::setFace(std::unique_ptr<DOC_Interface> face) { m_face = std::move(face); }

void Document::setComment(const QString& text) {
    if (text != m_comment) {
        m_comment = text;
        emit commentChanged(this);
    }
}

void Document::setLogoPath(const QString& path) {
    if (path != m_logoPath) {
        m_logoPath = path;
        emit logoPathChanged(this);
    }
}

void Document::setSelected(bool selected) {
    if (m_selected != selected) {
        m_selected = selected;
        emit selectionChanged(this);
    }
}

void Document::setPlayPosition(int index) {
    const int position = qBound(0, index, qMax(0, recordedFrames() - 1));
    if (m_position != position) {
        m_position = position;
        emit imageChanged(this);
    }
}

void Document::toggle(QVector<int>& marks, int frame) {
    const auto place = std::lower_bound(marks.begin(), marks.end(), frame);
    if (place != marks.end() && *place == frame) {
        marks.erase(place);
    } else {
        marks.insert(place, frame);
    }
}

int Document::firstPlayed() const { return qBound(0, m_firstPlayed, qMax(0, recordedFrames() - 1)); }

int Document::lastPlayed() const {
    const int last = qMax(0, recordedFrames() - 1);
    return m_lastPlayed < 0 ? last : qBound(firstPlayed(), m_lastPlayed, last);
}

void Document::setPlayed(int first, int last) {
    m_firstPlayed = qMax(0, first);
    m_lastPlayed = last < 0 ? -1 : qMax(m_firstPlayed, last);
    emit playingChanged(this);
}

void Document::setLooping(bool looping) {
    if (m_looping != looping) {
        m_looping = looping;
        emit playingChanged(this);
    }
}

void Document::playOn(int frames) {
    const int first = firstPlayed();
    const int last = lastPlayed();
    const int next = m_position < first ? first : m_position + frames;
    if (next <= last) {
        setPlayPosition(next);
    } else if (m_looping) {
        setPlayPosition(first + (next - first) % (last - first + 1));
    } else {
        setPlayPosition(last);
        setPlaying(false);
    }
}

void Document::setPlaying(bool playing) {
    playing = playing && recordedFrames() > 0;
    if (playing && !m_playing && !m_looping && m_position >= lastPlayed()) {
        setPlayPosition(firstPlayed()); // it had come to its end
    }
    if (m_playing != playing) {
        m_playing = playing;
        emit playingChanged(this);
    }
}

void Document::setView(const ViewState& view) {
    if (m_view != view) {
        m_view = view;
        emit viewChanged(this);
    }
}

bool Document::isToolActive(const QString& name) const {
    return name == QLatin1String("binning") ? m_view.binning > 0 : m_list.tools().isActive(name);
}

void Document::releaseReduction() {
    while (isReductionSuspended()) {
        holdReduction(false);
    }
}

void Document::holdReduction(bool hold) {
    const bool before = isReductionSuspended();
    m_reductionHolds = qMax(0, m_reductionHolds + (hold ? 1 : -1));
    if (before != isReductionSuspended()) {
        emit imageChanged(this);
    }
}

bool Document::isSentReduced() const {
    return m_list.mode() == HOST_MODE_LIVE && m_list.live().isReduced() && head() &&
           head()->model().supports(CameraFunction::LiveQuality);
}
