#include "viewer/documents/SavedPictures.h"
#include "viewer/documents/UprightImage.h"
#include "viewer/documents/adapters/DocumentAdapter.h"

#include <QDateTime>

namespace {
constexpr char kInterface[] = "DOC_Save";
}

template <class Member, class Value>
void SaveAdapter::set(Member member, const Value& value) {
    SaveState state = document().saveState();
    state.*member = value;
    document().setSaveState(state);
}

void SaveAdapter::setSavePartition(PARTITIONNUMBER partition) {
    OPERATION(partition);
    set(&SaveState::partition, partition);
}

void SaveAdapter::resetSaveFlags() {
    OPERATION();
    document().setSaveState({document().saveState().partition, false, false, false});
}

/// Kind 0 is all that is saved, with the information round the picture, whatever the type; any other kind is
/// the picture alone.
QSize SaveAdapter::getImageSize(int saveType, PARTITIONNUMBER partition, int kind) {
    OPERATION(saveType, partition, kind);
    constexpr int kWhole = 0;
    SavedPictures* const saved = list().savedPictures();
    return saved && kind == kWhole ? saved->size({document(), partition, 0, QDateTime::currentDateTime()})
                                   : UprightImage::size(document(), partition);
}

void SaveAdapter::setSaveInfo(bool on) {
    OPERATION(on);
    set(&SaveState::withInfo, on);
}

void SaveAdapter::setSaveCorrect(bool on) {
    OPERATION(on);
    set(&SaveState::corrected, on);
}

void SaveAdapter::setSaveScale(bool on) {
    OPERATION(on);
    set(&SaveState::scaled, on);
}

void SaveAdapter::refreshCameraSettings(bool force) {
    OPERATION(force);
    emit document().imageChanged(&document());
}

QString SaveAdapter::composeSaveSuffix(int saveType, PARTITIONNUMBER partition, int session, bool& used,
                                       const QDateTime& dateTime) {
    OPERATION(saveType, partition, session, dateTime);
    return list().saveSuffix(document(), saveType, session, used);
}

int SaveAdapter::getCameraCount() {
    OPERATION();
    return list().devices().size();
}
