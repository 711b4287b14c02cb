#include "viewer/host/doors/ApplicationPreferencesDoor.h"

#include "viewer/host/parts/cameras/CameraFinder.h"

#include <QFileInfo>

QString ApplicationPreferencesDoor::getPrefString(const QString& name, const QVariant& defaultValue,
                                                  int variant) {
    OPERATION(name, defaultValue, variant);
    const QString value = m_preferences.value(name, defaultValue).toString();
    // What is offered for a new camera must not be one that the list has.
    return name == QLatin1String("cameraconnection/AddIPDefault")
               ? CameraFinder(m_documents).freeAddress(value)
               : value;
}

bool ApplicationPreferencesDoor::isCameraNameFileEnabled() {
    OPERATION();
    return QFileInfo::exists(
        m_preferences.value(QStringLiteral("usercustom/cameraNameFilePath"), QString()).toString());
}
