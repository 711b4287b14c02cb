#include "viewer/host/doors/DocumentsDoor.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/WifiUnit.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentFace.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/host/parts/CameraFinder.h"
#include "viewer/host/parts/DeviceDialogs.h"

namespace {
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

void DocumentsDoor::openFiles(const QStringList& paths, int option1, int option2, int option3, int option4,
                              int option5) {
    OPERATION(paths, option1, option2, option3, option4, option5);
    m_newKeys.clear();
    for (const QString& path : paths) {
        m_newKeys.append(m_documents.addClip(Clip::load(path), path)->key());
    }
}

DOCKEY DocumentsDoor::keyOfDocument(DOC_Interface* document) {
    OPERATION(document);
    const Document* const found = m_documents.find(document);
    return found ? found->key() : kInvalidDockey;
}

DOC_Interface* DocumentsDoor::docByKey(DOCKEY key, bool includeCameras) {
    OPERATION(key, includeCameras);
    return faceOf(m_documents.find(key));
}

DOC_Interface* DocumentsDoor::findDocument(DOCKEY key) {
    OPERATION(key);
    return faceOf(m_documents.find(key));
}

void DocumentsDoor::setCurrentKey(DOCKEY key, bool notify) {
    OPERATION(key, notify);
    if (Document* const document = m_documents.find(key)) {
        m_documents.setCurrent(document);
    }
}

void DocumentsDoor::setCurrentDocument(DOC_Interface* document) {
    OPERATION(document);
    if (Document* const found = m_documents.find(document)) {
        m_documents.setCurrent(found);
    }
}

void DocumentsDoor::selectDocument(DOCKEY key) {
    OPERATION(key);
    if (Document* const document = m_documents.find(key)) {
        m_documents.select(document);
    }
}

void DocumentsDoor::selectDocumentKeepCurrent(DOCKEY key, bool notify) {
    OPERATION(key, notify);
    if (Document* const document = m_documents.find(key)) {
        m_documents.selectKeepCurrent(document);
    }
}

void DocumentsDoor::unselectDocument(DOCKEY key) {
    OPERATION(key);
    if (Document* const document = m_documents.find(key)) {
        m_documents.unselect(document);
    }
}

DOC_Interface* DocumentsDoor::currentDocument() {
    OPERATION();
    return faceOf(current());
}

bool DocumentsDoor::isCurrentDocument(DOC_Interface* document) {
    OPERATION(document);
    return document && document == faceOf(current());
}

void DocumentsDoor::deleteDocument(DOCKEY key) {
    OPERATION(key);
    if (Document* const document = m_documents.find(key)) {
        m_documents.remove(document);
    }
}

void DocumentsDoor::deleteAllDocuments(int reserved, bool unselectOnly) {
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

void DocumentsDoor::closeDocument(DOCKEY key, bool ask) {
    OPERATION(key, ask);
    if (Document* const document = m_documents.find(key)) {
        m_documents.remove(document);
    }
}

void DocumentsDoor::disconnectDocument(DOCKEY key) {
    OPERATION(key);
    const Document* const document = m_documents.find(key);
    if (document && document->body()) {
        document->body()->disconnectLink();
    }
}

void DocumentsDoor::setSelection(const QList<DOCKEY>& keys, bool reserved) {
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

QList<DOCKEY> DocumentsDoor::listSelectedKeys(int reserved) {
    OPERATION(reserved);
    return keysOf(m_documents.selected());
}

QList<DOCKEY> DocumentsDoor::getAllKeys(bool includeHidden) {
    OPERATION(includeHidden);
    return keysOf(m_documents.documents());
}

QList<DOCKEY> DocumentsDoor::listCameraKeys(bool connectedOnly, bool selectedOnly) {
    OPERATION(connectedOnly, selectedOnly);
    QList<DOCKEY> keys;
    for (const CameraDocument* const camera : m_documents.cameras()) {
        if ((!connectedOnly || camera->isConnected()) && (!selectedOnly || camera->isSelected())) {
            keys.append(camera->key());
        }
    }
    return keys;
}

QList<DOCKEY> DocumentsDoor::getSelectedCameraKeys(int reserved) {
    OPERATION(reserved);
    return keysOf(m_documents.selectedCameras());
}

QList<DOCKEY> DocumentsDoor::getSelectedKeys(bool reserved) {
    OPERATION(reserved);
    return keysOf(m_documents.selected());
}

QList<DeviceObject*> DocumentsDoor::listDevices() {
    OPERATION();
    QList<DeviceObject*> devices;
    for (const DeviceDocument* const device : m_documents.devices()) {
        devices.append(device->object());
    }
    return devices;
}

DOC_Interface* DocumentsDoor::getParentDocument(DOC_Interface* document) {
    OPERATION(document);
    const auto* const camera = dynamic_cast<CameraDocument*>(m_documents.find(document));
    return camera ? faceOf(camera->parentDevice()) : nullptr;
}

void DocumentsDoor::editDocument(DOCKEY key) {
    OPERATION(key);
    if (!m_documents.find(key) || !DeviceDialogs::edit(*this, key, m_shell.dialogParent())) {
        return;
    }
    // The link went to the old address. The camera may have left the list while the dialog was open.
    if (const Document* const document = m_documents.find(key)) {
        CameraFinder(m_documents).findAgain(*document->body());
    }
}

void DocumentsDoor::getPhaseAdjustTargets(QList<DOC_Interface*>& documents) {
    OPERATION();
    documents.clear();
    for (const CameraDocument* const camera : m_links.cameras()) {
        documents.append(camera->face());
    }
}

// Not recorded: it may run on another thread.
void DocumentsDoor::saveCameraSettings(const QString& path, int reserved) {
    Q_UNUSED(reserved)
    m_settingsFiles.save(path);
}

void DocumentsDoor::loadCameraSettings(const QString& path, int reserved1, int reserved2) {
    OPERATION(path, reserved1, reserved2);
    m_settingsFiles.load(path);
    m_updates.requestSoon(-1);
}

void DocumentsDoor::disconnectWifi(DOCKEY key) {
    OPERATION(key);
    const Document* const document = m_documents.find(key);
    if (document && document->body() && document->body()->wifi()) {
        document->body()->wifi()->leave();
    }
}
