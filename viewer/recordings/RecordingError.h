#pragma once

#include "viewer/cameras/Reason.h"

#include <stdexcept>

/// A file of a recording that can't be read or written: which, and why.
class RecordingError : public std::runtime_error {
public:
    enum class While { Reading, Writing };

    RecordingError(While what, const QString& path, const Reason& why);

    bool isReading() const { return m_while == While::Reading; }
    const QString& path() const { return m_path; }
    const Reason& why() const { return m_why; }

    /// Why a file can't be opened for reading, after the system refused with that number.
    static RecordingError unreadable(const QString& path, int error);
    /// Why it can't be written.
    static RecordingError unwritable(const QString& path, int error);

private:
    While m_while;
    QString m_path;
    Reason m_why;
};
