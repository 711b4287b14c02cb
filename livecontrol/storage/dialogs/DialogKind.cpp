#include "livecontrol/storage/dialogs/DialogKind.h"

DialogKind dialogKind(const QString& parentWidgetName) {
    struct Name {
        const char* widget;
        DialogKind kind;
    };
    static constexpr Name s_names[] = {
        {"batchconverter", DialogKind::Convert},  {"convertparametereditdialog", DialogKind::Convert},
        {"fileopendialog", DialogKind::Open},     {"reportExportDialog", DialogKind::Report},
        {"snapshotdialog", DialogKind::Snapshot}, {"layoutsavedialog", DialogKind::Layout},
    };
    for (const Name& name : s_names) {
        if (parentWidgetName == QLatin1String(name.widget)) {
            return name.kind;
        }
    }
    return DialogKind::Export;
}

int saveTypeOf(DialogKind kind) {
    switch (kind) {
    case DialogKind::Convert:
        return 6;
    case DialogKind::Report:
        return 16;
    case DialogKind::Snapshot:
        return 7;
    case DialogKind::Layout:
        return 4;
    case DialogKind::Open:
    case DialogKind::Export:
        break;
    }
    return 1;
}

int thumbnailKindOf(DialogKind kind) {
    switch (kind) {
    case DialogKind::Convert:
        return 11;
    case DialogKind::Open:
        return 9;
    case DialogKind::Report:
        return 17;
    case DialogKind::Layout:
        return 18;
    case DialogKind::Snapshot:
    case DialogKind::Export:
        break;
    }
    return 10;
}
