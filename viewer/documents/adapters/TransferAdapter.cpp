#include "viewer/documents/adapters/DocumentAdapter.h"

namespace {
constexpr char kInterface[] = "DOC_Transfer";
}

void TransferAdapter::prepareShutdown(bool stopTransfer, bool closeView, bool wait) {
    OPERATION(stopTransfer, closeView, wait);
    document().setPlaying(false);
    emit document().imageChanged(&document());
}

void TransferAdapter::restartTransfer(bool wait) {
    OPERATION(wait);
    emit document().imageChanged(&document());
}

void TransferAdapter::beginViewSelection() {
    OPERATION();
    document().holdReduction(true);
}

bool TransferAdapter::isSuspendReduce() {
    OPERATION();
    return document().isReductionSuspended();
}

void TransferAdapter::endViewSelection() {
    OPERATION();
    document().holdReduction(false);
}
