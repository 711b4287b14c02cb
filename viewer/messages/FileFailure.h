#pragma once

#include "livecontrol/interface/APP_Exception.h"
#include "viewer/cameras/Reason.h"

/// A failure about a file whose text has values: English in the log, the user's language in the box.
class FileFailure : public DOC_FileException {
public:
    /// The words name the path themselves.
    FileFailure(const Reason& words, const QString& path)
        : DOC_FileException(words.english(), path, 0), m_words(words) {}

    const Reason& words() const { return m_words; }

private:
    Reason m_words;
};
