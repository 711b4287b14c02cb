#pragma once

#include <QString>

/// What goes on in the background, for those who name or save more.
class BackgroundSaving {
public:
    virtual ~BackgroundSaving() = default;

    /// Recordings are taken out of the cameras' memories, or saved after that without a question.
    virtual bool isExportingUnasked() const = 0;
    /// Files are written out of cameras' memories, which may not change until then. What is written of a
    /// recording that is on the disk goes on beside all else.
    virtual bool isSaving() const = 0;
    virtual bool isConverting() const = 0;
    /// Something writes to that path, without suffix, or waits to.
    virtual bool isReserved(const QString& path) const = 0;
};
