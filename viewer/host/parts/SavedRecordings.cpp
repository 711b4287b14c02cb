#include "viewer/host/parts/SavedRecordings.h"

#include "viewer/recordings/FrameSource.h"
#include "viewer/recordings/RecordingError.h"
#include "viewer/recordings/RecordingFile.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>

namespace {

constexpr int kLevels = 2; // of folders below: group folder, sub folder

/// The same shot of the same head. A copy has its name; where there is none, nothing may differ that a camera
/// could do twice.
bool isSameShot(const RecordingInfo& a, const RecordingInfo& b) {
    if (!a.id.isEmpty() && !b.id.isEmpty()) {
        return a.id == b.id;
    }
    return a.triggered.isValid() && a.camera == b.camera && a.serial == b.serial && a.head == b.head &&
           a.size == b.size && a.triggered == b.triggered && a.ended == b.ended;
}

bool hasAllOf(const RecordingInfo& file, qint64 frames, const RecordingInfo& wanted) {
    const qint64 first = file.firstNumber;
    return isSameShot(file, wanted) && file.rate == wanted.rate && first <= wanted.firstNumber &&
           first + frames >= qint64(wanted.firstNumber) + wanted.frames;
}

/// Of the pictures of a recording one stands for all.
QString stemOf(const QFileInfo& file) {
    static const QRegularExpression numbered(QStringLiteral("_\\d{6,}$"));
    return file.completeBaseName().remove(numbered) + QLatin1Char('.') + file.suffix();
}

class Search {
public:
    explicit Search(const QList<RecordingInfo>& wanted) : m_wanted(wanted), m_found(wanted.size()) {
        for (const QString& suffix : RecordingFile::readableSuffixes()) {
            m_patterns.append(QStringLiteral("*.") + suffix);
        }
    }

    void look(const QDir& folder, int levels) {
        QSet<QString> seen;
        for (const QFileInfo& file : folder.entryInfoList(m_patterns, QDir::Files | QDir::Readable)) {
            const QString stem = stemOf(file);
            if (m_found.contains(false) && !seen.contains(stem)) {
                seen.insert(stem);
                check(file.filePath());
            }
        }
        const QDir::Filters below = QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks;
        for (const QFileInfo& each : levels > 0 ? folder.entryInfoList(below) : QFileInfoList()) {
            look(QDir(each.filePath()), levels - 1);
        }
    }

    const QVector<bool>& found() const { return m_found; }

private:
    void check(const QString& path) {
        try {
            const FrameSourcePtr source = RecordingFile::open(path);
            for (int i = 0; i < m_wanted.size(); ++i) {
                m_found[i] = m_found[i] || hasAllOf(source->info(), source->count(), m_wanted[i]);
            }
        } catch (const RecordingError&) { // none of ours, or not whole
        }
    }

    const QList<RecordingInfo>& m_wanted;
    QVector<bool> m_found;
    QStringList m_patterns;
};

} // namespace

QVector<bool> SavedRecordings::find(const QList<RecordingInfo>& wanted, const QString& folder) {
    Search search(wanted);
    search.look(QDir(folder), kLevels);
    return search.found();
}
