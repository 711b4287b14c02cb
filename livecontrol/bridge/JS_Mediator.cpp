#include "livecontrol/interface/JS_Mediator.h"

#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/bridge/UserOperationLog.h"
#include "livecontrol/foundation/DeterUpdateScope.h"
#include "livecontrol/foundation/LiveSuspendGuard.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/foundation/UTL_Format.h"
#include "livecontrol/foundation/WindowHelpers.h"
#include "livecontrol/interface/DOC_Playback.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"

#include <QWebFrame>

namespace {
/// Kind of window that `countMdiWindow` counts.
constexpr int kMdiWindows = 2;
/// `HostExporter::copyToClipboard`: the selected part of the image.
constexpr int kCopySelectedArea = 2;
} // namespace

JS_Mediator::JS_Mediator(HostObject* host, const QString& name) : m_host(host), m_name(name) {
    qRegisterMetaType<DOCKEY>("DOCKEY"); // a page can't call a slot whose types have no name
}

bool JS_Mediator::isFileMode() {
    return guarded([&] { return m_host->isFileMode(); }, false);
}

void JS_Mediator::addPrefsJSObject() {
    if (m_view) {
        m_view->page()->mainFrame()->addToJavaScriptWindowObject(QStringLiteral("prefs"), this);
    }
}

bool JS_Mediator::is3DFile(DOC_Interface* pDoc) {
    return guarded(
        [&] {
            DOC_Interface* const document = pDoc ? pDoc : m_host->currentDocument();
            return document && docAs<DOC_Settings>(document).is3D();
        },
        false);
}

bool JS_Mediator::isReady() {
    return guarded([&] { return m_host->isReady(); }, false);
}

bool JS_Mediator::isLiveMode() {
    return guarded([&] { return m_host->isLiveMode(); }, false);
}

bool JS_Mediator::isMemoryMode() {
    return guarded([&] { return m_host->isMemoryMode(); }, false);
}

bool JS_Mediator::isPlaying() {
    return guarded(
        [&] {
            DOC_Interface* const document = m_host->currentDocument();
            return document && docAs<DOC_Playback>(document).isPlaying();
        },
        false);
}

bool JS_Mediator::isConnected() {
    return guarded(
        [&] {
            DOC_Interface* const document = m_host->currentDocument();
            return document && document->isConnected();
        },
        false);
}

bool JS_Mediator::isUpdateIgnore() {
    return guarded([&] { return m_host->isUpdateIgnore(); }, false);
}

bool JS_Mediator::isTracking() {
    return guarded([&] { return m_host->isTracking(); }, false);
}

bool JS_Mediator::isStepTracking() {
    return guarded([&] { return m_host->isStepTracking(); }, false);
}

bool JS_Mediator::isQmonRunning() {
    return guarded([&] { return m_host->isQmonRunning(); }, false);
}

int JS_Mediator::countMdiWindow(bool visible) {
    return guarded([&] { return m_host->countWindows(visible, kMdiWindows); }, 0);
}

bool JS_Mediator::isWaveDataAcquisition() {
    return guarded([&] { return m_host->isWaveDataAcquisition(); }, false);
}

bool JS_Mediator::isShownDropBox() {
    return guarded([&] { return m_host->isShownDropBox(); }, false);
}

void JS_Mediator::copySelectAreaToClipboard() {
    const OperationTrace trace(QStringLiteral("JS_Mediator::copySelectAreaToClipboard"));
    guarded([&] { m_host->copyToClipboard(kCopySelectedArea); });
}

void JS_Mediator::setStyle(const QString& style) {
    guarded([&] {
        m_host->setPref(QStringLiteral("env/style"), style);
        QWidget* const parent = m_host->getDialogParent();
        if (auto* const dialog =
                parent ? parent->findChild<QWidget*>(QStringLiteral("GUI_MobileDialog")) : nullptr) {
            applyNativeStyle(m_host, dialog);
        }
    });
}

QString JS_Mediator::getStyle() {
    return guarded(
        [&] { return m_host->getPrefString(QStringLiteral("env/style"), QStringLiteral("dark"), 0); },
        QString());
}

void JS_Mediator::openPlugin(const QString& name) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator::openPlugin"),
                                      traceArgs({{"name", name}}));
    guarded([&] {
        if (name != QLatin1String("binning")) {
            m_host->openPlugin(name);
            return;
        }
        const LiveSuspendGuard guard(m_host, false, true); // another binning restarts the live image
        m_host->openPlugin(name);
    });
}

void JS_Mediator::closePlugin() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator::closePlugin"));
    guarded([&] { m_host->closeCurrentPlugin(); });
}

void JS_Mediator::closePlugin(const QString& name) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator::closePlugin"),
                                      traceArgs({{"name", name}}));
    guarded([&] {
        const DeterUpdateScope deter(m_host);
        m_host->closePlugin(name);
    });
}

