#include "viewer/documents/DocumentFace.h"

namespace {
constexpr char kInterface[] = "DOC_Transfer";
}

void TransferFace::prepareShutdown(bool stopTransfer, bool closeView, bool wait) {
    OPERATION(stopTransfer, closeView, wait);
    document().setPlaying(false);
    emit document().imageChanged(&document());
}

void TransferFace::restartTransfer(bool wait) {
    OPERATION(wait);
    emit document().imageChanged(&document());
}

void TransferFace::beginViewSelection() {
    OPERATION();
    document().holdReduction(true);
}

bool TransferFace::isSuspendReduce() {
    OPERATION();
    return document().isReductionSuspended();
}

void TransferFace::endViewSelection() {
    OPERATION();
    document().holdReduction(false);
}
