// The support file, exported by the menu with the real windows.

#include "tests/support/PanelTest.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/Viewer.h"
#include "viewer/prefs/Preferences.h"

#include <KZip>
#include <QAction>
#include <QFileDialog>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>

class tst_Support : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;
    QTemporaryDir m_folder;

    /// Presses a button of each box as it comes, and answers the file dialog; gives the boxes' texts.
    QStringList exportTo(const QString& path, const QStringList& buttons) {
        QStringList texts;
        QStringList left = buttons;
        QTimer poll;
        connect(&poll, &QTimer::timeout, this, [&] {
            QWidget* const front = QApplication::activeModalWidget();
            if (dynamic_cast<QFileDialog*>(front)) {
                m_test->call("files.answer", {{QStringLiteral("path"), path}});
            } else if (front && !left.isEmpty()) {
                const QJsonArray windows = m_test->call("windows.list").toArray();
                const QJsonObject box = windows.at(0).toObject();
                if (box[QStringLiteral("class")].toString().contains(QLatin1String("MessageBox"))) {
                    texts.append(box[QStringLiteral("text")].toString());
                    m_test->call("windows.press", {{QStringLiteral("button"), left.takeFirst()}});
                }
            }
        });
        poll.start(20);
        m_test->viewer().mainWindow().action(QStringLiteral("support"))->trigger();
        return texts;
    }
    QVariant lastFolder() { return m_test->viewer().preferences().value(QStringLiteral("support/dir")); }

private slots:
    void init() { m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/one-camera.json")); }
    void cleanup() { m_test.reset(); }

    void writesAnArchive() {
        const QString path = m_folder.filePath(QStringLiteral("help.zip"));
        const QStringList texts = exportTo(path, {QStringLiteral("Yes"), QStringLiteral("OK")});
        QCOMPARE(texts.size(), 2);
        QVERIFY2(texts.at(0).contains(QStringLiteral("\n- ZEL setting values\n")), qPrintable(texts.at(0)));
        QCOMPARE(texts.at(1), QStringLiteral("Please attach preserved file to a mail."));
        KZip zip(path);
        QVERIFY(zip.open(QIODevice::ReadOnly));
        const QImage screen = QImage::fromData(zip.directory()->file(QStringLiteral("screen.png"))->data());
        QCOMPARE(screen.size(), m_test->viewer().mainWindow().size());
        QCOMPARE(lastFolder().toString(), m_folder.path());
    }

    void tellsAFailureAndNoHint() {
        QVERIFY(QDir(m_folder.path()).mkdir(QStringLiteral("taken.zip")));
        const QString path = m_folder.filePath(QStringLiteral("taken.zip/nowhere/a.zip"));
        const QStringList texts = exportTo(path, {QStringLiteral("Yes"), QStringLiteral("OK")});
        QCOMPARE(texts.size(), 2);
        QVERIFY2(texts.at(1).contains(path), qPrintable(texts.at(1)));
    }

    void declinedItLeavesEverything() {
        QCOMPARE(exportTo(QString(), {QStringLiteral("No")}).size(), 1);
        QVERIFY(!lastFolder().isValid());
    }
};

QTEST_MAIN(tst_Support)
#include "tst_support.moc"
