// Documents by key, the selection, opening and closing.

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentFace.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/host/Shell.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/host/parts/CameraFinder.h"
#include "viewer/host/parts/DeviceDialogs.h"

namespace {
constexpr char kInterface[] = "HostDocuments";

template <class List>
QList<DOCKEY> keysOf(const List& documents) {
    QList<DOCKEY> keys;
    for (const Document* const document : documents) {
        keys.append(document->key());
    }
    return keys;
}

DOC_Interface* faceOf(const Document* document) { return document ? document->face() : nullptr; }
} // namespace

void ViewerHost::openFiles(const QStringList& paths, int option1, int option2, int option3, int option4,
                           int option5) {
    OPERATION(paths, option1, option2, option3, option4, option5);
    m_newKeys.clear();
    for (const QString& path : paths) {
        m_newKeys.append(m_documents.addClip(Clip::load(path), path)->key());
    }
}

DOCKEY ViewerHost::keyOfDocument(DOC_Interface* document) {
    OPERATION(document);
    const Document* const found = m_documents.find(document);
    return found ? found->key() : kInvalidDockey;
}

DOC_Interface* ViewerHost::docByKey(DOCKEY key, bool includeCameras) {
    OPERATION(key, includeCameras);
    return faceOf(m_documents.find(key));
}

DOC_Interface* ViewerHost::findDocument(DOCKEY key) {
    OPERATION(key);
    return faceOf(m_documents.find(key));
}

void ViewerHost::setCurrentKey(DOCKEY key, bool notify) {
    OPERATION(key, notify);
    if (Document* const document = m_documents.find(key)) {
        m_documents.setCurrent(document);
    }
}

void ViewerHost::setCurrentDocument(DOC_Interface* document) {
    OPERATION(document);
    if (Document* const found = m_documents.find(document)) {
        m_documents.setCurrent(found);
    }
}

void ViewerHost::selectDocument(DOCKEY key) {
    OPERATION(key);
    if (Document* const document = m_documents.find(key)) {
        m_documents.select(document);
    }
}

void ViewerHost::selectDocumentKeepCurrent(DOCKEY key, bool notify) {
    OPERATION(key, notify);
    if (Document* const document = m_documents.find(key)) {
        m_documents.selectKeepCurrent(document);
    }
}

void ViewerHost::unselectDocument(DOCKEY key) {
    OPERATION(key);
    if (Document* const document = m_documents.find(key)) {
        m_documents.unselect(document);
    }
}

DOC_Interface* ViewerHost::currentDocument() {
    OPERATION();
    return faceOf(current());
}

DOCKEY ViewerHost::getCurrentKey() {
    OPERATION();
    return m_documents.currentKey();
}

bool ViewerHost::isCurrentDocument(DOC_Interface* document) {
    OPERATION(document);
    return document && document == faceOf(current());
}

void ViewerHost::deleteDocument(DOCKEY key) {
    OPERATION(key);
    if (Document* const document = m_documents.find(key)) {
        m_documents.remove(document);
    }
}

void ViewerHost::deleteAllDocuments(int reserved, bool unselectOnly) {
    OPERATION(reserved, unselectOnly);
    if (unselectOnly) {
        m_documents.setSelection({});
        return;
    }
    QList<Document*> documents = m_documents.documents();
    while (!documents.isEmpty()) {
        m_documents.remove(documents.first());
        documents = m_documents.documents();
    }
}

void ViewerHost::closeDocument(DOCKEY key, bool ask) {
    OPERATION(key, ask);
    if (Document* const document = m_documents.find(key)) {
        m_documents.remove(document);
    }
}

void ViewerHost::disconnectDocument(DOCKEY key) {
    OPERATION(key);
    const Document* const document = m_documents.find(key);
    if (document && document->body()) {
        document->body()->disconnectLink();
    }
}

void ViewerHost::selectAll(JS_Mediator* mediator) {
    OPERATION(mediator);
    m_documents.selectAll();
}

void ViewerHost::setSelection(const QList<DOCKEY>& keys, bool reserved) {
    OPERATION(keys, reserved);
    QList<Document*> documents;
    for (const DOCKEY key : keys) {
        if (Document* const document = m_documents.find(key)) {
            documents.append(document);
        }
    }
    if (!documents.isEmpty() || keys.isEmpty()) {
        m_documents.setSelection(documents);
    }
}

int ViewerHost::getDocumentCount() {
    OPERATION();
    return m_documents.documentCount();
}

int ViewerHost::getSelectedCount() {
    OPERATION();
    return m_documents.selectedCount();
}

QList<DOCKEY> ViewerHost::listSelectedKeys(int reserved) {
    OPERATION(reserved);
    return keysOf(m_documents.selected());
}

QList<DOCKEY> ViewerHost::getAllKeys(bool includeHidden) {
    OPERATION(includeHidden);
    return keysOf(m_documents.documents());
}

QList<DOCKEY> ViewerHost::listTemporaryKeys() {
    OPERATION();
    return {};
}

QList<DOCKEY> ViewerHost::listNewKeys() {
    OPERATION();
    return m_newKeys;
}

QList<DOCKEY> ViewerHost::listCameraKeys(bool connectedOnly, bool selectedOnly) {
    OPERATION(connectedOnly, selectedOnly);
    QList<DOCKEY> keys;
    for (const CameraDocument* const camera : m_documents.cameras()) {
        if ((!connectedOnly || camera->isConnected()) && (!selectedOnly || camera->isSelected())) {
            keys.append(camera->key());
        }
    }
    return keys;
}

QList<DOCKEY> ViewerHost::getSelectedCameraKeys(int reserved) {
    OPERATION(reserved);
    return keysOf(m_documents.selectedCameras());
}

QList<DOCKEY> ViewerHost::getSelectedKeys(bool reserved) {
    OPERATION(reserved);
    return keysOf(m_documents.selected());
}

QList<DOCKEY> ViewerHost::listViewKeys(int reserved) {
    OPERATION(reserved);
    return m_shell.windowKeys(false);
}

QMutex* ViewerHost::getDocumentMutex() {
    OPERATION();
    return &m_documents.mutex();
}

QList<DeviceObject*> ViewerHost::listDevices() {
    OPERATION();
    QList<DeviceObject*> devices;
    for (const DeviceDocument* const device : m_documents.devices()) {
        devices.append(device->object());
    }
    return devices;
}

DOC_Interface* ViewerHost::getParentDocument(DOC_Interface* document) {
    OPERATION(document);
    const auto* const camera = dynamic_cast<CameraDocument*>(m_documents.find(document));
    return camera ? faceOf(camera->parentDevice()) : nullptr;
}

void ViewerHost::refreshDocuments() {
    OPERATION();
    m_updates.requestSoon(-1);
}

void ViewerHost::prepareRefreshDocuments() { OPERATION(); }

void ViewerHost::refreshViews() {
    OPERATION();
    m_shell.refreshViews();
}

void ViewerHost::prepareRefreshViews() { OPERATION(); }

void ViewerHost::editDocument(DOCKEY key) {
    OPERATION(key);
    if (!m_documents.find(key) || !DeviceDialogs::edit(*this, key, m_shell.dialogParent())) {
        return;
    }
    // The link went to the old address. The camera may have left the list while the dialog was open.
    if (const Document* const document = m_documents.find(key)) {
        CameraFinder(m_documents).findAgain(*document->body());
    }
}

void ViewerHost::setDocumentSource(int source) { OPERATION(source); }
