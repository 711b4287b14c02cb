#include "viewer/recordings/RecordingError.h"

#include <QFileInfo>

#include <cerrno>
#include <cstring>

namespace {

// What the system says is in its language. So what happens to a user has words here.
Reason systemReason(int error) {
    switch (error) {
    case ENOSPC:
    case EDQUOT:
        return reason("The disk is full.");
    case EFBIG:
        return reason("The file would grow larger than is allowed there.");
    case ENAMETOOLONG:
        return reason("The name is too long.");
    case EROFS:
        return reason("Nothing can be written there.");
    case EEXIST:
        return reason("There is a file of that name already.");
    default:
        return QString::fromLocal8Bit(strerror(error));
    }
}

} // namespace

RecordingError::RecordingError(While what, const QString& path, const Reason& why)
    : std::runtime_error(QStringLiteral("%1: %2").arg(path, why.english()).toStdString()), m_while(what),
      m_path(path), m_why(why) {}

RecordingError RecordingError::unreadable(const QString& path, int error) {
    const QFileInfo info(path);
    const Reason why = info.isDir()         ? reason("It is a folder.")
                       : !info.exists()     ? reason("The file does not exist.")
                       : !info.isReadable() ? reason("There is no permission to read it.")
                                            : systemReason(error);
    return {While::Reading, path, why};
}

RecordingError RecordingError::unwritable(const QString& path, int error) {
    const QFileInfo info(path);
    const QFileInfo folder(info.absolutePath());
    const bool forbidden = error == EACCES || error == EPERM;
    const Reason why = info.isDir()      ? reason("It is a folder.")
                       : !folder.isDir() ? reason("The folder does not exist.")
                       : forbidden       ? reason("There is no permission to write there.")
                                         : systemReason(error);
    return {While::Writing, path, why};
}
