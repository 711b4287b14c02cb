#pragma once

#include "tests/support/SmallRig.h"
#include "viewer/host/HostWindow.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/messages/Messages.h"
#include "viewer/prefs/Preferences.h"

#include <QHash>

/// A shell without windows that counts what reaches it.
struct EmptyShell : HostWindow {
    int viewRefreshes = 0;
    int pageUpdates = 0;
    std::function<void()> onPageUpdate;
    QString busyText; // of whichever camera

    QWidget* mainWindow() override { return nullptr; }
    QWidget* dialogParent() override { return nullptr; }
    QObject* mdiArea() override { return nullptr; }
    QList<DOCKEY> windowKeys(bool) override { return {}; }
    int windowCount(bool) override { return 0; }
    bool isCycling() override { return false; }
    void refreshTools() override {}
    void refreshViews() override { ++viewRefreshes; }
    void refreshView(DOCKEY) override {}
    void setBusyText(DOCKEY, const QString& text) override { busyText = text; }
    bool isInfoShowing() override { return false; }
    void setInfoShowing(bool) override {}
    void runPanelScript(const QString&) override {}
    void addPanelMediator(JS_Mediator*) override {}
    void attachMediator(GUI_WebView*, JS_Mediator*) override {}
    void updateAttachedMediators() override {
        ++pageUpdates;
        if (onPageUpdate) {
            onPageUpdate();
        }
    }
    void showPanel(PLG_Interface*) override {}
    bool isLivePage(bool) override { return false; }
    QObject* appScriptObject() override { return nullptr; }
    QObject* mainScriptObject() override { return nullptr; }
    void showDropDownBox(const QString&, const QRect&) override {}
    void hideDropDownBox(const QString&) override {}
    void hideDropDownBoxAt(const QString&, const QPoint&) override {}
    bool isDropDownBoxShown() override { return false; }
    void hideSelectBox() override {}
    void nativeWidgetEntered(QEvent*) override {}
    void nativeWidgetLeft(QEvent*) override {}
    void nativeWidgetPressed(QMouseEvent*) override {}
    HostPrefsDialog* prefsDialog() override { return nullptr; }
    bool isPrefsDialogOpen() override { return false; }
    void openAbout() override {}
    QDialog* powerWaitDialog() override { return nullptr; }
    void runWithProgress(const QString&, QFutureWatcher<void>&) override {}
    QStringList logLines() override { return lines; }
    QList<QStringList> earlierLogs() override { return {{QStringLiteral("before [password:hunter4]")}}; }
    QImage capture() override { return QImage(8, 6, QImage::Format_RGB32); }
    QString translate(const QString& text, const char*, int) override { return text; }

    QStringList lines;
};

struct MapPreferences : Preferences {
    QHash<QString, QVariant> values;

    QVariant value(const QString& key, const QVariant& defaultValue) const override {
        return values.value(key, defaultValue);
    }
    void setValue(const QString& key, const QVariant& value) override { values[key] = value; }
    void remove(const QString& key) override { values.remove(key); }
    QStringList keys() const override { return values.keys(); }
    QVariant factoryDefault(const QString&) const override { return {}; }
};

/// Keeps the texts in place of showing them.
struct KeptMessages : Messages {
    QStringList errors;
    QStringList losses; // questions before something is lost
    QStringList lists;  // of warnings
    QList<DeviceFailure> failures;
    bool throws = false;

    void info(const QString&, QWidget*) override {}
    void warn(const QString&, QWidget*) override {}
    void warnList(const QString&, const QStringList& lines, QWidget*) override { lists += lines; }
    void alert(const QString&, QWidget*) override {}
    void alertList(const QString&, const QStringList&, QWidget*) override {}
    bool confirm(const QString&, QWidget*, const QMap<QString, QString>&) override { return true; }
    bool confirmLoss(const QString& text, const QStringList& lines, QWidget*) override {
        losses.append(text);
        return confirm(text + QLatin1Char('\n') + lines.join(QLatin1Char('\n')), nullptr, {});
    }
    bool confirmOkCancel(const QString&, QWidget*) override { return true; }
    void error(const QString& text) override {
        errors.append(text);
        if (throws) {
            throw std::runtime_error("no screen");
        }
    }
    void deviceError(const DeviceFailure& failure) override { failures.append(failure); }
    void gatherFailures(bool) override {}
};

/// A whole host over the small rig.
struct HostTest : SmallRig {
    EmptyShell shell;
    MapPreferences preferences;
    KeptMessages messages;
    ViewerHost host{list, preferences, messages, shell, calls};

    /// A recording in the memory of the camera.
    void record(const char* camera) {
        SimulatedBody& recorded = *body(camera);
        recorded.recordReady().result();
        rig.clock().advanceMs(recorded.model().readyTimeMs + 50);
        recorded.triggerIn().result();
        rig.clock().advanceMs(60000);
    }
};
