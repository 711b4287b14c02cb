#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"

#include <algorithm>

namespace {
// A device is current through the head that stands for it.
Document* standing(Document* document) {
    if (document && document->kind() == Document::Kind::Device) {
        return static_cast<DeviceDocument*>(document)->activeHead();
    }
    return document;
}
} // namespace

QList<Document*> DocumentList::selected() const {
    QList<Document*> list = documents();
    const auto isFree = [](const Document* document) { return !document->isSelected(); };
    list.erase(std::remove_if(list.begin(), list.end(), isFree), list.end());
    return list;
}

QList<CameraDocument*> DocumentList::selectedCameras() const {
    QList<CameraDocument*> list;
    for (CameraDocument* const camera : cameras()) {
        if (camera->isSelected() && camera->isConnected()) {
            camera == m_current ? list.prepend(camera) : list.append(camera);
        }
    }
    return list;
}

QList<CameraDocument*> DocumentList::targetCameras() const {
    QList<CameraDocument*> list = selectedCameras();
    CameraDocument* const current = currentCamera();
    if (selected().isEmpty() && current && current->isConnected()) {
        list.append(current);
    }
    return list;
}

int DocumentList::documentCount() const {
    if (m_known.documents < 0) {
        const Document::Kind kind = shownKind();
        m_known.documents =
            int(std::count_if(m_documents.cbegin(), m_documents.cend(),
                              [kind](const std::unique_ptr<Document>& one) { return one->kind() == kind; }));
    }
    return m_known.documents;
}

int DocumentList::selectedCount() const {
    if (m_known.selected < 0) {
        const Document::Kind kind = shownKind();
        m_known.selected = int(std::count_if(m_documents.cbegin(), m_documents.cend(),
                                             [kind](const std::unique_ptr<Document>& one) {
                                                 return one->kind() == kind && one->isSelected();
                                             }));
    }
    return m_known.selected;
}

bool DocumentList::anyTarget(bool (*is)(const CameraDocument& camera, int what), int what) const {
    for (const Known::Target& known : m_known.targets) {
        if (known.is == is && known.what == what) {
            return known.answer;
        }
    }
    const bool answer = findTarget(is, what);
    m_known.targets.push_back({is, what, answer});
    return answer;
}

bool DocumentList::findTarget(bool (*is)(const CameraDocument& camera, int what), int what) const {
    bool isAnySelected = false;
    for (const std::unique_ptr<Document>& one : m_documents) {
        if (one->kind() == Document::Kind::Camera && one->isSelected()) {
            isAnySelected = true;
            const auto& camera = static_cast<const CameraDocument&>(*one);
            if (camera.isConnected() && is(camera, what)) {
                return true;
            }
        }
    }
    const CameraDocument* const current = currentCamera();
    return !isAnySelected && current && current->isConnected() && is(*current, what);
}

CameraDocument* DocumentList::currentCamera() const {
    return m_current && m_current->kind() == Document::Kind::Camera ? static_cast<CameraDocument*>(m_current)
                                                                    : nullptr;
}

void DocumentList::setCurrent(Document* document) {
    Document* const next = standing(document);
    if (next) {
        next->setSelected(true);
    }
    if (m_current != next) {
        m_current = next;
        emit currentChanged(next);
    }
}

void DocumentList::select(Document* document) {
    document->setSelected(true);
    setCurrent(document);
}

void DocumentList::selectKeepCurrent(Document* document) {
    document->setSelected(true);
    if (m_current == nullptr) {
        setCurrent(document);
    }
}

void DocumentList::unselect(Document* document) {
    document->setSelected(false);
    if (document == m_current && !selected().isEmpty()) {
        setCurrent(selected().first());
    }
}

void DocumentList::selectAll() {
    for (Document* const document : documents()) {
        if (document->kind() == Document::Kind::File || document->isConnected()) {
            selectKeepCurrent(document);
        }
    }
    tellDevices();
}

void DocumentList::setSelection(const QList<Document*>& chosen) {
    QList<Document*> wanted;
    for (Document* const document : chosen) {
        wanted.append(standing(document));
    }
    // The new ones first, so that no moment lacks a current document.
    for (Document* const document : qAsConst(wanted)) {
        document->setSelected(true);
    }
    if (!wanted.isEmpty() && !wanted.contains(m_current)) {
        setCurrent(wanted.first());
    }
    for (Document* const document : documents()) {
        if (!wanted.contains(document)) {
            document->setSelected(false);
        }
    }
    tellDevices();
}

void DocumentList::tellDevices() {
    for (DeviceDocument* const device : devices()) {
        device->headsChanged();
    }
}
