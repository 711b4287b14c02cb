// The preferences that name saved files: whatever they hold, composing ends, with paths that a file may have,
// or with one of its two failures. The first three bytes give the save type, the host's mode and the camera,
// the lines after them "key=value".

#include "fuzz/Expect.h"
#include "livecontrol/interface/APP_Exception.h"
#include "livecontrol/storage/ExportNaming.h"
#include "tests/support/FakeDocument.h"
#include "tests/support/FakeHost.h"

#include <QDateTime>
#include <QFile>
#include <QMap>
#include <QSet>
#include <QTemporaryDir>
#include <QTextCodec>

namespace {

using Paths = QMap<PARTITIONNUMBER, QString>;

struct Input {
    int saveType = 0;
    bool isFileMode = false;
    bool isMemoryMode = false;
    bool isNumbered = false;
    int partitions = 1;
    QMap<QString, QString> prefs;

    Input(const quint8* data, size_t size) {
        const auto byte = [&](size_t i) { return i < size ? data[i] : quint8(0); };
        saveType = byte(0) % 24;
        isFileMode = byte(1) & 1;
        isMemoryMode = byte(1) & 2;
        isNumbered = byte(2) & 1;
        partitions = 1 + (byte(2) >> 1) % 3;
        if (size > 3) {
            const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data) + 3, int(size - 3));
            const QStringList lines = text.split(QLatin1Char('\n'));
            for (const QString& line : lines) {
                prefs.insert(line.section(QLatin1Char('='), 0, 0), line.section(QLatin1Char('='), 1));
            }
        }
    }
};

/// A host with these preferences and one camera, and with a folder that holds some names already.
struct Rig {
    FakeHost host;
    FakeCamera camera{host.calls};
    QSet<QString> pending;
    Paths groupDirs;
    Paths folders;
    Paths fullPaths;
    QString failure;

    Rig(const Input& input, const QString& dir) {
        const auto pref = [&input](const QString& key) { return QVariant(input.prefs.value(key)); };
        host.onGetPrefString = [=](const QString& key, const QVariant&, int) {
            return key.endsWith(QLatin1String("/dir")) ? dir : pref(key).toString();
        };
        host.onGetPrefBool = [=](const QString& key, const QVariant&) { return pref(key).toBool(); };
        host.onGetPrefInt = [=](const QString& key, const QVariant&) { return pref(key).toInt(); };
        host.onIsFileMode = [&input] { return input.isFileMode; };
        host.onIsMemoryMode = [&input] { return input.isMemoryMode; };
        host.onDocByKey = [this](DOCKEY key, bool) -> DOC_Interface* { return key % 2 ? &camera : nullptr; };
        host.onAddPendingPath = [this](const QString& path) { pending.insert(path); };
        host.onAddPendingFolder = host.onAddPendingPath;
        host.onIsPendingPath = [this](const QString& path) { return pending.contains(path); };
        host.onIsPendingFolder = host.onIsPendingPath;
        host.onGetReplacementFolder = [=] { return pref(QStringLiteral("replacement")).toString(); };
        camera.onGetFilePath = [=] { return dir + QStringLiteral("/file"); };
        camera.onGetBaseName = [=] { return pref(QStringLiteral("base")).toString(); };
        camera.onGetPartitionName = [=](PARTITIONNUMBER) {
            return pref(QStringLiteral("partition")).toString();
        };
        camera.onGetPartitionCount = [&input](bool, bool) { return input.partitions; };
        camera.onGetHeadCount = [=] { return pref(QStringLiteral("heads")).toInt(); };
        camera.onGetCustomItems = [=] {
            return QVariantList{QVariantMap{{QStringLiteral("name"), QStringLiteral("TestNo")},
                                            {QStringLiteral("value"), pref(QStringLiteral("item"))},
                                            {QStringLiteral("usefilename"), QStringLiteral("on")}}};
        };
        camera.onIsRecordInMemory = [] { return true; };
        camera.onComposeSaveSuffix = [=, &input](int, PARTITIONNUMBER, int session, bool& used,
                                                 const QDateTime&) {
            used = input.isNumbered;
            const QString suffix = pref(QStringLiteral("suffix")).toString();
            return used ? suffix + QString::number(session) : suffix;
        };
        try {
            composeExportPaths(&host, input.saveType, &camera, pref(QStringLiteral("replace")).toBool(),
                               groupDirs, folders, fullPaths, QDateTime(QDate(2021, 3, 4), QTime(5, 6, 7)),
                               1);
        } catch (const UTL_Exception& exception) {
            failure = QString::fromUtf8(exception.what());
        }
    }
};

void expectSound(const Input& input, const Rig& rig) {
    if (!rig.failure.isEmpty()) {
        expect(rig.failure == QLatin1String("Invalid filename.") ||
                   rig.failure == QLatin1String("The path of the target is too long."),
               "one of the two failures");
        return;
    }
    expect(rig.folders.size() == input.partitions && rig.fullPaths.size() == input.partitions,
           "a path for each partition");
    for (auto it = rig.fullPaths.cbegin(); it != rig.fullPaths.cend(); ++it) {
        expect(it->startsWith(rig.folders.value(it.key())), "files in their folders");
        if (input.saveType != 16) {
            expect(it->size() <= 245, "paths of at most 245 characters");
            expect(rig.pending.contains(*it), "paths that the host knows of");
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, size_t size) {
    static QTemporaryDir s_folder;
    static const bool s_ready = [] {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
        for (const char* const name : {"a1", "a2", "a_1", "1", "S1", "[a]_1"}) {
            QFile file(s_folder.filePath(QLatin1String(name)));
            expect(file.open(QIODevice::WriteOnly), "room for the temporary files");
        }
        return true;
    }();
    Q_UNUSED(s_ready)
    const Input input(data, size);
    const Rig first(input, s_folder.path());
    expectSound(input, first);
    const Rig second(input, s_folder.path());
    expect(first.failure == second.failure && first.fullPaths == second.fullPaths &&
               first.groupDirs == second.groupDirs,
           "the same from the same");
    return 0;
}
