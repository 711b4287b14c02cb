#include "viewer/documents/Document.h"

#include "livecontrol/interface/DOC_Interface.h"
#include "viewer/cameras/CameraHead.h"
#include "viewer/documents/DocumentList.h"

Document::Document(DocumentList& list, Kind kind, DOCKEY key) : m_list(list), m_kind(kind), m_key(key) {}

Document::~Document() = default;

void Document::setFace(std::unique_ptr<DOC_Interface> face) { m_face = std::move(face); }

void Document::setComment(const QString& text) {
    if (text != m_comment) {
        m_comment = text;
        emit commentChanged(this);
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

void Document::setPlaying(bool playing) {
    playing = playing && recordedFrames() > 0;
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
