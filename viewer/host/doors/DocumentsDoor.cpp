#include "viewer/host/doors/DocumentsDoor.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/Wifi.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/adapters/DocumentAdapter.h"
#include "viewer/host/parts/DeviceDialogs.h"
#include "viewer/host/parts/cameras/CameraFinder.h"
#include "viewer/recordings/RecordingError.h"
#include "viewer/recordings/RecordingFile.h"

void DocumentsDoor::openFiles(const QStringList& paths, int option1, int option2, int option3, int option4,
                              int option5) {
    OPERATION(paths, option1, option2, option3, option4, option5);
    openRecordings(paths);
}

void DocumentsDoor::openRecordings(const QStringList& paths) {
    m_newKeys.clear();
    std::exception_ptr failure;
    for (const QString& path : paths) {
        try {
            m_newKeys.append(m_documents.addRecording(RecordingFile::open(path), path)->key());
        } catch (const RecordingError& error) { // as plug-ins know it
            const DOC_ReadFileException known(error.path(), error.why().english());
            failure = failure ? failure : std::make_exception_ptr(known);
        } catch (const std::exception&) {
            failure = failure ? failure : std::current_exception();
        }
    }
    m_temporary.add(m_newKeys);
    if (failure) {
        std::rethrow_exception(failure);
    }
}

DOCKEY DocumentsDoor::keyOfDocument(DOC_Interface* document) {
    OPERATION(document);
    const Document* const found = m_documents.find(document);
    return found ? found->key() : kInvalidDockey;
}

void DocumentsDoor::deleteAllDocuments(int reserved, bool unselectOnly) {
    OPERATION(reserved, unselectOnly);
    if (unselectOnly) {
        m_documents.setSelection({});
        return;
    }
    QList<CameraBody*> bodies;
    for (const Document* const document : m_documents.documents()) {
        if (document->body() && !bodies.contains(document->body())) {
            bodies.append(document->body());
        }
    }
    if (!m_documents.mayLose(bodies)) {
        return;
    }
    for (const DOCKEY key : keysOf(m_documents.documents())) {
        Document* const document = m_documents.find(key); // the heads of a body go together
        if (document && (document->body() || m_documents.mayRemove(*document))) {
            m_documents.remove(document);
        }
    }
}

void DocumentsDoor::removeDocument(DOCKEY key) {
    Document* document = m_documents.find(key);
    if (document && m_documents.mayRemove(*document)) {
        document = m_documents.find(key); // the camera may have gone while the user was asked
        if (document) {
            m_documents.remove(document);
        }
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

QList<DOCKEY> DocumentsDoor::listCameraKeys(bool connectedOnly, bool selectedOnly) {
    OPERATION(connectedOnly, selectedOnly);
    // In file mode nothing is connected: the recordings that are open stand there for the cameras.
    if (connectedOnly && m_documents.mode() == HOST_MODE_FILE) {
        return keysOf(selectedOnly ? m_documents.selected() : m_documents.documents());
    }
    QList<DOCKEY> keys;
    for (const CameraDocument* const camera : m_documents.cameras()) {
        if ((!connectedOnly || camera->isConnected()) && (!selectedOnly || camera->isSelected())) {
            keys.append(camera->key());
        }
    }
    return keys;
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
    const Document* const before = m_documents.find(key);
    const QString address = before && before->body() ? before->body()->address() : QString();
    if (!before || !DeviceDialogs::edit(*this, key, m_shell.dialogParent())) {
        return;
    }
    // The link went to the old address. The camera may have left the list while the dialog was open, and the
    // user may have thought better of an address.
    const Document* const document = m_documents.find(key);
    if (document && document->body() && document->body()->address() != address) {
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

void DocumentsDoor::disconnectWifi(DOCKEY key) {
    OPERATION(key);
    const Document* const document = m_documents.find(key);
    if (document && document->body() && document->body()->wifi()) {
        document->body()->wifi()->leave();
    }
}
