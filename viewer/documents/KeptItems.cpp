#include "viewer/documents/KeptItems.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/prefs/Preferences.h"

namespace {

/// Empty for a camera that can't be known again.
QString keyOf(const CameraDocument& camera) {
    const QString& serial = camera.body()->serial();
    const int head = camera.body()->heads().indexOf(camera.head());
    return serial.isEmpty() ? QString() : QStringLiteral("custominfo/%1.%2").arg(serial).arg(head + 1);
}

CameraDocument* cameraOf(Document* document) { return dynamic_cast<CameraDocument*>(document); }

} // namespace

KeptItems::KeptItems(DocumentList& documents, Preferences& preferences, QObject* parent)
    : QObject(parent), m_documents(documents), m_preferences(preferences) {
    for (CameraDocument* const camera : documents.cameras()) {
        bringBack(camera);
    }
    connect(&documents, &DocumentList::documentAdded, this, &KeptItems::bringBack);
    connect(&documents, &DocumentList::documentRemoved, this, [this](Document* document) {
        if (CameraDocument* const camera = cameraOf(document)) {
            storeAll();
            camera->customItems().onChanged({});
        }
    });
}

KeptItems::~KeptItems() {
    storeAll();
    for (CameraDocument* const camera : m_documents.cameras()) {
        camera->customItems().onChanged({});
    }
}

void KeptItems::bringBack(Document* document) {
    CameraDocument* const camera = cameraOf(document);
    if (!camera || keyOf(*camera).isEmpty()) {
        return;
    }
    camera->customItems().setList(m_preferences.value(keyOf(*camera)).toList());
    camera->customItems().onChanged([this, camera] { noteChange(camera); });
}

void KeptItems::noteChange(CameraDocument* camera) {
    if (m_changed.isEmpty()) {
        QMetaObject::invokeMethod(this, &KeptItems::storeAll, Qt::QueuedConnection);
    }
    m_changed.insert(camera);
}

void KeptItems::storeAll() {
    for (CameraDocument* const camera : qAsConst(m_changed)) {
        const CustomItems& items = camera->customItems();
        if (items.isEmpty()) {
            m_preferences.remove(keyOf(*camera));
        } else {
            m_preferences.setValue(keyOf(*camera), items.toList());
        }
    }
    m_changed.clear();
}
