#include "viewer/documents/KeptItems.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/prefs/Preferences.h"

namespace {

/// Empty for a camera that can't be known again.
QString nameOf(const CameraDocument& camera) {
    const QString& serial = camera.body()->serial();
    const int head = camera.body()->heads().indexOf(camera.head());
    return serial.isEmpty() ? QString() : QStringLiteral("%1.%2").arg(serial).arg(head + 1);
}

QString itemsKey(const CameraDocument& camera) { return QStringLiteral("custominfo/") + nameOf(camera); }
QString commentKey(const CameraDocument& camera) { return QStringLiteral("comment/") + nameOf(camera); }

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
            forget(camera);
        }
    });
}

KeptItems::~KeptItems() {
    storeAll();
    for (CameraDocument* const camera : m_documents.cameras()) {
        forget(camera);
    }
}

void KeptItems::forget(CameraDocument* camera) {
    camera->customItems().onChanged({});
    disconnect(camera, &Document::commentChanged, this, nullptr);
}

void KeptItems::bringBack(Document* document) {
    CameraDocument* const camera = cameraOf(document);
    if (!camera || nameOf(*camera).isEmpty()) {
        return;
    }
    camera->customItems().setList(m_preferences.value(itemsKey(*camera)).toList());
    camera->setComment(m_preferences.value(commentKey(*camera)).toString());
    connect(camera, &Document::commentChanged, this, [this, camera] { noteChange(camera); });
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
        store(itemsKey(*camera), camera->customItems().toList(), camera->customItems().isEmpty());
        store(commentKey(*camera), camera->comment(), camera->comment().isEmpty());
    }
    m_changed.clear();
}

void KeptItems::store(const QString& key, const QVariant& value, bool isEmpty) {
    if (isEmpty) {
        m_preferences.remove(key);
    } else {
        m_preferences.setValue(key, value);
    }
}
