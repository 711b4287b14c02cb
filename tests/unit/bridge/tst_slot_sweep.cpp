// Lets every host and document operation that a slot calls fail, one at a time, for each slot of each script
// object. Slots that come later are swept without a line here.

#include "livecontrol/bridge/JS_Mediator_ModelessPatternDialog.h"
#include "livecontrol/devices/JS_Mediator_AddDeviceDialog.h"
#include "livecontrol/devices/JS_Mediator_AutoCameraName.h"
#include "livecontrol/devices/JS_Mediator_CameraNetworkSettingDialog.h"
#include "livecontrol/devices/JS_Mediator_ChangePasswordDialog.h"
#include "livecontrol/devices/JS_Mediator_DeviceList.h"
#include "livecontrol/devices/JS_Mediator_DiscoverySearchDialog.h"
#include "livecontrol/devices/JS_Mediator_EditDeviceDialog.h"
#include "livecontrol/devices/JS_Mediator_InputPasswordDialog.h"
#include "livecontrol/devices/JS_Mediator_WifiSettingDialog.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"
#include "livecontrol/overlays/formats/GUI_TimeCodeCustomDialog.h"
#include "livecontrol/overlays/formats/JS_Mediator_AddNumberDialog.h"
#include "livecontrol/overlays/formats/JS_Mediator_FrameFormatDialog.h"
#include "livecontrol/overlays/formats/JS_Mediator_RecordRateFormatDialog.h"
#include "livecontrol/overlays/formats/JS_Mediator_RectimeFormatDialog.h"
#include "livecontrol/overlays/formats/JS_Mediator_ShutterSpeedFormatDialog.h"
#include "livecontrol/plugin/PLG_livecontrol.h"
#include "livecontrol/storage/cards/JS_Mediator_SaveCFast.h"
#include "livecontrol/storage/cards/JS_Mediator_SaveDockStore.h"
#include "livecontrol/storage/cards/JS_Mediator_SaveSD.h"
#include "livecontrol/storage/dialogs/JS_Mediator_ConvertParameterEditDialog.h"
#include "livecontrol/storage/dialogs/JS_Mediator_FileSaveDialog.h"
#include "livecontrol/storage/dialogs/JS_Mediator_SaveFile.h"
#include "livecontrol/web/JS_Mediator_SelectBox.h"
#include "tests/support/DialogCloser.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestRig.h"

#include <QMetaMethod>
#include <QtTest>
#include <stdexcept>

namespace {

const QString kHandleError = QStringLiteral("HostApplication.handleError");

/// What a page may hand over: the key of the camera, a row that the lists have.
QVariant argumentFor(int type, const QByteArray& name) {
    QVariant value(type, nullptr);
    if (name.toLower().endsWith("key")) {
        value = TestRig::kKey;
        value.convert(type == QMetaType::QVariant ? int(QMetaType::QString) : type);
        return value;
    }
    if (name == "ipAddress") {
        return QStringLiteral("192.168.0.10");
    }
    if (name == "json") {
        return QStringLiteral("[\"7\"]");
    }
    if (type == QMetaType::QVariant || type == QMetaType::QString) {
        return QStringLiteral("7");
    }
    if (value.canConvert(QMetaType::Int) && type != QMetaType::Bool) {
        value = 1;
        value.convert(type);
    }
    return value;
}

/// Calls a slot as the web engine does, through the meta-object.
void invoke(QObject& object, const QMetaMethod& method) {
    QVariantList values;
    QVector<QGenericArgument> arguments(10);
    const QList<QByteArray> types = method.parameterTypes();
    void* null = nullptr;
    for (int i = 0; i < types.size(); ++i) {
        const int type = method.parameterType(i);
        values.append(type == QMetaType::UnknownType ? QVariant()
                                                     : argumentFor(type, method.parameterNames().at(i)));
    }
    for (int i = 0; i < types.size(); ++i) {
        const int type = method.parameterType(i);
        const void* const data = type == QMetaType::UnknownType ? static_cast<void*>(&null)
                                 : type == QMetaType::QVariant  ? static_cast<const void*>(&values.at(i))
                                                                : values.at(i).constData();
        arguments[i] = QGenericArgument(types.at(i).constData(), data);
    }
    QVERIFY2(method.invoke(&object, Qt::DirectConnection, arguments[0], arguments[1], arguments[2],
                           arguments[3], arguments[4], arguments[5], arguments[6]),
             method.methodSignature().constData());
}

bool isSwept(const QMetaMethod& method) {
    return method.methodType() == QMetaMethod::Slot && method.access() == QMetaMethod::Public &&
           !method.methodSignature().contains("exception");
}

/// The slot tells by its result whether the host can do it.
bool isItsAnswer(const QMetaMethod& method) { return method.name() == "existSetDockStorePassword"; }

/// Runs the slot once to learn what it calls, then once for each of these with that operation failing.
void sweep(TestRig& rig, QObject& object, const QMetaMethod& method, QStringList& swept) {
    rig.host.calls.clear();
    invoke(object, method);
    QStringList called = rig.host.calls.names();
    called.removeDuplicates();
    for (const QString& operation : called) {
        rig.host.calls.clear();
        rig.host.calls.failNext(operation, throwing(std::runtime_error("cable")));
        try {
            invoke(object, method);
        } catch (...) {
            QFAIL(qPrintable(QStringLiteral("%1 escapes from %2")
                                 .arg(operation, QString::fromLatin1(method.methodSignature()))));
        }
        QVERIFY2(rig.host.calls.count(kHandleError) == (isItsAnswer(method) ? 0 : 1),
                 qPrintable(QStringLiteral("%1 in %2 was reported %3 times")
                                .arg(operation, QString::fromLatin1(method.methodSignature()))
                                .arg(rig.host.calls.count(kHandleError))));
        rig.host.calls.clear();
        invoke(object, method); // and it works again
        QCOMPARE(rig.host.calls.count(kHandleError), 0);
        swept.append(operation);
    }
}

/// All slots that the object has beyond those of `base`.
void sweepAll(TestRig& rig, QObject& object, const QMetaObject& base, QStringList& swept) {
    const QMetaObject* const meta = object.metaObject();
    for (int i = base.methodCount(); i < meta->methodCount(); ++i) {
        if (isSwept(meta->method(i))) {
            sweep(rig, object, meta->method(i), swept);
        }
    }
}

} // namespace

