#include "tests/support/TestRig.h"

TestRig::TestRig() {
    host.onCurrentDocument = [this] { return &camera; };
    host.onDocByKey = [this](DOCKEY key, bool) { return key == kKey ? &camera : nullptr; };
    host.onFindDocument = [this](DOCKEY key) { return key == kKey ? &camera : nullptr; };
    host.onGetCurrentKey = [] { return kKey; };
    host.onGetAllKeys = [](bool) { return QList<DOCKEY>{kKey}; };
    host.onConfirm = [](const QString&, QWidget*, const QMap<QString, QString>&) { return true; };
    host.onIsCameraNameFileEnabled = [] { return true; };
    host.onIsLiveMode = [] { return true; };
    host.onGetDocumentMutex = [this] { return &mutex; };
    host.onGetPrefsDialog = [this] { return &prefsDialog; };
    host.onTranslate = [](const QString& text, const char*, int) { return text; };
    host.onGetPrefInt = [](const QString&, const QVariant& value) { return value.toInt(); };
    host.onGetPrefBool = [](const QString&, const QVariant& value) { return value.toBool(); };
    host.onGetPrefString = [](const QString&, const QVariant& value, int) { return value.toString(); };
    host.onGetRecordRateList = [](QList<unsigned long>& list) { list = {1000, 2000, 10000}; };
    host.onGetShutterSpeedList = [](int, QList<unsigned long>& list) { list = {1000, 2000, 5000}; };
    host.onGetResolutionList = [](QList<ResolutionEntry>& list) { list = {{1280, 1024}, {640, 480}}; };
    host.onListDevices = [this] { return QList<DeviceObject*>{&device}; };
    host.onKeyOfDocument = [](DOC_Interface*) { return kKey; };
    device.onGetHeads = [this](bool) { return QList<DOC_Interface*>{&camera}; };
    device.onIsFunctionSupported = [](int, bool) { return true; };
    camera.onGetDevice = [this] { return &device; };
    camera.onIsConnected = [] { return true; };
    camera.onFormatShutterSpeed = [](unsigned long value, int) {
        return QStringLiteral("1/%1 sec").arg(value);
    };
}
