#pragma once

#include <QString>

/// What a dialog of saving or opening is for. The widget that holds its page tells by its name.
enum class DialogKind { Export, Convert, Open, Report, Snapshot, Layout };

/// By the name of the widget that holds the page; any other name is an export.
DialogKind dialogKind(const QString& parentWidgetName);

/// The number by which the naming and the host know what is saved.
int saveTypeOf(DialogKind kind);

/// The number by which a document knows what a picture of it is for.
int thumbnailKindOf(DialogKind kind);