class tst_SlotSweep : public QObject {
    Q_OBJECT

private slots:
    void noFailureEscapes() {
        LogCapture quiet;
        TestRig rig;
        rig.host.onCanStartModal = [] { return true; };
        PLG_livecontrol plugin;
        plugin.init(&rig.host);
        JS_Mediator_LiveControl live(&rig.host, &plugin);
        JS_Mediator_DeviceList list(&rig.host, QStringLiteral("deviceList"));
        JS_Mediator_ModelessPatternDialog dialog(&rig.host, QStringLiteral("dialog"));
        JS_Mediator_AddDeviceDialog addDevice(&rig.host, true);
        JS_Mediator_EditDeviceDialog editDevice(&rig.host, TestRig::kKey);
        JS_Mediator_AutoCameraName names(&rig.host, QStringLiteral("names"), nullptr);
        JS_Mediator_DiscoverySearchDialog discovery(&rig.host, QStringLiteral("[]"));
        JS_Mediator_CameraNetworkSettingDialog network(&rig.host);
        JS_Mediator_WifiSettingDialog wifi(&rig.host, &rig.camera, nullptr);
        JS_Mediator_InputPasswordDialog input(&rig.host, QString(), 0);
        JS_Mediator_ChangePasswordDialog change(&rig.host, QString(), QString(), 1);
        JS_Mediator_SelectBox items(&rig.host);
        JS_Mediator_ShutterSpeedFormatDialog shutter(&rig.host);
        JS_Mediator_RecordRateFormatDialog rate(&rig.host);
        JS_Mediator_FrameFormatDialog frame(&rig.host);
        JS_Mediator_RectimeFormatDialog recordingTime(&rig.host);
        JS_Mediator_AddNumberDialog digits(&rig.host, 0, 1, 1);
        JS_Mediator_FileSaveDialog save(&rig.host);
        JS_Mediator_ConvertParameterEditDialog convert(&rig.host, {TestRig::kKey}, TestRig::kKey, 1);
        JS_Mediator_SaveFile saveFile(&rig.host, QStringLiteral("filesavedialog"));
        JS_Mediator_SaveSD sd(&rig.host);
        JS_Mediator_SaveDockStore dockStore(&rig.host);
        JS_Mediator_SaveCFast cFast(&rig.host);
        DialogCloser closer;
        const QMetaObject& all = QObject::staticMetaObject;
        const QMetaObject& own =
            JS_Mediator_Dialog::staticMetaObject; // its slots are swept once, in `dialog`
        const QVector<QPair<QObject*, const QMetaObject*>> objects{
            {&live, &all},
            {&list, &all},
            {&dialog, &all},
            {&addDevice, &own},
            {&editDevice, &own},
            {&names, &JS_Mediator::staticMetaObject},
            {&discovery, &own},
            {&network, &own},
            {&wifi, &own},
            {&input, &own},
            {&change, &own},
            {&items, &JS_Mediator::staticMetaObject},
            {&shutter, &own},
            {&rate, &own},
            {&frame, &own},
            {&recordingTime, &own},
            {&digits, &own},
            {&save, &own},
            {&convert, &JS_Mediator_FileDialog::staticMetaObject},
            {&saveFile, &JS_Mediator::staticMetaObject},
            {&sd, &JS_Mediator::staticMetaObject},
            {&dockStore, &JS_Mediator::staticMetaObject},
            {&cFast, &JS_Mediator::staticMetaObject},
        };
        QStringList swept;
        for (const auto& [object, base] : objects) {
            sweepAll(rig, *object, *base, swept);
        }
        QVERIFY2(swept.size() > 500, qPrintable(QString::number(swept.size()))); // the sweep really swept
        for (const char* const behindDialogs :
             {"DOC_Settings.powerOff", "HostDocuments.deleteDocument", "DOC_Settings.connectAccessPoint",
              "DOC_Settings.setAccessPointPassword", "HostApplication.endModal", "DOC_Settings.formatSDSlot",
              "HostDocuments.openCFastCard"}) {
            QVERIFY2(swept.contains(QLatin1String(behindDialogs)), behindDialogs);
        }
    }

    // Which is its page's script object itself.
    void noFailureEscapesFromADialog() {
        TestRig rig;
        GUI_TimeCodeCustomDialog dialog(&rig.host, nullptr);
        QStringList swept;
        sweepAll(rig, dialog, GUI_Dialog::staticMetaObject, swept);
        QVERIFY(swept.contains(QStringLiteral("HostApplication.setTimeCodeSetting")));
    }

    void theLastPlaceOfAllDoesNotThrow() {
        LogCapture log;
        TestRig rig;
        rig.host.calls.failNext(kHandleError, throwing(std::runtime_error("box")), -1);
        rig.host.calls.failNext(QStringLiteral("HostApplication.isReady"),
                                throwing(std::runtime_error("cable")));
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));
        QVERIFY(!mediator.isReady());
        QCOMPARE(log.with(QStringLiteral("could not be shown")).size(), 1);
    }
};

QTEST_MAIN(tst_SlotSweep)
#include "tst_slot_sweep.moc"
