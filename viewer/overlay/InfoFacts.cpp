#include "viewer/overlay/InfoFacts.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"

namespace {

void addRecording(const FileDocument& document, InfoFacts& facts) {
    const RecordingInfo& info = document.source()->info();
    facts.mode = HOST_MODE_FILE;
    facts.cameraName = info.camera;
    facts.deviceName = info.device;
    facts.path = document.path();
    facts.head = info.head;
    facts.partition = info.partition;
    facts.rate = info.rate;
    facts.shutter = info.shutter;
    facts.resolution = info.size;
    facts.triggerMode = info.triggerMode;
    facts.ended = info.ended;
    const RecordedShot* const shot = RecordedShot::of(info.shots, document.playPosition());
    facts.triggered = shot ? shot->triggered : info.triggered;
    facts.timeCode = info.timeCode;
}

void addCamera(const Document& document, const CameraHead& head, InfoFacts& facts) {
    const CameraBody& body = *head.body();
    const Recording& recording = head.recording();
    const bool replay = document.list().mode() == HOST_MODE_MEMORY;
    const HeadSettings& settings = replay && !recording.isEmpty() ? recording.settings : head.settings();
    facts.mode = replay ? HOST_MODE_MEMORY : HOST_MODE_LIVE;
    facts.cameraName = document.list().areNamesAddresses() ? body.address() : body.name();
    facts.headName = head.name();
    facts.deviceName = head.model().title;
    facts.head = head.index() + 1;
    facts.partition = body.partition();
    facts.rate = settings.rate;
    facts.shutter = settings.liveShutter();
    facts.resolution = settings.resolution;
    facts.triggerMode = settings.triggerMode;
    if (!replay) {
        facts.frames = head.totalFrames();
    } else if (const auto* const camera = dynamic_cast<const CameraDocument*>(&document)) {
        facts.ended = camera->recordingEnd();
        facts.triggered = facts.ended.addMSecs(-(recording.triggerToEnd(document.playPosition()) / 1000000));
    }
}

} // namespace

InfoFacts InfoFacts::of(const Document& document) {
    InfoFacts facts;
    if (document.kind() == Document::Kind::File) {
        addRecording(static_cast<const FileDocument&>(document), facts);
    } else if (document.head()) {
        addCamera(document, *document.head(), facts);
    }
    if (facts.mode != HOST_MODE_LIVE && document.recordedFrames() > 0) {
        facts.frames = document.recordedFrames();
        facts.position = document.playPosition();
        facts.triggerIndex = document.triggerIndex();
        facts.marks = document.marks();
    }
    const ViewState& view = document.view();
    facts.tones = view.tones;
    facts.zoom = qRound(view.zoom / qMax(1, view.reduction()) * 100);
    facts.comment = document.comment();
    facts.items = document.customItems().items();
    facts.logoPath = document.logoPath();
    return facts;
}

void InfoFacts::goTo(int frame) {
    position = frame;
    if (const RecordedShot* const shot = RecordedShot::of(shots, frame)) {
        triggerIndex = shot->triggerIndex;
        triggered = shot->triggered;
    }
}

bool InfoFacts::operator==(const InfoFacts& other) const {
    return mode == other.mode && cameraName == other.cameraName && headName == other.headName &&
           deviceName == other.deviceName && path == other.path && head == other.head &&
           partition == other.partition && rate == other.rate && shutter == other.shutter &&
           resolution == other.resolution && triggerMode == other.triggerMode && frames == other.frames &&
           position == other.position && triggerIndex == other.triggerIndex && triggered == other.triggered &&
           ended == other.ended && clock == other.clock && saved == other.saved && zoom == other.zoom &&
           tones == other.tones && comment == other.comment && items == other.items &&
           logoPath == other.logoPath && marks == other.marks && shots == other.shots;
}
