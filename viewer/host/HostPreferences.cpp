// The preferences of HostApplication.

#include "viewer/host/Shell.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/host/parts/CameraFinder.h"
#include "viewer/prefs/Preferences.h"

#include <QFileInfo>

namespace {
constexpr char kInterface[] = "HostApplication";
}

QVariant ViewerHost::getPrefDefault(const QString& key) {
    OPERATION(key);
    return m_preferences.factoryDefault(key);
}

void ViewerHost::removePref(const QString& key) {
    OPERATION(key);
    m_preferences.remove(key);
}

QString ViewerHost::getInfoItemLabel(const QString& key) {
    OPERATION(key);
    return m_shell.translate(key, nullptr, 0);
}

QString ViewerHost::getDefaultInfoDisplay() {
    OPERATION();
    return m_preferences.factoryDefault(QStringLiteral("info/display")).toString();
}

QVariant ViewerHost::getPref(const QString& name, const QVariant& defaultValue) {
    OPERATION(name, defaultValue);
    return m_preferences.value(name, defaultValue);
}

int ViewerHost::getPrefInt(const QString& name, const QVariant& defaultValue) {
    OPERATION(name, defaultValue);
    return m_preferences.value(name, defaultValue).toInt();
}

bool ViewerHost::getPrefBool(const QString& name, const QVariant& defaultValue) {
    OPERATION(name, defaultValue);
    return m_preferences.value(name, defaultValue).toBool();
}

float ViewerHost::getPrefFloat(const QString& name, const QVariant& defaultValue) {
    OPERATION(name, defaultValue);
    return m_preferences.value(name, defaultValue).toFloat();
}

QString ViewerHost::getPrefString(const QString& name, const QVariant& defaultValue, int variant) {
    OPERATION(name, defaultValue, variant);
    const QString value = m_preferences.value(name, defaultValue).toString();
    // What is offered for a new camera must not be one that the list has.
    return name == QLatin1String("cameraconnection/AddIPDefault")
               ? CameraFinder(m_documents).freeAddress(value)
               : value;
}

void ViewerHost::setPref(const QString& name, const QVariant& value) {
    OPERATION(name, value);
    m_preferences.setValue(name, value);
}

void ViewerHost::setPrefInt(const QString& name, int value) {
    OPERATION(name, value);
    m_preferences.setValue(name, value);
}

void ViewerHost::setPrefBool(const QString& name, bool value) {
    OPERATION(name, value);
    m_preferences.setValue(name, value);
}

void ViewerHost::setPrefFloat(const QString& name, float value) {
    OPERATION(name, value);
    m_preferences.setValue(name, value);
}

void ViewerHost::setPrefString(const QString& name, const QString& value) {
    OPERATION(name, value);
    m_preferences.setValue(name, value);
}

bool ViewerHost::isCameraNameFileEnabled() {
    OPERATION();
    return QFileInfo::exists(
        m_preferences.value(QStringLiteral("usercustom/cameraNameFilePath"), QString()).toString());
}

TimeCodeSetting ViewerHost::getTimeCodeSetting() {
    OPERATION();
    return m_timeCode;
}

void ViewerHost::setTimeCodeSetting(const TimeCodeSetting& setting) {
    OPERATION();
    m_timeCode = setting;
}
