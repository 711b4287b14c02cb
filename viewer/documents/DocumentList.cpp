#include "viewer/documents/DocumentList.h"

#include "livecontrol/interface/DOC_Interface.h"
#include "viewer/cameras/CameraSource.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/commands/CommandWait.h"

#include <algorithm>

DocumentList::DocumentList(CameraSource& source, CallRecorder& calls) : m_source(source), m_calls(calls) {
    m_calls.setKeyOf([this](DOC_Interface* face) {
        const Document* const document = find(face);
        return document ? document->key() : kInvalidDockey;
    });
    // Before anybody who asks for them anew.
    for (const auto signal : {&DocumentList::documentAdded, &DocumentList::documentRemoved,
                              &DocumentList::currentChanged, &DocumentList::connectionChanged}) {
        connect(this, signal, this, &DocumentList::forgetKnown);
    }
    connect(this, &DocumentList::selectionChanged, this, &DocumentList::forgetKnown);
    connect(this, &DocumentList::modeChanged, this, &DocumentList::forgetKnown);
    connect(&m_source, &CameraSource::stateChanged, this, &DocumentList::forgetKnown);
    connect(&m_source, &CameraSource::settingsChanged, this, &DocumentList::forgetKnown);
    connect(&m_source, &CameraSource::infoChanged, this, &DocumentList::forgetKnown);
    // Before anybody who works with the documents, which may take a while.
    connect(&m_source, &CameraSource::stateChanged, this, [this](CameraBody* body) {
        for (Document* const document : ofBody(body)) {
            if (auto* const camera = dynamic_cast<CameraDocument*>(document)) {
                camera->noteState();
            }
        }
    });
    connect(&m_source, &CameraSource::linkChanged, this, [this](CameraBody* body) {
        for (Document* const document : ofBody(body)) {
            emit connectionChanged(document);
        }
    });
    connect(&m_source, &CameraSource::settingsChanged, this, [this](CameraHead* head) {
        if (CameraDocument* const document = find(head)) {
            emit document->imageChanged(document);
        }
    });
    connect(&m_source, &CameraSource::infoChanged, this, &DocumentList::namesChanged);
    connect(&CommandWait::get(), &CommandWait::ended, this, [this] {
        if (!m_keepsRemoved) {
            releaseRemoved();
        }
    });
    connect(&m_source, &CameraSource::bodyRemoved, this, [this](CameraBody* body) { dropBody(body); });
}

DocumentList::~DocumentList() = default;

void DocumentList::setMode(HostMode mode) {
    if (m_mode == mode) {
        return;
    }
    const bool crossed = (m_mode == HOST_MODE_FILE) != (mode == HOST_MODE_FILE);
    for (const std::unique_ptr<Document>& document : m_documents) {
        document->setPlaying(false);
    }
    m_mode = mode;
    if (crossed) {
        Document* const next = m_otherCurrent;
        m_otherCurrent = m_current;
        m_current = next;
        if (m_current == nullptr) {
            const QList<Document*> chosen = selected();
            m_current = chosen.value(0, documents().value(0, nullptr));
            if (m_current) {
                m_current->setSelected(true);
            }
        }
    }
    emit modeChanged(mode);
    if (crossed) {
        emit currentChanged(m_current);
    }
}

void DocumentList::setNamesAreAddresses(bool on) {
    if (m_namesAreAddresses != on) {
        m_namesAreAddresses = on;
        emit namesChanged();
    }
}

QList<CameraDocument*> DocumentList::addCamera(CameraBody* body) {
    for (DeviceDocument* const device : devices()) {
        if (device->body() == body) {
            return device->heads();
        }
    }
    auto* const device = new DeviceDocument(*this, nextKey(), body);
    append(std::unique_ptr<Document>(device));
    QList<CameraDocument*> heads;
    for (CameraHead* const head : body->heads()) {
        heads.append(new CameraDocument(*this, nextKey(), head, *device));
        append(std::unique_ptr<Document>(heads.last()));
    }
    device->setHeads(heads);
    for (CameraDocument* const head : qAsConst(heads)) {
        emit documentAdded(head);
    }
    return heads;
}

void DocumentList::addAllCameras() {
    for (CameraBody* const body : m_source.cameras()) {
        addCamera(body);
    }
    const QList<CameraDocument*> all = cameras();
    const auto connected = [](const CameraDocument* camera) { return camera->isConnected(); };
    const auto first = std::find_if(all.cbegin(), all.cend(), connected);
    if (currentCamera() == nullptr && first != all.cend()) {
        select(*first);
    }
}

FileDocument* DocumentList::addRecording(FrameSourcePtr source, const QString& path) {
    auto* const document = new FileDocument(*this, nextKey(), std::move(source), path);
    append(std::unique_ptr<Document>(document));
    emit documentAdded(document);
    return document;
}

void DocumentList::selectRecordings(const QList<FileDocument*>& chosen) {
    QList<Document*> documents;
    for (FileDocument* const each : chosen) {
        documents.append(each);
    }
    if (m_mode == HOST_MODE_FILE) {
        setSelection(documents);
        return;
    }
    for (FileDocument* const each : recordings()) {
        each->setSelected(chosen.contains(each));
    }
    m_otherCurrent = documents.value(0, nullptr);
}

