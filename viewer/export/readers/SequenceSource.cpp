#include "viewer/export/readers/SequenceSource.h"

#include "viewer/export/PictureNote.h"
#include "viewer/export/Pixels.h"
#include "viewer/export/readers/TiffSource.h"
#include "viewer/recordings/RecordingError.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QRegularExpression>

namespace {

constexpr int kMaxSide = 1 << 15; // pixels; more is no picture of a camera

[[noreturn]] void fail(const QString& path, const Reason& why) {
    throw RecordingError(RecordingError::While::Reading, path, why);
}

bool isTiff(const QString& path) {
    return QFileInfo(path).suffix().startsWith(QLatin1String("tif"), Qt::CaseInsensitive);
}

/// The picture, and the text that it carries.
QImage readPicture(const QString& path, QString* note = nullptr) {
    const QFileInfo info(path);
    if (!info.isFile() || !info.isReadable()) {
        throw RecordingError::unreadable(path, EACCES);
    }
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (size.isValid() && (size.width() > kMaxSide || size.height() > kMaxSide)) {
        fail(path, reason("The picture is too large."));
    }
    const QImage image = reader.read();
    if (image.isNull()) {
        fail(path, reader.canRead() ? reason("The picture is damaged, or a part of it is missing.")
                                    : reason("The file is no picture that can be read."));
    }
    if (note) {
        *note = image.text(QLatin1String(PictureNote::Key));
        if (note->isEmpty()) {
            *note = image.text(); // a JPEG has one text without a name
        }
    }
    return image;
}

} // namespace

QStringList SequenceSource::filesOf(const QString& path) {
    const QFileInfo info(path);
    static const QRegularExpression numbered(QStringLiteral("^(.*_)(\\d{6,})$"));
    const QRegularExpressionMatch match = numbered.match(info.completeBaseName());
    if (!match.hasMatch()) {
        return {path};
    }
    const QRegularExpression sibling(
        QStringLiteral("^%1\\d{6,}\\.%2$")
            .arg(QRegularExpression::escape(match.captured(1)), QRegularExpression::escape(info.suffix())));
    QStringList files;
    for (const QString& name : info.dir().entryList(QDir::Files, QDir::Name)) {
        if (sibling.match(name).hasMatch()) {
            files.append(info.dir().filePath(name));
        }
    }
    // Numbers that have outgrown their digits are longer, and so later.
    std::stable_sort(files.begin(), files.end(),
                     [](const QString& one, const QString& other) { return one.size() < other.size(); });
    return files.isEmpty() ? QStringList{path} : files;
}

SequenceSource::SequenceSource(const QString& path) : m_files(filesOf(path)) {
    if (isTiff(path)) {
        m_info = TiffSource(m_files.first()).told();
    } else {
        takeFirst(path);
    }
    m_info.frames = m_files.size();
    m_info.triggerIndex = qBound(0, m_info.triggerIndex, m_info.frames - 1);
}

void SequenceSource::takeFirst(const QString& path) {
    QString note;
    const QImage first = readPicture(m_files.first(), &note);
    m_info = RecordingInfo::fromJson(PictureNote::info(note));
    if (m_info.camera.isEmpty()) {
        m_info.camera = QFileInfo(path).completeBaseName();
    }
    m_info.size = first.size();
    m_info.color = !first.isGrayscale();
    const bool isDeep = first.format() == QImage::Format_Grayscale16;
    m_info.bitDepth = !isDeep ? 8 : m_info.isWide() ? m_info.bitDepth : 16;
}

Frame SequenceSource::frame(int index) const {
    if (index < 0 || index >= m_files.size()) {
        fail(m_files.first(), reason("There is no such frame."));
    }
    Frame frame = read(m_files.at(index));
    frame.number = m_info.firstNumber + quint32(index);
    return frame;
}

Frame SequenceSource::readTiff(const QString& path) const {
    const TiffSource file(path);
    if (file.info().size != m_info.size || file.info().color != m_info.color ||
        file.info().isWide() != m_info.isWide()) {
        fail(path, reason("The picture has another size than the first one of its sequence."));
    }
    return file.frame(0);
}

// All frames have the size and the kind of the first; who put another picture among them is told.
Frame SequenceSource::read(const QString& path) const {
    if (isTiff(path)) {
        return readTiff(path);
    }
    const QImage image = readPicture(path);
    if (image.size() != m_info.size) {
        fail(path, reason("The picture has another size than the first one of its sequence."));
    }
    if (m_info.isWide()) {
        return Pixels::fromSpread(image.convertToFormat(QImage::Format_Grayscale16), m_info.bitDepth);
    }
    Frame frame;
    frame.image = image.convertToFormat(m_info.color ? QImage::Format_RGB888 : QImage::Format_Grayscale8);
    return frame;
}
