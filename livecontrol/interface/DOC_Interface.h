#pragma once

#include "livecontrol/interface/types.h"

#include <QList>
#include <QString>

/// A document: one camera head, one camera device with several heads, or one file. The host owns it.
///
/// It is one object with several interfaces, whose bases stand in this order: `DOC_Interface`,
/// `DOC_Transfer`, `DOC_Lock`, `DOC_Playback`, `DOC_Geometry`, `DOC_Settings`, `DOC_Save`, `DOC_Display`,
/// `DOC_Members`. The host hands out this one; another one is reached by a cross cast. GUI thread only,
/// except where an operation says otherwise; any operation may throw an exception derived from
/// `std::exception`.
class DOC_Interface {
public:
    virtual ~DOC_Interface() = default;

    /// The head documents of a device, or the members of a group; empty for any other. Callers pass false
    /// for `flag`.
    virtual QList<DOC_Interface*> getHeads(bool flag) = 0;
    /// Says whether the document's camera is in use. Set to false before a camera document is closed.
    virtual void setConnected(bool connected) = 0;
    /// True if the camera of the document is connected.
    virtual bool isConnected() = 0;
    /// Marks the document as selected or not; nothing else follows.
    virtual void setSelected(bool selected) = 0;
    /// True if the document is selected.
    virtual bool isSelected() = 0;
    /// True if the document is one of several that are selected.
    virtual bool isSelectedMulti() = 0;
    /// True if its recording lies in the camera's memory, not in a file.
    virtual bool isRecordInMemory() = 0;
    /// First kind of a document that is a file by itself.
    virtual bool isStandaloneKindA() = 0;
    /// Second kind of a document that is a file by itself.
    virtual bool isStandaloneKindB() = 0;
    /// Third kind of a document that is a file by itself.
    virtual bool isStandaloneKindC() = 0;
    /// Path of its file; empty if it has none.
    virtual QString getFilePath() = 0;
    /// The name that the user reads, in window titles for instance.
    virtual QString getDisplayName() = 0;
    /// Base of the names of its saved files.
    virtual QString getBaseName() = 0;
    /// True if its file may be deleted.
    virtual bool canDeleteFile() = 0;
    /// Deletes its file.
    virtual void deleteFile() = 0;
    /// True for a camera of the mobile kind.
    virtual bool isMobile() = 0;
    /// Name of a partition of the camera's memory.
    virtual QString getPartitionName(PARTITIONNUMBER partition) = 0;
    /// Redraws the document's view. Callers pass 1 for `kind` and false for `wait`.
    virtual void repaint(int kind, bool wait) = 0;
    /// Name of its file without extension, by which what is saved beside it goes; empty for a camera.
    virtual QString getMediaName() = 0;
    /// True if its image is reduced. Callers pass 0 for `kind`.
    virtual bool hasImageScale(int kind) = 0;
    /// Display text of a shutter value, which stands in the unit of the preference "display/ShutterSpeed".
    /// Callers pass 0 for `reserved`.
    virtual QString formatShutterSpeed(unsigned long value, int reserved) = 0;
};