QList<FileDocument*> DocumentList::recordings() const {
    QList<FileDocument*> list;
    for (const std::unique_ptr<Document>& document : m_documents) {
        if (document->kind() == Document::Kind::File) {
            list.append(static_cast<FileDocument*>(document.get()));
        }
    }
    return list;
}

Document* DocumentList::append(std::unique_ptr<Document> document) {
    Document* const added = document.get();
    connect(added, &Document::selectionChanged, this, &DocumentList::selectionChanged);
    m_documents.push_back(std::move(document));
    return added;
}

bool DocumentList::mayRemove(Document& document) {
    if (CameraBody* const body = document.body()) {
        return mayLose({body});
    }
    return !m_lossGuard || m_lossGuard->mayClose(static_cast<FileDocument&>(document));
}

void DocumentList::remove(Document* document) {
    if (CameraBody* const body = document->body()) {
        dropBody(body);
    } else {
        drop(document);
    }
}

void DocumentList::dropBody(const CameraBody* body) {
    QList<Document*> together = ofBody(body);
    while (!together.isEmpty()) {
        drop(together.takeLast()); // the heads before their device
    }
}

void DocumentList::removeAll() {
    while (!m_documents.empty()) {
        drop(m_documents.back().get());
    }
}

void DocumentList::setKeepingRemoved(bool on) {
    m_keepsRemoved = on;
    if (!on) {
        releaseRemoved();
    }
}

void DocumentList::releaseRemoved() {
    for (std::unique_ptr<Document>& document : m_removed) {
        document->setParent(this);
        document.release()->deleteLater();
    }
    m_removed.clear();
}

void DocumentList::drop(Document* document) {
    const auto isIt = [document](const std::unique_ptr<Document>& one) { return one.get() == document; };
    const auto place = std::find_if(m_documents.begin(), m_documents.end(), isIt);
    m_removed.push_back(std::move(*place)); // the operation that closes it may go on with its face
    m_documents.erase(place);
    if (!m_keepsRemoved && !CommandWait::get().isWaiting()) { // who waits for a camera may still have it
        releaseRemoved();
    }
    if (m_otherCurrent == document) {
        m_otherCurrent = nullptr;
    }
    if (m_current == document) {
        m_current = selected().value(0, nullptr);
        emit currentChanged(m_current);
    }
    if (document->kind() != Document::Kind::Device) {
        emit documentRemoved(document);
    }
    if (document->isSelected()) {
        emit selectionChanged();
    }
}

QList<Document*> DocumentList::ofBody(const CameraBody* body) const {
    QList<Document*> list;
    for (const std::unique_ptr<Document>& document : m_documents) {
        if (document->body() == body) {
            list.append(document.get());
        }
    }
    return list;
}

QList<Document*> DocumentList::documents() const {
    const Document::Kind kind = shownKind();
    QList<Document*> list;
    for (const std::unique_ptr<Document>& document : m_documents) {
        if (document->kind() == kind) {
            list.append(document.get());
        }
    }
    return list;
}

QList<Document*> DocumentList::allDocuments() const {
    QList<Document*> list;
    for (const std::unique_ptr<Document>& document : m_documents) {
        list.append(document.get());
    }
    return list;
}

QList<CameraDocument*> DocumentList::cameras() const {
    QList<CameraDocument*> list;
    for (const std::unique_ptr<Document>& document : m_documents) {
        if (document->kind() == Document::Kind::Camera) {
            list.append(static_cast<CameraDocument*>(document.get()));
        }
    }
    return list;
}

QList<DeviceDocument*> DocumentList::devices() const {
    QList<DeviceDocument*> list;
    for (const std::unique_ptr<Document>& document : m_documents) {
        if (document->kind() == Document::Kind::Device) {
            list.append(static_cast<DeviceDocument*>(document.get()));
        }
    }
    return list;
}

Document* DocumentList::find(DOCKEY key) const {
    for (const std::unique_ptr<Document>& document : m_documents) {
        if (document->key() == key) {
            return document.get();
        }
    }
    return nullptr;
}

Document* DocumentList::find(const DOC_Interface* face) const {
    for (const std::unique_ptr<Document>& document : m_documents) {
        if (document->face() == face) {
            return document.get();
        }
    }
    return nullptr;
}

CameraDocument* DocumentList::find(const CameraHead* head) const {
    for (CameraDocument* const camera : cameras()) {
        if (camera->head() == head) {
            return camera;
        }
    }
    return nullptr;
}

void DocumentList::keepWifiFailure(const DeviceFailure& failure) {
    const QMutexLocker lock(&m_wifiMutex);
    m_wifiFailure = failure;
}

DeviceFailure DocumentList::takeWifiFailure() {
    const QMutexLocker lock(&m_wifiMutex);
    return std::exchange(m_wifiFailure, DeviceFailure());
}
