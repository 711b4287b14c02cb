#include "viewer/host/parts/cameras/SettingModes.h"

#include "viewer/cameras/CameraHead.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/SettingText.h"
#include "viewer/messages/Translated.h"

#include <QTimer>

namespace {

const QString kBinning = QStringLiteral("binning");
constexpr int kPageBits = 8; // of the scale on which the pages count levels, unless it is a camera's own

} // namespace

SettingModes::SettingModes(DocumentList& documents) : m_documents(documents), m_edit(documents) {
    connect(&documents, &DocumentList::connectionChanged, this, &SettingModes::onConnectionChanged);
    connect(&documents, &DocumentList::currentChanged, this, &SettingModes::endIfLost);
    connect(&documents, &DocumentList::modeChanged, this, &SettingModes::onModeChanged);
}

bool SettingModes::showsBrightnessOf(const Document& document) const {
    return (isOn(AutoExposure) || isOn(HwTrigger)) && m_documents.current() == &document;
}

void SettingModes::set(Mode mode, bool on) {
    if (on && !isLinked()) {
        // A panel that opens on the page of the mode finds no camera and shows another page. Later: whoever
        // sets the mode also forbids what goes with it.
        QTimer::singleShot(0, this, [this] {
            if (!isLinked()) {
                end();
            }
        });
    }
    const bool before = isAny();
    m_on = on ? m_on | mode : m_on & ~mode;
    if (!before && isAny()) {
        m_camera = m_documents.current() ? m_documents.current()->key() : 0;
        m_edit.begin();
    } else if (before && !isAny()) {
        m_edit.end();
        // Another document may have become current since a selection on its view began.
        for (Document* const document : m_documents.allDocuments()) {
            document->releaseReduction();
        }
        emit left();
    }
}

void SettingModes::forbid(const QStringList& names, bool forbidden) {
    const bool had = m_forbidden.contains(kBinning);
    for (const QString& name : names) {
        m_documents.tools().setAllowed(name, !forbidden);
        forbidden ? void(m_forbidden.insert(name)) : void(m_forbidden.remove(name));
    }
    if (had != m_forbidden.contains(kBinning)) {
        forbidden ? suspendBinning() : resumeBinning();
    }
}

void SettingModes::suspendBinning() {
    for (Document* const document : m_documents.allDocuments()) {
        ViewState view = document->view();
        if (view.binning > 0) {
            m_binnings.insert(document->key(), view.binning);
            view.binning = 0;
            document->setView(view);
        }
    }
}

void SettingModes::resumeBinning() {
    for (Document* const document : m_documents.allDocuments()) {
        ViewState view = document->view();
        if (view.binning == 0 && m_binnings.contains(document->key())) {
            view.binning = m_binnings.value(document->key());
            document->setView(view);
        }
    }
    m_binnings.clear();
}

bool SettingModes::isLinked() const {
    const Document* const current = m_documents.current();
    return current && current->isConnected();
}

// In file mode a recording is current, and the page comes back with live mode: meanwhile it is the camera
// that was current which must keep its link.
void SettingModes::endIfLost() {
    if (!isAny() || m_documents.mode() == HOST_MODE_FILE) {
        return;
    }
    if (isLinked()) {
        m_camera = m_documents.current()->key();
    } else {
        endLost();
    }
}

// Recordings have no page of a mode over them, so what it forbids rests as long as they show.
void SettingModes::onModeChanged() {
    const bool rests = m_documents.mode() == HOST_MODE_FILE;
    for (const QString& name : qAsConst(m_forbidden)) {
        m_documents.tools().setAllowed(name, rests);
    }
    if (m_forbidden.contains(kBinning)) {
        rests ? resumeBinning() : suspendBinning();
    }
}

void SettingModes::endLost() {
    m_edit.keepLost();
    qInfo("The link broke while settings were edited: the edit has ended.");
    end();
}

void SettingModes::end() {
    forbid(m_forbidden.values(), false);
    for (const Mode mode : {Variable, AutoExposure, HwTrigger}) {
        if (isOn(mode)) {
            set(mode, false);
        }
    }
}

void SettingModes::onConnectionChanged(Document* document) {
    if (isAny() && m_documents.mode() == HOST_MODE_FILE && !document->isConnected() &&
        document->key() == m_camera) {
        endLost();
    }
    endIfLost();
    if (!document->isConnected()) {
        return;
    }
    const std::optional<EditWatch::Change> change = m_edit.takeLost(*document);
    if (!change) {
        return;
    }
    const ExposureMeter& meter = document->head()->model().meter;
    const int bits = m_countsRealLevels && m_countsRealLevels() ? document->bitDepth() : kPageBits;
    const QStringList lines =
        settingChanges(change->before, change->now,
                       {meter.valueMax, meter.rangeMax, (1U << bits) - 1, m_documents.shutterFormat()});
    if (!lines.isEmpty()) {
        emit stayedChanged(document->title(), lines);
    }
}
