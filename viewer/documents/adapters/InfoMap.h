#pragma once

#include <QVariantMap>

class Document;

/// All that lists of what can be saved show of a document, as texts, and of each of its partitions under
/// "partitions". In live mode a partition has the frames that a recording would fill it with.
QVariantMap infoMap(const Document& document);
