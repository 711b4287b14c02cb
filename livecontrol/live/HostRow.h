#pragma once

#include <QDebug>
#include <QList>

/// Row `index` of a list that was just fetched; null, and a line in the log, if the list has no such row. A
/// page sends the number of a row of the list that it was shown, and the host's list may have changed since.
template <class Row>
const Row* rowOf(const QList<Row>& list, qint64 index, const char* what) {
    if (index >= 0 && index < list.size()) {
        return &list.at(static_cast<int>(index));
    }
    qInfo().nospace() << what << ": no row " << index << " in a list of " << list.size();
    return nullptr;
}
