#include "tests/support/FullDisk.h"
#include "viewer/prefs/FilePreferences.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

#include <unistd.h>

namespace {

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString& path, const QByteArray& text) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(text.size()));
}

} // namespace

class TestFilePreferences : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("deep/er/settings.ini"));
    }

    void valueComesBackWithItsType_data() {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("read");
        const auto same = [](const char* name, const QVariant& value) {
            QTest::newRow(name) << value << value;
        };
        same("text", QStringLiteral("dark"));
        same("text that looks like a number", QStringLiteral("007"));
        same("text with line ends, quotes and =", QStringLiteral("a\n\"b\"=;[c]\\n"));
        same("Japanese", QStringLiteral("カメラ"));
        same("empty text", QString());
        same("true", true);
        same("int", -42);
        same("fraction", 0.1);
        QTest::newRow("float") << QVariant(0.1F) << QVariant(0.1);
        QTest::newRow("beyond int") << QVariant(4294967295U) << QVariant(4294967295.0);
        same("text that looks like a size", QStringLiteral("@Size(64 48)"));
        QTest::newRow("size") << QVariant(QSize(64, -1)) << QVariant(QSize(64, -1));
        QTest::newRow("texts") << QVariant(QStringList{QStringLiteral("a"), QStringLiteral("b,c")})
                               << QVariant(QVariantList{QStringLiteral("a"), QStringLiteral("b,c")});
        same("map", QVariantMap{{QStringLiteral("k"), QStringLiteral("v")}});
    }

    void valueComesBackWithItsType() {
        QFETCH(QVariant, value);
        QFETCH(QVariant, read);
        FilePreferences(m_path).setValue(QStringLiteral("env/x"), value);
        const QVariant stored = FilePreferences(m_path).value(QStringLiteral("env/x"));
        QCOMPARE(stored, read);
        QCOMPARE(stored.type(), read.type());
    }

    void anyKeyIsPossible_data() {
        QTest::addColumn<QString>("key");
        for (const char* key : {"plain", "a/b", "a/b/c", "a=b/c=d", "[x]/;y", "a/\n", "%41/é", "/x", "a/"}) {
            QTest::newRow(key) << QString::fromUtf8(key);
        }
    }

    void anyKeyIsPossible() {
        QFETCH(QString, key);
        FilePreferences(m_path).setValue(key, 1);
        const FilePreferences again(m_path);
        QCOMPARE(again.keys(), QStringList{key});
        QVERIFY(again.problem().isEmpty());
    }

    void defaultHoldsOnlyWithoutValue() {
        FilePreferences prefs(m_path);
        QCOMPARE(prefs.value(QStringLiteral("a/b"), 7).toInt(), 7);
        prefs.setValue(QStringLiteral("a/b"), 0);
        QCOMPARE(prefs.value(QStringLiteral("a/b"), 7).toInt(), 0);
        prefs.remove(QStringLiteral("a/b"));
        QCOMPARE(prefs.value(QStringLiteral("a/b"), 7).toInt(), 7);
        QVERIFY(!FilePreferences(m_path).value(QStringLiteral("a/b")).isValid());
    }

    // Whatever default a reader gives: without a stored value all read the program's own.
    void factoryValueHoldsForEveryReader() {
        FilePreferences prefs(m_path);
        const QString style = QStringLiteral("env/style");
        QCOMPARE(prefs.factoryDefault(style), QVariant(QStringLiteral("dark")));
        QCOMPARE(prefs.value(style), QVariant(QStringLiteral("dark")));
        QCOMPARE(prefs.value(style, QStringLiteral("light")), QVariant(QStringLiteral("dark")));
        QVERIFY(prefs.keys().isEmpty());
        prefs.setValue(style, QStringLiteral("light"));
        QCOMPARE(prefs.value(style), QVariant(QStringLiteral("light")));
        prefs.remove(style);
        QCOMPARE(prefs.value(style), QVariant(QStringLiteral("dark")));
        QVERIFY(!prefs.factoryDefault(QStringLiteral("no/such")).isValid());
    }

    void changeIsToldOnce() {
        FilePreferences prefs(m_path);
        const QSignalSpy spy(&prefs, &FilePreferences::changed);
        prefs.setValue(QStringLiteral("a/b"), 1);
        prefs.setValue(QStringLiteral("a/b"), 1);
        QCOMPARE(spy.count(), 1);
        prefs.setValue(QStringLiteral("a/b"), true); // another type is another value
        QCOMPARE(spy.count(), 2);
        prefs.remove(QStringLiteral("a/b"));
        prefs.remove(QStringLiteral("a/b"));
        QCOMPARE(spy.count(), 3);
    }

    // A process that dies in the middle of its writes leaves a file that reads without a fault, with a value
    // that was once set.
    void crashLeavesWholeFile() {
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--write-forever"), m_path});
        QVERIFY(child.waitForReadyRead(20000)); // it writes by now
        QTest::qWait(30);
        ::kill(static_cast<pid_t>(child.processId()), SIGKILL);
        QVERIFY(child.waitForFinished());
        const FilePreferences prefs(m_path);
        QVERIFY2(prefs.problem().isEmpty(), qPrintable(prefs.problem()));
        QCOMPARE(prefs.keys().size(), 2);
        QCOMPARE(prefs.value(QStringLiteral("big/text")).toString().size(), 200000);
    }

    void brokenFileIsKeptAsideAndTold_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("line");
        QTest::newRow("line cut off")
            << QByteArray("[env]\nstyle=\"light\"\nlanguage=\"j") << QStringLiteral("3");
        QTest::newRow("no value") << QByteArray("[env]\nlanguage\nstyle=\"light\"\n") << QStringLiteral("2");
        QTest::newRow("noise") << QByteArray("\x7f\x45\x4c\x46\n[env]\nstyle=\"light\"\n")
                               << QStringLiteral("1");
        QTest::newRow("two values") << QByteArray("[env]\nstyle=\"light\"\nx=1,2\n") << QStringLiteral("3");
    }

    void brokenFileIsKeptAsideAndTold() {
        QFETCH(QByteArray, text);
        QFETCH(QString, line);
        const QString path = m_folder->filePath(QStringLiteral("settings.ini"));
        writeFile(path, text);
        FilePreferences prefs(path);
        QVERIFY2(prefs.problem().contains(line), qPrintable(prefs.problem()));
        QCOMPARE(prefs.value(QStringLiteral("env/style")).toString(), QStringLiteral("light"));

        prefs.setValue(QStringLiteral("a/b"), 1);
        const QStringList aside = QDir(m_folder->path()).entryList({QStringLiteral("settings.ini.broken-*")});
        QCOMPARE(aside.size(), 1);
        QCOMPARE(contentOf(m_folder->filePath(aside.first())), text);
        QVERIFY(FilePreferences(path).problem().isEmpty());
    }

    void severalBrokenLinesAreCounted() {
        const QString path = m_folder->filePath(QStringLiteral("settings.ini"));
        writeFile(path, "[env]\nstyle=\"light\"\nlanguage\nx=1,2\n");
        const QString problem = FilePreferences(path).problem();
        QVERIFY2(problem.startsWith(QLatin1String("2 lines of the settings file, from line 3 on")),
                 qPrintable(problem));
        const QStringList aside = QDir(m_folder->path()).entryList({QStringLiteral("*.broken-*")});
        QVERIFY2(problem.endsWith(m_folder->filePath(aside.value(0)) + QLatin1Char('.')),
                 qPrintable(problem));
    }

    void aFullDiskKeepsTheOldFile() {
        const QString path = m_folder->filePath(QStringLiteral("settings.ini"));
        FilePreferences prefs(path);
        prefs.setValue(QStringLiteral("a/b"), 1);
        const QByteArray text = contentOf(path);
        const QSignalSpy spy(&prefs, &FilePreferences::writeFailed);
        {
            const FullDisk disk(4);
            prefs.setValue(QStringLiteral("a/b"), 22222);
        }
        QCOMPARE(spy.size(), 1);
        QCOMPARE(contentOf(path), text);
        prefs.setValue(QStringLiteral("a/b"), 3);
        QVERIFY(contentOf(path) != text);
        const FullDisk disk(4);
        prefs.setValue(QStringLiteral("a/b"), 44444);
        QCOMPARE(spy.size(), 2); // it worked in between
    }

    void twoProgramsKeepEachOthersValues() {
        const QString path = m_folder->filePath(QStringLiteral("settings.ini"));
        FilePreferences one(path);
        const auto isOwnersAlone = [&path] { // paths stand in it
            return !(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther));
        };
        one.setValue(QStringLiteral("a/both"), 1);
        QVERIFY(isOwnersAlone()); // from the first value on
        one.setValue(QStringLiteral("a/gone"), 1);
        FilePreferences other(path);
        one.setValue(QStringLiteral("a/one"), 1);
        other.setValue(QStringLiteral("a/other"), 2);
        other.remove(QStringLiteral("a/gone"));
        one.setValue(QStringLiteral("a/both"), 3);
        other.setValue(QStringLiteral("a/last"), 4); // not what it read at its start
        const FilePreferences next(path);
        QCOMPARE(next.keys().join(QLatin1Char(' ')), QStringLiteral("a/both a/last a/one a/other"));
        QCOMPARE(next.value(QStringLiteral("a/both")).toInt(), 3);
        other.setValue(QStringLiteral("a/both"), 5);
        one.setValue(QStringLiteral("a/one"), 2); // what it has stored before is the other's to change
        QCOMPARE(FilePreferences(path).value(QStringLiteral("a/both")).toInt(), 5);
        QVERIFY(isOwnersAlone());
    }

    void aFileThatCannotBeReadIsNotWrittenOver() {
        const QString path = m_folder->filePath(QStringLiteral("settings.ini"));
        FilePreferences(path).setValue(QStringLiteral("a/b"), 1);
        const QString aside = path + QStringLiteral(".aside");
        QVERIFY(QFile::rename(path, aside));
        QVERIFY(QDir().mkdir(path)); // nobody can read it as a file, root not either
        FilePreferences prefs(path);
        QVERIFY(!prefs.problem().isEmpty());
        prefs.setValue(QStringLiteral("a/c"), 2);
        QVERIFY(QDir().rmdir(path));
        QVERIFY(QFile::rename(aside, path));
        prefs.setValue(QStringLiteral("a/d"), 3);
        QCOMPARE(prefs.value(QStringLiteral("a/b")).toInt(), 1); // as soon as it is known
        QCOMPARE(FilePreferences(path).keys().join(QLatin1Char(' ')), QStringLiteral("a/b a/c a/d"));
    }

    void whatCannotBeReadBackIsRefused() {
        FilePreferences prefs(m_path);
        prefs.setValue(QString(), 1);
        prefs.setValue(QStringLiteral("a/b"), qInf());
        prefs.setValue(QStringLiteral("a/c"), qQNaN());
        prefs.setValue(QStringLiteral("a/d"), 1);
        QCOMPARE(prefs.keys(), QStringList{QStringLiteral("a/d")});
        QVERIFY(FilePreferences(m_path).problem().isEmpty());
    }

    void unwritableFileIsToldOnce() {
        const QString folder = m_folder->filePath(QStringLiteral("file"));
        writeFile(folder, "in the way");
        FilePreferences prefs(folder + QStringLiteral("/settings.ini"));
        const QSignalSpy spy(&prefs, &FilePreferences::writeFailed);
        prefs.setValue(QStringLiteral("a/b"), 1);
        prefs.setValue(QStringLiteral("a/b"), 2);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(prefs.value(QStringLiteral("a/b")).toInt(), 2);
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

// With --write-forever the program is the one that the crash test kills.
int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--write-forever") == 0) {
        FilePreferences prefs(QString::fromLocal8Bit(argv[2]));
        prefs.setValue(QStringLiteral("big/text"), QString(200000, QLatin1Char('x')));
        for (int count = 0;; ++count) {
            prefs.setValue(QStringLiteral("a/count"), count);
            if (count == 5 && ::write(STDOUT_FILENO, "go\n", 3) != 3) {
                return 1;
            }
        }
    }
    TestFilePreferences test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_file_preferences.moc"
