#include "tests/smallhost/SmallHost.h"

#include "livecontrol/interface/GUI_WebView.h"
#include "livecontrol/interface/JS_Mediator.h"
#include "pagelib/PageResources.h"

SmallCamera::SmallCamera(CallRecorder& recorder, DOCKEY documentKey, const QString& cameraName,
                         const QString& ipAddress)
    : FakeCamera(recorder), key(documentKey), name(cameraName), address(ipAddress), device(recorder) {
    onIsConnected = [] { return true; };
    onIsSelected = [this] { return isChosen; };
    onGetDevice = [this] { return &device; };
    onFormatShutterSpeed = [](unsigned long value, int) { return QStringLiteral("1/%1 s").arg(value); };
    onGetCameraName = [this](bool) { return name; };
    onGetDeviceName = [](bool) { return QStringLiteral("Small"); };
    onGetIPAddress = [this](bool) { return address; };
    device.onGetHeads = [this](bool) { return QList<DOC_Interface*>{this}; };
    device.onIsConnected = onIsConnected;
    device.onIsSelected = onIsSelected;
    device.onGetCameraName = onGetCameraName;
    device.onGetIPAddress = onGetIPAddress;
}

SmallHost::SmallHost(const QString& module) : m_module(module) {
    pages::registerResources();
    cameras.push_back(
        std::make_unique<SmallCamera>(calls, 1, QStringLiteral("Left"), QStringLiteral("10.0.0.1")));
    cameras.push_back(
        std::make_unique<SmallCamera>(calls, 2, QStringLiteral("Right"), QStringLiteral("10.0.0.2")));
    cameras.front()->isChosen = true;
    m_current = cameras.front()->key;
    answerDocuments();
    answerSettings();
    answerProgram();
    panel.connect(&panel, &SmallPanel::opened, &panel, [this] { update(); });
}

SmallCamera* SmallHost::find(DOCKEY key) {
    for (const auto& camera : cameras) {
        if (camera->key == key) {
            return camera.get();
        }
    }
    return nullptr;
}

SmallCamera& SmallHost::current() { return *find(m_current); }

void SmallHost::open() {
    const auto make = reinterpret_cast<PLG_Interface* (*)()>(m_module.resolve("makeHTMLPlugin"));
    if (!make) {
        throw std::runtime_error(m_module.errorString().toStdString());
    }
    m_plugin.reset(make());
    m_plugin->init(this);
    panel.open(m_plugin.get());
}

void SmallHost::close() {
    panel.close();
    m_plugin.reset();
}

void SmallHost::unload() {
    m_plugin.reset();
    m_module.unload();
}

void SmallHost::answerDocuments() {
    onCurrentDocument = [this] { return find(m_current); };
    onDocByKey = [this](DOCKEY key, bool) { return find(key); };
    onFindDocument = [this](DOCKEY key) { return find(key); };
    onGetCurrentKey = [this] { return m_current; };
    onGetAllKeys = [this](bool) {
        QList<DOCKEY> keys;
        for (const auto& camera : cameras) {
            keys << camera->key;
        }
        return keys;
    };
    onGetSelectedKeys = [this](bool) {
        QList<DOCKEY> keys = onGetAllKeys(true);
        keys.erase(
            std::remove_if(keys.begin(), keys.end(), [this](DOCKEY key) { return !find(key)->isChosen; }),
            keys.end());
        return keys;
    };
    onKeyOfDocument = [this](DOC_Interface* document) {
        for (const auto& camera : cameras) {
            if (static_cast<DOC_Interface*>(camera.get()) == document) {
                return camera->key;
            }
        }
        return kInvalidDockey;
    };
    onListDevices = [this] {
        QList<DeviceObject*> devices;
        for (const auto& camera : cameras) {
            devices << &camera->device;
        }
        return devices;
    };
    onSetSelection = [this](const QList<DOCKEY>& keys, bool) {
        for (const auto& camera : cameras) {
            camera->isChosen = keys.contains(camera->key);
        }
        if (!keys.isEmpty() && !keys.contains(m_current)) {
            m_current = keys.first();
        }
    };
    onSetCurrentKey = [this](DOCKEY key, bool) { m_current = find(key) ? key : m_current; };
    onGetDocumentMutex = [this] { return &m_mutex; };
    onAddCamera = [this](const QString& name, const QString& address, bool, bool) {
        added << name + QLatin1Char(' ') + address;
    };
}

void SmallHost::answerSettings() {
    onGetRecordRateList = [](QList<unsigned long>& list) { list = {1000, 2000}; };
    onGetRecordRate = [this] { return current().rate; };
    onGetShutterSpeedList = [](int, QList<unsigned long>& list) { list = {1000, 2000, 10000}; };
    onGetShutterSpeed = [this](int) { return current().shutter; };
    onSetShutterSpeed = [this](unsigned long value, bool) {
        for (const auto& camera : cameras) {
            camera->shutter = camera->isChosen ? value : camera->shutter;
        }
    };
    onGetResolutionList = [](QList<ResolutionEntry>& list) { list = {{1280, 1024}}; };
    onGetResolution = [](unsigned& width, unsigned& height) {
        width = 1280;
        height = 1024;
    };
}

void SmallHost::answerProgram() {
    onIsLiveMode = [] { return true; };
    onGetMode = [] { return HOST_MODE_LIVE; };
    onCountWindows = [](bool, int) { return 1; };
    onFindPlugin = [this](const QString& name) {
        return name == QLatin1String("livecontrol") ? m_plugin.get() : nullptr;
    };
    onAddMediator = [this](JS_Mediator* mediator) { SmallPanel::attach(&panel, mediator); };
    onAttachMediator = [this](GUI_WebView* view, JS_Mediator* mediator) {
        SmallPanel::attach(view, mediator);
        m_dialogs << mediator;
    };
    onHandleError = [this](std::exception& error) { failures << QString::fromUtf8(error.what()); };
    onTranslate = [](const QString& text, const char*, int) { return text; };
    onGetDialogParent = [this] { return &panel; };
    onGetMainWindow = onGetDialogParent;
    onGetPref = [this](const QString& key, const QVariant& otherwise) {
        return m_preferences.value(key, otherwise);
    };
    onGetPrefInt = [this](const QString& key, const QVariant& value) {
        return onGetPref(key, value).toInt();
    };
    onGetPrefBool = [this](const QString& key, const QVariant& value) {
        return onGetPref(key, value).toBool();
    };
    onGetPrefString = [this](const QString& key, const QVariant& value, int) {
        return onGetPref(key, value).toString();
    };
    onSetPref = [this](const QString& key, const QVariant& value) { m_preferences[key] = value; };
    onSetPrefBool = onSetPref;
    onSetPrefInt = onSetPref;
    onSetPrefString = onSetPref;
    onUpdateAll = [this](int, bool) { update(); };
    onDeterUpdateUI = [this](bool deter) {
        m_deterred += deter ? 1 : -1;
        if (m_deterred == 0 && m_isUpdateDue) {
            update();
        }
    };
}

void SmallHost::update() {
    m_isUpdateDue = m_deterred > 0;
    if (!m_isUpdateDue && m_plugin) {
        m_plugin->update();
        for (const QPointer<QObject>& mediator : QList<QPointer<QObject>>(m_dialogs)) {
            if (mediator) {
                QMetaObject::invokeMethod(mediator, "update");
            }
        }
    }
}
