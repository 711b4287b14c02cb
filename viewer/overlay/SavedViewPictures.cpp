#include "viewer/overlay/SavedViewPictures.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/UprightImage.h"
#include "viewer/overlay/LogoImage.h"

#include <QFileInfo>

InfoFacts SavedViewPictures::factsOf(const Shot& shot) {
    const Document& document = shot.document;
    InfoFacts facts = InfoFacts::of(document);
    facts.resolution = document.imageSize();
    if (shot.frame > 0 && facts.isRecorded()) {
        facts.position = qMin(shot.frame, facts.frames) - 1;
    }
    if (facts.mode == HOST_MODE_MEMORY && shot.partition > 0 && shot.partition != facts.partition) {
        const Recording other = document.head()->recording(shot.partition);
        facts.partition = shot.partition;
        facts.rate = other.settings.rate;
        facts.shutter = other.settings.liveShutter();
        facts.resolution = other.settings.resolution;
        facts.triggerMode = other.settings.triggerMode;
        facts.frames = other.frames;
        facts.position = qMin(facts.position, other.frames - 1);
    }
    facts.saved = shot.moment.isValid() ? shot.moment : facts.triggered;
    facts.clock = facts.saved.isValid() ? facts.saved.toSecsSinceEpoch() : 0;
    facts.zoom = 0; // of the window alone
    return facts;
}

SavedView SavedViewPictures::view(const Shot& shot) {
    const SavedViewSettings settings = SavedViewSettings::read(m_preferences, m_documents.displayFormat());
    const bool isFile = shot.document.kind() == Document::Kind::File;
    const QString& path = isFile ? shot.document.logoPath() : settings.logoPath;
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
