#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/adapters/DocumentAdapter.h"

#include <algorithm>

DeviceDocument::DeviceDocument(DocumentList& list, DOCKEY key, CameraBody* body)
    : Document(list, Kind::Device, key), m_body(body) {
    auto face = std::make_unique<DeviceFace>(*this);
    m_object = face.get();
    setFace(std::move(face));
}

DeviceDocument::~DeviceDocument() = default;

CameraDocument* DeviceDocument::activeHead() const { return m_active ? m_active : m_heads.value(0, nullptr); }

CameraHead* DeviceDocument::head() const { return activeHead() ? activeHead()->head() : nullptr; }

void DeviceDocument::setActiveHead(CameraDocument* head) {
    if (head == nullptr || m_heads.contains(head)) {
        m_active = head;
        m_chosen = head != nullptr;
    }
}

void DeviceDocument::deviceSelected() {
    if (m_single) {
        m_single = false;
    } else {
        for (CameraDocument* const head : qAsConst(m_heads)) {
            list().selectKeepCurrent(head);
        }
    }
    if (activeHead()) {
        list().setCurrent(activeHead());
    }
    setSelected(true);
}

void DeviceDocument::deviceUnselected() {
    for (CameraDocument* const head : qAsConst(m_heads)) {
        list().unselect(head);
    }
    setSelected(false);
    setActiveHead(nullptr);
    m_single = false;
}

void DeviceDocument::headsChanged() {
    if (m_chosen) {
        m_chosen = false;
        m_single = true;
        list().select(m_active);
    }
    const auto isSelectedHead = [](const CameraDocument* head) { return head->isSelected(); };
    setSelected(std::any_of(m_heads.cbegin(), m_heads.cend(), isSelectedHead));
    if (!isSelected()) {
        m_single = false;
        m_active = nullptr;
    } else if (auto* const current = dynamic_cast<CameraDocument*>(list().current());
               current && m_heads.contains(current)) {
        m_active = current;
    }
}

bool DeviceDocument::isConnected() const { return m_body->isConnected(); }

QString DeviceDocument::title() const {
    return list().areNamesAddresses() ? m_body->address() : m_body->name();
}

QSize DeviceDocument::imageSize() const { return activeHead() ? activeHead()->imageSize() : QSize(); }

int DeviceDocument::bitDepth() const { return m_body->model().bitDepth; }

Frame DeviceDocument::frame(const QSize& maxSize) {
    return activeHead() ? activeHead()->frame(maxSize) : Frame();
}

Frame DeviceDocument::recordedFrame(int index, const QSize& maxSize) {
    return activeHead() ? activeHead()->recordedFrame(index, maxSize) : Frame();
}

int DeviceDocument::recordedFrames() const { return activeHead() ? activeHead()->recordedFrames() : 0; }

int DeviceDocument::triggerIndex() const { return activeHead() ? activeHead()->triggerIndex() : 0; }

quint32 DeviceDocument::recordedRate() const { return activeHead() ? activeHead()->recordedRate() : 0; }
