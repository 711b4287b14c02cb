#include "viewer/app/jobs/ReportMaker.h"

#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/UprightImage.h"
#include "viewer/messages/Translated.h"
#include "viewer/overlay/InfoText.h"
#include "viewer/overlay/OverlaySettings.h"
#include "viewer/overlay/SavedViewPictures.h"

namespace {

constexpr int kMostPictures = 12; // of frames that nobody has asked for
constexpr int kMostEvery = 500;   // of those that stand in equal steps

QVector<int> keyFrames(const RecordingInfo& info, int every) {
    // A trigger at the end stands behind the last frame.
    const int last = info.frames - 1;
    QVector<int> frames{0, qBound(0, info.triggerIndex, last), last};
    for (const RecordedShot& shot : info.shots) {
        frames.append(qBound(0, shot.triggerIndex, last));
    }
    std::copy_if(info.marks.begin(), info.marks.end(), std::back_inserter(frames),
                 [last](int mark) { return mark <= last; });
    std::sort(frames.begin(), frames.end());
    frames.erase(std::unique(frames.begin(), frames.end()), frames.end());
    frames.resize(qMin(frames.size(), kMostPictures));
    for (int frame = 0; every > 1 && frame <= last && frame / every < kMostEvery; frame += every) {
        frames.append(frame);
    }
    std::sort(frames.begin(), frames.end());
    frames.erase(std::unique(frames.begin(), frames.end()), frames.end());
    return frames;
}

Report::Section section(const ReportMaker::Subject& subject, const FrameSkip& skip) {
    Document& document = *subject.document;
    const auto* const file = dynamic_cast<const FileDocument*>(&document);
    const RecordingInfo info = file ? file->info() : subject.source->info();
    const InfoFacts facts = SavedViewPictures::factsOf({document, subject.partition, 0, QDateTime()});
    Report::Section section;
    section.title = document.title();
    for (const char* const key : {"Camera name", "Device", "RecDateTime", "FrameRate", "ShutterSpeed",
                                  "Resolution", "MaxFrames", "Length", "Trigger"}) {
        const QString item = QLatin1String(key);
        const QString value =
            InfoText::value(item, facts, OverlaySettings(), document.list().displayFormat());
        if (!value.isEmpty()) {
            section.facts.append({InfoText::label(item), value});
        }
    }
    for (const CustomItem& item : document.customItems().items()) {
        section.facts.append({item.name, (item.value + QLatin1Char(' ') + item.unit).trimmed()});
    }
    section.comment = document.comment();
    for (const int index : keyFrames(info, skip.step(info.rate))) {
        const RecordedShot* const shot = RecordedShot::of(info.shots, index);
        const int offset = index - (shot ? shot->triggerIndex : info.triggerIndex);
        section.pictures.append(
            {translated("Frame %1 (T%2%3)")
                 .arg(index + 1)
                 .arg(offset < 0 ? QChar(0x2212) : QLatin1Char('+'))
                 .arg(qAbs(offset)),
             UprightImage::turned(subject.source->frame(index).displayImage(), document.view())});
    }
    return section;
}

} // namespace

Report ReportMaker::make(const QList<Subject>& subjects, const QString& title, const FrameSkip& skip) {
    Report report;
    report.title = title;
    for (const Subject& subject : subjects) {
        report.sections.append(section(subject, skip));
    }
    return report;
}
