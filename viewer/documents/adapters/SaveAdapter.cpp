#include "viewer/documents/adapters/DocumentAdapter.h"

#include <QDateTime>

namespace {
constexpr char kInterface[] = "DOC_Save";
}

void SaveAdapter::setSavePartition(PARTITIONNUMBER partition) { OPERATION(partition); }

void SaveAdapter::resetSaveFlags() { OPERATION(); }

QSize SaveAdapter::getImageSize(int saveType, PARTITIONNUMBER partition, int kind) {
    OPERATION(saveType, partition, kind);
    const QSize size = document().imageSize();
    return document().view().isSwapped() ? size.transposed() : size;
}

void SaveAdapter::setSaveInfo(bool on) { OPERATION(on); }

void SaveAdapter::setSaveCorrect(bool on) { OPERATION(on); }

void SaveAdapter::setSaveScale(bool on) { OPERATION(on); }

void SaveAdapter::refreshCameraSettings(bool force) {
    OPERATION(force);
    emit document().imageChanged(&document());
}

QString SaveAdapter::composeSaveSuffix(int saveType, PARTITIONNUMBER partition, int session, bool& used,
                                       const QDateTime& dateTime) {
    OPERATION(saveType, partition, session, dateTime);
    used = false;
    return QString();
}

int SaveAdapter::getCameraCount() {
    OPERATION();
    return list().devices().size();
}
