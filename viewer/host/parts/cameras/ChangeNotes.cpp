#include "viewer/host/parts/cameras/ChangeNotes.h"

#include "viewer/cameras/CameraSource.h"
#include "viewer/cameras/settings/SettingTable.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/SettingText.h"
#include "viewer/documents/commands/CameraCommands.h"
#include "viewer/messages/Messages.h"
#include "viewer/messages/Translated.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace {

/// `settings` with those of the keys as they are in `other`.
HeadSettings withKeysOf(HeadSettings settings, const HeadSettings& other, const QStringList& keys) {
    for (const Setting& row : SettingTable::rows()) {
        if (row.isSettable() && keys.contains(QLatin1String(row.key))) {
            row.put(settings, row.get(other));
        }
    }
    return settings;
}

} // namespace

ChangeNotes::ChangeNotes(DocumentList& documents, Messages& messages)
    : m_documents(documents), m_messages(messages) {
    connect(&documents.source(), &CameraSource::settingsChanged, this, &ChangeNotes::forgetIfOvertaken);
    connect(&documents, &DocumentList::connectionChanged, this, [this](const Document* document) {
        if (m_changes.contains(document->key()) && !document->isConnected()) {
            forget();
        }
    });
    connect(&documents, &DocumentList::documentRemoved, this, [this](const Document* document) {
        m_beforeChannel.remove(document->key());
        if (m_changes.contains(document->key())) {
            forget();
        }
    });
}

ChangeNotes::Settings ChangeNotes::settingsOf(const QList<CameraDocument*>& cameras) {
    Settings settings;
    for (const CameraDocument* const camera : cameras) {
        settings.insert(camera->key(), camera->head()->settings());
    }
    return settings;
}

// What some cameras took is told although others refused.
void ChangeNotes::during(const QList<CameraDocument*>& cameras, const QStringList& asked,
                         const std::function<void()>& change, const More& more) {
    const Settings before = settingsOf(cameras);
    forget();
    const QScopedValueRollback<bool> changing(m_isChanging, true);
    try {
        change();
    } catch (...) {
        tell(before, asked, more);
        throw;
    }
    tell(before, asked, more);
}

void ChangeNotes::duringChannel(const QList<CameraDocument*>& cameras, const std::function<void()>& change,
                                const std::function<HeadSettings(const CameraDocument&)>& beforeIt) {
    Settings before = settingsOf(cameras);
    for (const CameraDocument* const camera : cameras) {
        if (camera->head()->settings().channel == 0) {
            m_beforeChannel.insert(camera->key(), beforeIt(*camera));
        }
    }
    forget();
    const QScopedValueRollback<bool> changing(m_isChanging, true);
    try {
        change();
    } catch (...) {
        forget();
        throw;
    }
    for (const CameraDocument* const camera : cameras) {
        const bool isLeft =
            camera->head()->settings().channel == 0 && before.value(camera->key()).channel != 0;
        if (!isLeft) {
            before.remove(camera->key());
        } else if (m_beforeChannel.contains(camera->key())) {
            before.insert(camera->key(), m_beforeChannel.take(camera->key()));
        }
    }
    tell(before, {}, {});
}

QStringList ChangeNotes::linesOf(const HeadSettings& before, const HeadSettings& now,
                                 const QStringList& asked) const {
    SettingUnits units;
    units.shutter = m_documents.shutterFormat();
    return settingChanges(withKeysOf(before, now, asked), now, units);
}

void ChangeNotes::tell(const Settings& before, const QStringList& asked, const More& more) {
    QList<QPair<QString, QStringList>> told;
    for (const CameraDocument* const camera : m_documents.cameras()) {
        if (!before.contains(camera->key())) {
            continue;
        }
        const HeadSettings was = before.value(camera->key());
        const HeadSettings now = camera->head()->settings();
        QStringList lines = linesOf(was, now, asked);
        if (const QString line = more ? more(*camera, was) : QString(); !line.isEmpty()) {
            lines.append(line);
        }
        if (!lines.isEmpty()) {
            told.append({camera->title(), lines});
        }
        m_changes.insert(camera->key(), {was, now});
    }
    if (told.isEmpty()) {
        m_changes.clear();
    } else {
        emit this->told(text(told));
    }
}

// The same at all of them needs no names.
QString ChangeNotes::text(const QList<QPair<QString, QStringList>>& cameras) const {
    const auto isOther = [&](const auto& camera) { return camera.second != cameras.first().second; };
    QStringList parts;
    if (cameras.size() == m_changes.size() && std::none_of(cameras.begin(), cameras.end(), isOther)) {
        parts.append(cameras.first().second.join(QStringLiteral(", ")));
    } else {
        constexpr int kNamed = 8; // in the tip; the line shows fewer
        for (const auto& camera : cameras.mid(0, kNamed)) {
            parts.append(camera.first + QStringLiteral(": ") + camera.second.join(QStringLiteral(", ")));
        }
        if (cameras.size() > kNamed) {
            parts.append(QStringLiteral("... (+%1)").arg(cameras.size() - kNamed));
        }
    }
    return translated("Also changed: %1").arg(parts.join(QStringLiteral("; ")));
}

void ChangeNotes::undo() {
    const QHash<DOCKEY, Change> changes = m_changes;
    forget();
    QList<CameraDocument*> cameras;
    QHash<const CameraHead*, HeadSettings> wishes;
    for (CameraDocument* const camera : m_documents.cameras()) {
        if (changes.contains(camera->key())) {
            cameras.append(camera);
            wishes.insert(camera->head(), changes.value(camera->key()).before);
        }
    }
    try {
        CameraCommands().run(cameras,
                             [&wishes](CameraHead& head) { return head.adopt(wishes.value(&head)); });
    } catch (const CameraFailure& failure) {
        m_messages.deviceError(failure.failure());
    }
}

// Taking it back would now take more back than the line says.
void ChangeNotes::forgetIfOvertaken(CameraHead* head) {
    const CameraDocument* const camera =
        m_changes.isEmpty() || m_isChanging ? nullptr : m_documents.find(head);
    if (camera && m_changes.contains(camera->key()) &&
        !settingChanges(m_changes.value(camera->key()).now, head->settings()).isEmpty()) {
        forget();
    }
}

void ChangeNotes::forget() {
    if (!m_changes.isEmpty()) {
        m_changes.clear();
        emit told(QString());
    }
}
