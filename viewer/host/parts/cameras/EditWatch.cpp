#include "viewer/host/parts/cameras/EditWatch.h"

#include "viewer/cameras/CameraSource.h"
#include "viewer/cameras/settings/SettingTable.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"

#include <QTimer>

namespace {

/// `settings` with those that differ between `from` and `to`, as they are in `to`.
HeadSettings withChanges(HeadSettings settings, const HeadSettings& from, const HeadSettings& to) {
    for (const Setting& row : SettingTable::rows()) {
        if (row.get(from) != row.get(to)) {
            row.put(settings, row.get(to));
        }
    }
    return settings;
}

} // namespace

EditWatch::EditWatch(DocumentList& documents) : m_documents(documents) {
    connect(&documents.source(), &CameraSource::settingsChanged, this, &EditWatch::onSettingsChanged);
    connect(&documents.source(), &CameraSource::changedOutside, this, &EditWatch::onChangedOutside);
}

void EditWatch::begin() {
    m_edits.clear();
    for (CameraDocument* const camera : m_documents.targetCameras()) {
        const HeadSettings& now = camera->head()->settings();
        m_edits.insert(camera->key(), {now, now, now});
        m_lost.remove(camera->key());
    }
}

void EditWatch::keepLost() {
    for (CameraDocument* const camera : m_documents.cameras()) {
        if (!camera->isConnected() && m_edits.contains(camera->key())) {
            m_lost.insert(camera->key(), {m_edits.value(camera->key()).before, camera->head()->settings()});
        }
    }
}

std::optional<EditWatch::Change> EditWatch::takeLost(const Document& document) {
    if (!document.head() || !m_lost.contains(document.key())) {
        return std::nullopt;
    }
    const Change lost = m_lost.take(document.key());
    const HeadSettings& now = document.head()->settings();
    return Change{withChanges(lost.before, lost.now, now), now};
}

EditWatch::Edit* EditWatch::editOf(CameraHead* head) {
    for (const CameraDocument* const camera : m_documents.cameras()) {
        const auto edit = camera->head() == head ? m_edits.find(camera->key()) : m_edits.end();
        if (edit != m_edits.end()) {
            return &*edit;
        }
    }
    return nullptr;
}

// A camera tells of each change, and of one by hand once more right after that.
void EditWatch::onSettingsChanged(CameraHead* head) {
    Edit* const edit = editOf(head);
    if (!edit) {
        return;
    }
    edit->previous = edit->now;
    edit->now = head->settings();
    // By then it was no change by hand. A lens that comes to rest later, say, must not count it as one.
    QTimer::singleShot(0, this, [this, head] {
        if (Edit* const settled = editOf(head)) {
            settled->previous = settled->now;
        }
    });
}

void EditWatch::onChangedOutside(CameraHead* head) {
    if (Edit* const edit = editOf(head)) {
        edit->before = withChanges(edit->before, edit->previous, edit->now);
        edit->previous = edit->now;
    }
}
