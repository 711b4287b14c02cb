#include "viewer/app/panes/SelectedValues.h"

#include "viewer/cameras/CameraHead.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/messages/Translated.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

bool isExposedByItself(const HeadSettings& settings) {
    return settings.exposure.on && !settings.lowLight.on && settings.dualSlope == 0;
}

// What is compared is what the box would show.
struct Compared {
    const char* key;
    bool (*isSame)(const HeadSettings& a, const HeadSettings& b);
    QString (*text)(const HeadSettings& settings, const DisplayFormat& format);
};

const Compared kCompared[] = {
    {"rate", [](const HeadSettings& a, const HeadSettings& b) { return a.rate == b.rate; },
     [](const HeadSettings& settings, const DisplayFormat& format) {
         return QStringLiteral("%1 %2").arg(format.rate(settings.rate), translated("fps"));
     }},
    {"shutter",
     [](const HeadSettings& a, const HeadSettings& b) {
         const bool byItself = isExposedByItself(a);
         return byItself == isExposedByItself(b) && (byItself || a.liveShutter() == b.liveShutter());
     },
     [](const HeadSettings& settings, const DisplayFormat& format) {
         return isExposedByItself(settings) ? translated("Auto Exposure")
                                            : translated(format.shutter.ofCamera(settings.liveShutter()));
     }},
    {"resolution", [](const HeadSettings& a, const HeadSettings& b) { return a.resolution == b.resolution; },
     [](const HeadSettings& settings, const DisplayFormat&) {
         return QStringLiteral("%1 x %2").arg(settings.resolution.width()).arg(settings.resolution.height());
     }},
};

} // namespace

QString SelectedValues::differing() const {
    QJsonObject result;
    const QList<CameraDocument*> cameras = m_documents.targetCameras();
    for (const Compared& compared : kCompared) {
        const auto isOther = [&](const CameraDocument* camera) {
            return !compared.isSame(camera->head()->settings(), cameras.first()->head()->settings());
        };
        if (std::none_of(cameras.cbegin(), cameras.cend(), isOther)) {
            continue;
        }
        QJsonArray rows;
        for (const CameraDocument* const camera : cameras) {
            rows.append(QJsonObject{{QStringLiteral("camera"), camera->title()},
                                    {QStringLiteral("text"), compared.text(camera->head()->settings(),
                                                                           m_documents.displayFormat())}});
        }
        result.insert(QLatin1String(compared.key), rows);
    }
    return QString::fromUtf8(QJsonDocument(result).toJson(QJsonDocument::Compact));
}

QString SelectedValues::currentKey() const {
    const Document* const current = m_documents.current();
    return current && m_documents.selectedCameras().size() > 1 ? QString::number(current->key()) : QString();
}
