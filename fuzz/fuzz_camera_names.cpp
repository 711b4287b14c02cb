// The camera name file: whatever bytes it holds, the reader ends, and a name that it gives can be a camera's.

#include "fuzz/Expect.h"
#include "livecontrol/devices/CameraNameFile.h"
#include "livecontrol/foundation/UTL_Names.h"

#include <QSet>
#include <QTemporaryFile>
#include <QTextCodec>

namespace {

// Tabs and line feeds inside a name, which the check refuses too, are not what the reader takes away.
QString withoutBlanks(QString name) { return name.remove(QLatin1Char('\t')).remove(QLatin1Char('\n')); }

void expectSound(const QStringList& names) {
    QSet<QString> seen;
    for (const QString& name : names) {
        expect(!name.isEmpty() && name.size() <= 1024, "names of 1 to 1,024 characters");
        expect(isValidFileName(withoutBlanks(name)), "names that a file can have");
        expect(!name.contains(QLatin1Char(',')), "names without commas");
        expect(!name.at(name.size() - 1).isHighSurrogate(), "no half character at the end");
        expect(!seen.contains(name), "each name once in its category");
        seen.insert(name);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, size_t size) {
    static const bool s_ready = [] {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("Shift-JIS")); // where such files come from
        return true;
    }();
    Q_UNUSED(s_ready)
    static QTemporaryFile s_file;
    const auto length = static_cast<qint64>(size);
    expect(s_file.isOpen() || s_file.open(), "a temporary file");
    expect(s_file.resize(0) && s_file.seek(0) &&
               s_file.write(reinterpret_cast<const char*>(data), length) == length && s_file.flush(),
           "room for the temporary file");

    CameraNames names;
    expect(readCameraNameFile(s_file.fileName(), names), "a file that is there is read");
    for (auto it = names.cbegin(); it != names.cend(); ++it) {
        expect(!it.key().isEmpty() && it.key() == it.key().trimmed(), "trimmed categories");
        expectSound(it.value());
    }
    // A second reading adds nothing and loses nothing.
    CameraNames again;
    expect(readCameraNameFile(s_file.fileName(), again) && again == names, "the same names again");
    return 0;
}