QString JS_Mediator::load(const QString& fileName) {
    const QString path = QStringLiteral(":/") + fileName;
    const QString text = readTextResource(path);
    if (text.isEmpty()) {
        qWarning() << "not found" << path;
    }
    return text;
}

int JS_Mediator::openPrefsDialog(const QString& page) {
    const OperationTrace trace(QStringLiteral("JS_Mediator::openPrefsDialog"), traceArgs({{"page", page}}));
    return guarded(
        [&] {
            if (m_host->isLiveMode()) {
                m_host->prepareSettingsDialog();
            }
            HostPrefsDialog* const dialog = m_host->getPrefsDialog();
            if (!dialog) {
                return 0;
            }
            dialog->setPage(m_host->translate(page, nullptr, 0));
            return dialog->exec();
        },
        0);
}

void JS_Mediator::openPrefsEthernetSettings() {
    const OperationTrace trace(QStringLiteral("JS_Mediator::openPrefsEthernetSettings"));
    guarded([&] { m_host->openPrefsEthernetSettings(); });
}

void JS_Mediator::openAbouZelDialog() {
    const OperationTrace trace(QStringLiteral("JS_Mediator::openAbouZelDialog"));
    guarded([&] { m_host->openAboutDialog(); });
}

void JS_Mediator::setDisableAllQuickTool() {
    const OperationTrace trace(QStringLiteral("JS_Mediator::setDisableAllQuickTool"));
    guarded([&] {
        m_host->setActiveTool(QString());
        m_host->setToolsDisabled(true);
        m_host->refreshTools();
    });
}

void JS_Mediator::checkRestoredPrefs() {
    guarded([&] {
        if (m_host->wereSettingsRestored()) {
            m_host->reportRestoredSettings(true);
        }
    });
}

void JS_Mediator::info(const QString& message) {
    guarded([&] { m_host->info(message, nullptr); });
}

void JS_Mediator::warn(const QString& message) {
    guarded([&] { m_host->warn(message, nullptr); });
}

void JS_Mediator::warn(const QString& message, const QStringList& messages) {
    guarded([&] { m_host->showWarningList(message, messages, nullptr); });
}

void JS_Mediator::alert(const QString& message) {
    guarded([&] { m_host->alert(message, nullptr); });
}

void JS_Mediator::alert(const QString& message, const QStringList& messages) {
    guarded([&] { m_host->showAlertList(message, messages, nullptr); });
}

bool JS_Mediator::confirm(const QString& message) {
    return guarded([&] { return m_host->confirm(message, nullptr, {}); }, false);
}

QString JS_Mediator::translate(const QString& string) {
    return guarded([&] { return m_host->translate(string, nullptr, 0); }, QString());
}

QString JS_Mediator::translate(const QString& string, const QString& arg) {
    return guarded(
        [&] {
            QString text = m_host->translate(string, nullptr, 0);
            const int place = text.indexOf(QLatin1String("%1"));
            return place < 0 ? text : text.replace(place, 2, m_host->translate(arg, nullptr, 0));
        },
        QString());
}

void JS_Mediator::errorHandler(std::exception& e) { reportFailure(m_host, e); }

void JS_Mediator::infoLog(const QString& msg) { qInfo().noquote() << msg; }

void JS_Mediator::errorLog(const QString& msg) { qCritical().noquote() << msg; }

void JS_Mediator::userOperationLogWebView(const QString& url, const QString& operation,
                                          const QString& control, const QString& id, const QString& className,
                                          const QVariant& value) {
    logUserOperation(url, operation, control, id, className, value);
}

void JS_Mediator::userOperationErrorLog(const QString& message) { logUserOperationError(message); }

void JS_Mediator::updateUI() {
    guarded([&] { m_host->updateAll(m_updateFlags, true); });
}

void JS_Mediator::deterUpdateUI(bool deter) {
    guarded([&] { m_host->deterUpdateUI(deter); });
}

void JS_Mediator::showDropDownBox(const QString& key, int x, int y, int width, int height) {
    guarded([&] { m_host->showDropDownBox(key, QRect(x, y, width, height)); });
}

void JS_Mediator::hideDropDownBox(const QString& key) {
    guarded([&] { m_host->hideDropDownBox(key); });
}

void JS_Mediator::hideDropDownBox(const QString& key, int x, int y) {
    guarded([&] { m_host->hideDropDownBoxAt(key, QPoint(x, y)); });
}

void JS_Mediator::hideSelectBox() {
    guarded([&] { m_host->hideSelectBox(); });
}

QString JS_Mediator::formatFrames(uint value, bool withUnit) {
    return formatCount(value, withUnit ? QStringLiteral("frames") : QString(),
                       m_host->getPrefBool(QStringLiteral("display/frameInsertDelimiter"), QVariant()));
}

QString JS_Mediator::formatRecordRate(uint value, bool withUnit) {
    return formatCountNonZero(
        value, withUnit ? m_host->translate(QStringLiteral("fps"), nullptr, 0) : QString(),
        m_host->getPrefBool(QStringLiteral("display/recordRateInsertDelimiter"), QVariant()));
}
