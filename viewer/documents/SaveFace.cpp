#include "viewer/documents/DocumentFace.h"

#include <QDateTime>

namespace {
constexpr char kInterface[] = "DOC_Save";
}

void SaveFace::setSavePartition(PARTITIONNUMBER partition) { OPERATION(partition); }

void SaveFace::resetSaveFlags() { OPERATION(); }

QSize SaveFace::getImageSize(int saveType, PARTITIONNUMBER partition, int kind) {
    OPERATION(saveType, partition, kind);
    const QSize size = document().imageSize();
    return document().view().isSwapped() ? size.transposed() : size;
}

void SaveFace::setSaveInfo(bool on) { OPERATION(on); }

void SaveFace::setSaveCorrect(bool on) { OPERATION(on); }

void SaveFace::setSaveScale(bool on) { OPERATION(on); }

void SaveFace::refreshCameraSettings(bool force) {
    OPERATION(force);
    emit document().imageChanged(&document());
}

QString SaveFace::composeSaveSuffix(int saveType, PARTITIONNUMBER partition, int session, bool& used,
                                    const QDateTime& dateTime) {
    OPERATION(saveType, partition, session, dateTime);
    used = false;
    return QString();
}

int SaveFace::getCameraCount() {
    OPERATION();
    return list().devices().size();
}
