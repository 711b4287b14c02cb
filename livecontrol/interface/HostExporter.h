#pragma once

#include <QString>

/// Saving and converting in the background.
///
/// Names that a composing run has handed out but not yet written are "pending": they count as taken. GUI
/// thread only; any operation may throw an exception derived from `std::exception`.
class HostExporter {
public:
    virtual ~HostExporter() = default;

    /// True while the automatic export runs.
    virtual bool isAutoExporting() = 0;
    /// True while a save job runs.
    virtual bool isBackgroundSaving() = 0;
    /// True while a conversion job runs.
    virtual bool isBackgroundConverting() = 0;
    /// Ends a composing run and forgets its pending names.
    virtual void endNaming() = 0;
    /// Begins a composing run for a group of documents that share a folder.
    virtual void beginGroupNaming() = 0;
    /// Begins a composing run for the files.
    virtual void beginFileNaming() = 0;
    /// Sets the group folder of the running job.
    virtual void setGroupDir(const QString& dir) = 0;
    /// Marks a folder as pending.
    virtual void addPendingFolder(const QString& folder) = 0;
    /// Marks a file path as pending.
    virtual void addPendingPath(const QString& path) = 0;
    /// True if the folder is pending.
    virtual bool isPendingFolder(const QString& folder) = 0;
    /// True if the file path is pending.
    virtual bool isPendingPath(const QString& path) = 0;
    /// The group folder of the running job; empty without one.
    virtual QString getGroupDir() = 0;
    /// The folder that takes the place of the one in the settings; empty without one.
    virtual QString getReplacementFolder() = 0;
    /// Copies the image to the clipboard. `mode` 2 copies the select area.
    virtual void copyToClipboard(int mode) = 0;
};
