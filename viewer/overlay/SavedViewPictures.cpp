#include "viewer/overlay/SavedViewPictures.h"

#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/UprightImage.h"
#include "viewer/overlay/LogoImage.h"
#include "viewer/prefs/Preferences.h"

#include <QFileInfo>

namespace {

void turnTo(int partition, const CameraDocument& camera, InfoFacts& facts) {
    const Recording other = camera.head()->recording(partition);
    facts.partition = partition;
    facts.rate = other.settings.rate;
    facts.shutter = other.settings.liveShutter();
    facts.resolution = other.settings.resolution;
    facts.triggerMode = other.settings.triggerMode;
    facts.ended = camera.recordingEnd(partition);
    facts.triggered = camera.triggered(partition, 0);
    facts.triggerIndex = other.triggerIndex();
    facts.marks = camera.marks(partition);
    facts.frames = other.frames;
    facts.position = other.isEmpty() ? -1 : qMax(0, facts.position);
}

} // namespace

InfoFacts SavedViewPictures::factsOf(const Shot& shot) {
    const Document& document = shot.document;
    InfoFacts facts = InfoFacts::of(document);
    facts.resolution = document.imageSize();
    const auto* const camera = dynamic_cast<const CameraDocument*>(&document);
    if (facts.mode == HOST_MODE_MEMORY && camera) {
        if (shot.partition > 0 && int(shot.partition) != facts.partition) {
            turnTo(int(shot.partition), *camera, facts);
        }
        facts.shots = camera->shots(facts.partition);
    } else if (const auto* const file = dynamic_cast<const FileDocument*>(&document)) {
        facts.shots = file->source()->info().shots;
    }
    if (facts.isRecorded()) {
        facts.goTo(qBound(0, shot.frame > 0 ? shot.frame - 1 : facts.position, facts.frames - 1));
    }
    facts.saved = shot.moment.isValid() ? shot.moment : facts.triggered;
    facts.clock = facts.saved.isValid() ? facts.saved.toSecsSinceEpoch() : 0;
    facts.zoom = 0; // of the window alone
    return facts;
}

SavedView SavedViewPictures::view(const Shot& shot) {
    const SavedViewSettings settings = SavedViewSettings::read(m_preferences, m_documents.displayFormat());
    // Without one of its own it has that of the live image, from a camera's memory as from a file.
    const bool isFile = shot.document.kind() == Document::Kind::File;
    const QString live =
        isFile ? shot.document.logoPath() : m_preferences.value(QStringLiteral("info/LogoPath")).toString();
    const QString& path = settings.logoPath.isEmpty() ? live : settings.logoPath;
    return SavedView(settings, settings.isShown("Logo") ? logoOf(path) : QImage());
}

/// A logo that is looked at in each preview is read once for each change of its file.
QImage SavedViewPictures::logoOf(const QString& path) {
    const QDateTime time = path.isEmpty() ? QDateTime() : QFileInfo(path).lastModified();
    if (path != m_logoPath || time != m_logoTime) {
        m_logoPath = path;
        m_logoTime = time;
        m_logo = path.isEmpty() ? QImage() : LogoImage::read(path);
    }
    return m_logo;
}

QSize SavedViewPictures::size(const Shot& shot) {
    const QSize picture = UprightImage::size(shot.document, shot.partition);
    return picture.isEmpty() ? picture : view(shot).size(picture, factsOf(shot));
}

QImage SavedViewPictures::image(const Shot& shot, const QSize& limit) {
    const QSize picture = UprightImage::size(shot.document, shot.partition);
    return view(shot).fitted(picture, factsOf(shot), limit, [&shot](const QSize& size) {
        return UprightImage::fitted(shot.document, size, shot.partition, shot.frame);
    });
}
