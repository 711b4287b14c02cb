#include "viewer/host/SettingModes.h"

#include "viewer/cameras/CameraHead.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/ShutterFormat.h"
#include "viewer/messages/Translated.h"

#include <QJsonArray>
#include <QTimer>

namespace {

const QString kBinning = QStringLiteral("binning");

/// A group of values in a head's state, with the words of those that a user knows.
struct Known {
    const char* group;
    const char* key;
    const char* words;
};

constexpr Known kKnown[] = {{"settings", "resolution", "Resolution"},
                            {"settings", "rate", "Frame rate"},
                            {"settings", "shutter", "Shutter speed"},
                            {"settings", "shutterLock", "Locked Shutter Speed"},
                            {"settings", "resolutionLock", "Locked Resolution"},
                            {"settings", "dualSlope", "Dual Slope Shutter"},
                            {"settings", "autoExposure", "Auto Exposure"},
                            {"settings", "imageTrigger", "H/W Image Trigger"},
                            {"settings", "triggerMode", "Trigger mode"},
                            {"settings", "channel", "Variable"},
                            {"exposureControl", "area", "Select Area"},
                            {"exposureControl", "value", "Target Value"},
                            {"exposureControl", "range", "Range"},
                            {"exposureControl", "maxTime", "Maximum exposure time"},
                            {"imageTriggerControl", "area", "Select Area"},
                            {"imageTriggerControl", "value", "Target Value"},
                            {"imageTriggerControl", "range", "Range"}};

/// These follow the others, as a rule.
constexpr Known kFollowing[] = {{"settings", "dualSlopeMode", "Dual Slope Shutter"},
                                {"settings", "afterFrames", "After trigger"},
                                {"settings", "randomFrames", "Random frames"},
                                {"settings", "randomCount", "Number of recordings"},
                                {"settings", "randomTimes", "Enable times"},
                                {"settings", "lowLightType", "Display with a maximum resolution"},
                                {"settings", "led", "LED"},
                                {"settings", "laser", "Laser"}};

QString wordsOf(const Known& known) {
    const QString words = translated(known.words);
    const QLatin1String group(known.group);
    if (group == QLatin1String("settings")) {
        return words;
    }
    return translated(group == QLatin1String("exposureControl") ? "Auto Exposure" : "H/W Image Trigger") +
           QStringLiteral(", ") + words;
}

QString valueText(const Known& known, const QJsonValue& value) {
    if (value.isBool()) {
        return translated(value.toBool() ? "on" : "off");
    }
    if (value.isArray()) {
        QStringList parts;
        for (const QJsonValue part : value.toArray()) {
            parts.append(QString::number(part.toInt()));
        }
        return parts.join(parts.size() == 2 ? QStringLiteral(" x ") : QStringLiteral(", "));
    }
    const QLatin1String key(known.key);
    if ((key == QLatin1String("shutter") || key == QLatin1String("maxTime")) && value.toDouble() > 0) {
        return ShutterFormat().text(quint32(value.toDouble()));
    }
    if (key == QLatin1String("channel") && value.toInt() == 0) {
        return QStringLiteral("---");
    }
    const QString number = QString::number(value.toDouble());
    return key == QLatin1String("rate") ? number + QStringLiteral(" fps") : number;
}

template <size_t Count>
QStringList changesOf(const Known (&known)[Count], const QJsonObject& before, const QJsonObject& now) {
    const bool exposesItself =
        now.value(QStringLiteral("settings")).toObject().value(QStringLiteral("autoExposure")).toBool();
    QStringList lines;
    for (const Known& each : known) {
        const QLatin1String key(each.key);
        if (exposesItself && key == QLatin1String("shutter")) {
            continue; // follows the light
        }
        const QJsonValue was = before.value(QLatin1String(each.group)).toObject().value(key);
        const QJsonValue is = now.value(QLatin1String(each.group)).toObject().value(key);
        if (was != is) {
            lines.append(changeLine(wordsOf(each), valueText(each, was), valueText(each, is)));
        }
    }
    return lines;
}

} // namespace

QString changeLine(const QString& what, const QString& before, const QString& now) {
    return QStringLiteral("%1: %2 \u2192 %3").arg(what, before, now);
}

QStringList settingChanges(const QJsonObject& before, const QJsonObject& now) {
    return changesOf(kKnown, before, now);
}

QStringList allSettingChanges(const QJsonObject& before, const QJsonObject& now) {
    return changesOf(kKnown, before, now) + changesOf(kFollowing, before, now);
}

SettingModes::SettingModes(DocumentList& documents) : m_documents(documents) {
    connect(&documents, &DocumentList::connectionChanged, this, &SettingModes::onConnectionChanged);
    connect(&documents, &DocumentList::currentChanged, this, &SettingModes::endIfLost);
}

bool SettingModes::showsBrightnessOf(const Document& document) const {
    return (isOn(AutoExposure) || isOn(HwTrigger)) && m_documents.current() == &document;
}

void SettingModes::set(Mode mode, bool on) {
    if (on && !isLinked()) {
        // A panel that opens on the page of the mode finds no camera and shows another page. Later: whoever
        // sets the mode also forbids what goes with it.
        QTimer::singleShot(0, this, &SettingModes::end);
    }
    const bool before = isAny();
    m_on = on ? m_on | mode : m_on & ~mode;
    if (!before && isAny()) {
        remember();
    } else if (before && !isAny()) {
        m_before.clear();
        // Another document may have become current since a selection on its view began.
        for (Document* const document : m_documents.allDocuments()) {
            document->releaseReduction();
        }
        emit left();
    }
}

void SettingModes::remember() {
    m_before.clear();
    for (CameraDocument* const camera : m_documents.targetCameras()) {
        m_before.insert(camera->key(), camera->head()->state());
        m_lost.remove(camera->key());
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

// In file mode a recording is current, and the page comes back with live mode.
void SettingModes::endIfLost() {
    if (isAny() && m_documents.mode() != HOST_MODE_FILE && !isLinked()) {
        endLost();
    }
}

void SettingModes::endLost() {
    for (CameraDocument* const camera : m_documents.cameras()) {
        if (!camera->isConnected() && m_before.contains(camera->key())) {
            m_lost.insert(camera->key(), m_before.value(camera->key()));
        }
    }
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
    if (m_documents.mode() == HOST_MODE_FILE && !document->isConnected() &&
        m_before.contains(document->key())) {
        endLost();
    }
    endIfLost();
    if (!document->isConnected() || !m_lost.contains(document->key()) || !document->head()) {
        return;
    }
    const QStringList changes = settingChanges(m_lost.take(document->key()), document->head()->state());
    if (!changes.isEmpty()) {
        emit stayedChanged(document->title(), changes);
    }
}
