// The list of camera names: its file in all encodings, and what a page gets of it.

#include "livecontrol/devices/CameraNameFile.h"
#include "livecontrol/devices/JS_Mediator_AutoCameraName.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestRig.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QTextStream>
#include <QtTest>

#include <sys/stat.h>

namespace {

const QString kKanji = QString::fromUtf8("\xe9\xab\x98\xe9\x80\x9f"); // two characters
const QByteArray kKanjiSjis("\x8d\x82\x91\xac");

/// Reads text files by another default codec while it lives.
class LocaleCodec {
public:
    explicit LocaleCodec(const char* name) : m_before(QTextCodec::codecForLocale()) {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(name));
    }
    ~LocaleCodec() { QTextCodec::setCodecForLocale(m_before); }
    Q_DISABLE_COPY(LocaleCodec)

private:
    QTextCodec* m_before;
};

} // namespace

class tst_CameraNames : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const char* name = "names.csv") const { return m_folder.filePath(QLatin1String(name)); }
    void write(const QByteArray& bytes) const {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    CameraNames read(const QByteArray& bytes) const {
        write(bytes);
        CameraNames names;
        if (!readCameraNameFile(path(), names)) {
            names[QStringLiteral("failed")];
        }
        return names;
    }
    QString listed(TestRig& rig) const {
        rig.host.onGetPrefString = [this](const QString& key, const QVariant&, int) {
            return key == QLatin1String("usercustom/cameraNameFilePath") ? path() : QString();
        };
        return JS_Mediator_AutoCameraName(&rig.host, QStringLiteral("names"), nullptr)
            .autoCompleteCameraList();
    }

private slots:
    void readsLines_data() {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QString>("category");
        QTest::addColumn<QStringList>("names");
        const auto row = [](const char* name, const QByteArray& line, const char* category,
                            const QStringList& names) {
            QTest::newRow(name) << line << QString::fromLatin1(category) << names;
        };
        const QString x = QStringLiteral("x");
        const QString y = QStringLiteral("y");
        row("plain", "c,x,y", "c", {x, y});
        row("windows", "c,x\r\nc,y\r\n", "c", {x, y});
        row("blanks", "  c , x ,  y\t", "c", {x, y});
        row("empty field", "c,,x", "c", {x});
        row("no category", ",x,y", "?default?", {x, y});
        row("blank category", "   ,x", "?default?", {x});
        row("twice in a line", "c,x,x", "c", {x});
        row("twice in the file", "c,x\nc,y,x", "c", {x, y});
        row("forbidden", "c,a:b/c*,%<>|\"?\\,x", "c", {QStringLiteral("abc"), x});
        row("folders", "c,.,..,x", "c", {x});
        row("markup", "<b>,<img src=x onerror=y>", "<b>", {QStringLiteral("img src=x onerror=y")});
        row("longest", "c," + QByteArray(1024, 'n'), "c", {QString(1024, QLatin1Char('n'))});
        row("too long", "c," + QByteArray(2000, 'n'), "c", {QString(1024, QLatin1Char('n'))});
        row("no line feed at the end", "c,x", "c", {x});
    }
    void readsLines() {
        QFETCH(QByteArray, line);
        QFETCH(QString, category);
        QFETCH(QStringList, names);
        QCOMPARE(read(line), (CameraNames{{category, names}}));
    }

    void nothingButACategoryIsLogged() {
        LogCapture log;
        QVERIFY(read("lonely\nc,x\n").keys() == QStringList{QStringLiteral("c")});
        QCOMPARE(log.with(QStringLiteral("[only category]")).size(), 1);
        QVERIFY(log.with(QStringLiteral("[only category]")).first().contains(QLatin1String("lonely")));
        QCOMPARE(log.lines().first().type, QtWarningMsg);
        QVERIFY(!log.lines().first().hasPlace);
    }

    void neverCutsACharacterInHalf() {
        const QByteArray camera = "\xf0\x9f\x93\xb7"; // two units each
        const QStringList names = read("c,n" + camera.repeated(600)).value(QStringLiteral("c"));
        QCOMPARE(names.size(), 1);
        QCOMPARE(names.first().size(), 1023);
        QVERIFY(names.first().back().isLowSurrogate());
    }

    void findsTheEncoding_data() {
        QTest::addColumn<QByteArray>("locale");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("name");
        const QByteArray utf8 = kKanji.toUtf8();
        QTest::newRow("Shift-JIS") << QByteArray("Shift-JIS") << "c," + kKanjiSjis << kKanji;
        QTest::newRow("could be Shift-JIS")
            << QByteArray("ISO-8859-1") << "c," + kKanjiSjis << QString::fromLatin1(kKanjiSjis).trimmed();
        QTest::newRow("UTF-8") << QByteArray("Shift-JIS") << "c," + utf8 + "\xe2\x82\xac"
                               << kKanji + QChar(0x20AC);
        QTest::newRow("UTF-8 with a mark") << QByteArray("Shift-JIS")
                                           << "\xef\xbb\xbf"
                                              "c," +
                                                  utf8
                                           << kKanji;
        QTest::newRow("emoji") << QByteArray("Shift-JIS") << QByteArray("c,\xf0\x9f\x98\x80")
                               << QString::fromUtf8("\xf0\x9f\x98\x80");
        QTest::newRow("right to left") << QByteArray("Shift-JIS") << QByteArray("c,\xd7\x90\xd7\x91\xfd")
                                       << QString::fromUtf8("\xd7\x90\xd7\x91\xef\xbf\xbd");
        QTest::newRow("broken end") << QByteArray("Shift-JIS") << QByteArray("c,abc\x81")
                                    << QStringLiteral("abc") + QChar(QChar::ReplacementCharacter);
    }
    void findsTheEncoding() {
        QFETCH(QByteArray, locale);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, name);
        const LocaleCodec codec(locale.constData());
        QCOMPARE(read(bytes), (CameraNames{{QStringLiteral("c"), {name}}}));
    }

    void unreadableIsLoggedAndGivesNoNames_data() {
        QTest::addColumn<QString>("what");
        QTest::addColumn<int>("criticals");
        QTest::newRow("missing") << QStringLiteral("missing") << 0;
        QTest::newRow("folder") << QStringLiteral("folder") << 1;
        QTest::newRow("pipe") << QStringLiteral("pipe") << 1;
    }
    void unreadableIsLoggedAndGivesNoNames() {
        QFETCH(QString, what);
        QFETCH(int, criticals);
        QFile::remove(path());
        if (what == QLatin1String("folder")) {
            QVERIFY(QDir(m_folder.path()).mkdir(QStringLiteral("names.csv")));
        } else if (what == QLatin1String("pipe")) {
            QCOMPARE(::mkfifo(path().toLocal8Bit().constData(), 0600), 0);
        }
        LogCapture log;
        TestRig rig;
        QCOMPARE(listed(rig), QStringLiteral("[]"));
        QCOMPARE(log.with(QStringLiteral("file open failed. [%1]").arg(path())).size(), criticals);
        QCOMPARE(rig.host.calls.count(QStringLiteral("HostApplication.handleError")), 0);
        QFile::remove(path());
        QDir(m_folder.path()).rmdir(QStringLiteral("names.csv"));
    }

    void namesWithoutACategoryStandFirst() {
        write("zoo,z\n,b,a\nant,y\n,c\n");
        TestRig rig;
        QCOMPARE(listed(rig), QStringLiteral("[{\"category\":\"\",\"label\":\"b\"},"
                                             "{\"category\":\"\",\"label\":\"a\"},"
                                             "{\"category\":\"\",\"label\":\"c\"},"
                                             "{\"category\":\"ant\",\"label\":\"y\"},"
                                             "{\"category\":\"zoo\",\"label\":\"z\"}]"));
    }

    void tellsWhetherThereIsAFile() {
        write("c,x\n");
        LogCapture log;
        TestRig rig;
        JS_Mediator_AutoCameraName mediator(&rig.host, QStringLiteral("names"), nullptr);
        QVERIFY(!mediator.existsAutoCompleteFile()); // no path
        listed(rig);
        QVERIFY(mediator.existsAutoCompleteFile());
        QCOMPARE(log.with(QStringLiteral("found file. [%1]").arg(path())).size(), 1);
        rig.host.onIsCameraNameFileEnabled = [] { return false; };
        QVERIFY(!mediator.existsAutoCompleteFile());
    }

    void aLongListTakesNoLongerThanItsLines() {
        QByteArray bytes;
        for (int i = 0; i < 100000; ++i) {
            bytes += "category,camera " + QByteArray::number(i) + '\n';
        }
        QElapsedTimer timer;
        timer.start();
        const CameraNames names = read(bytes);
        QCOMPARE(names.value(QStringLiteral("category")).size(), 100000);
        // Comparing each name with all before it would take minutes.
        QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
    }
};

QTEST_MAIN(tst_CameraNames)
#include "tst_camera_names.moc"
