#pragma once

#include <QList>

class CameraBody;
class FileDocument;

/// Asks the user before frames go that are in no file.
class LossGuard {
public:
    virtual ~LossGuard() = default;

    enum class Memory { All, Partition }; // of the cameras: all of it, or what the next ring replaces

    /// True if these cameras hold nothing that would be lost, or the user agrees.
    virtual bool mayLose(const QList<CameraBody*>& bodies, Memory memory) = 0;
    /// The same of a document that is about to be closed; its frames in the spool are gone after a yes.
    virtual bool mayClose(FileDocument& document) = 0;
};
