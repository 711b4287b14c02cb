#include "viewer/host/parts/EditWatch.h"

#include "viewer/cameras/CameraSource.h"
#include "viewer/cameras/SettingTable.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"

#include <QTimer>

namespace {

/// `state` with the settings in it that differ between `from` and `to`, as they are in `to`.
QJsonObject withChanges(QJsonObject state, const QJsonObject& from, const QJsonObject& to) {
    for (auto group = to.begin(); group != to.end(); ++group) {
        const QJsonObject was = from.value(group.key()).toObject();
        const QJsonObject is = group.value().toObject();
        QJsonObject changed = state.value(group.key()).toObject();
        bool differs = false;
        for (auto setting = is.begin(); setting != is.end(); ++setting) {
            if (was.value(setting.key()) != setting.value()) {
                changed[setting.key()] = setting.value();
                differs = true;
            }
        }
        if (differs) {
            state[group.key()] = changed;
        }
    }
    return state;
}

} // namespace

EditWatch::EditWatch(DocumentList& documents) : m_documents(documents) {
    connect(&documents.source(), &CameraSource::settingsChanged, this, &EditWatch::onSettingsChanged);
    connect(&documents.source(), &CameraSource::changedOutside, this, &EditWatch::onChangedOutside);
}

void EditWatch::begin() {
    m_edits.clear();
    for (CameraDocument* const camera : m_documents.targetCameras()) {
        const QJsonObject state = SettingTable::state(camera->head()->settings());
        m_edits.insert(camera->key(), {state, state, state});
        m_lost.remove(camera->key());
    }
}

void EditWatch::keepLost() {
    for (CameraDocument* const camera : m_documents.cameras()) {
        if (!camera->isConnected() && m_edits.contains(camera->key())) {
            m_lost.insert(camera->key(), {m_edits.value(camera->key()).before,
                                          SettingTable::state(camera->head()->settings())});
        }
    }
}

std::optional<EditWatch::Change> EditWatch::takeLost(const Document& document) {
    if (!document.head() || !m_lost.contains(document.key())) {
        return std::nullopt;
    }
    const Change lost = m_lost.take(document.key());
    const QJsonObject now = SettingTable::state(document.head()->settings());
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

// A camera tells of each change, and of one by hand right behind that once more.
void EditWatch::onSettingsChanged(CameraHead* head) {
    Edit* const edit = editOf(head);
    if (!edit) {
        return;
    }
    edit->previous = edit->now;
    edit->now = SettingTable::state(head->settings());
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
