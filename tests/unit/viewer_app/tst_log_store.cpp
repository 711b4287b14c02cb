#include "viewer/app/look/AppStyle.h"
#include "viewer/app/panes/LogPane.h"
#include "viewer/app/panes/SessionLog.h"

#include <QComboBox>
#include <QDir>
#include <QMutex>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QThread>
#include <QToolButton>

namespace {

QStringList g_passedOn;
QBasicMutex g_passedOnMutex;

// Like any message handler it is called from all threads at once.
void remember(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text) {
    const QMutexLocker lock(&g_passedOnMutex);
    g_passedOn += text;
}

} // namespace

class TestLogStore : public QObject {
    Q_OBJECT

private slots:
    void init() {
        g_passedOn.clear();
        m_before = qInstallMessageHandler(remember);
    }
    void cleanup() { qInstallMessageHandler(m_before); }

    void linesAreKeptAndPassedOn() {
        LogStore log;
        QSignalSpy spy(&log, &LogStore::lineAdded);
        qInfo("[ENTER] one");
        qCritical("two");
        QTRY_COMPARE(spy.count(), 2);
        const QList<LogStore::Line> lines = log.lines();
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[0].text, QStringLiteral("[ENTER] one"));
        QCOMPARE(lines[0].level(), QStringLiteral("info"));
        QCOMPARE(lines[1].level(), QStringLiteral("critical"));
        QCOMPARE(g_passedOn, QStringList({QStringLiteral("[ENTER] one"), QStringLiteral("two")}));
        log.clear();
        QVERIFY(log.lines().isEmpty());
    }

    void handlerOfBeforeComesBack() {
        { const LogStore log; }
        qInfo("after");
        QCOMPARE(g_passedOn, QStringList(QStringLiteral("after")));
    }

    void oldestLinesGoFirst() {
        LogStore log;
        for (int i = 0; i < LogStore::Limit + 3; ++i) {
            qInfo("%d", i);
        }
        QCOMPARE(log.lines().size(), LogStore::Limit);
        QCOMPARE(log.lines().first().text, QStringLiteral("3"));
    }

    // A pane that logs while it shows a line must not come round again.
    void showingALineMayLog() {
        LogStore log;
        int shown = 0;
        connect(&log, &LogStore::lineAdded, &log, [&shown](const LogStore::Line& line) {
            ++shown;
            if (line.text == QLatin1String("first")) {
                qInfo("second");
            }
        });
        qInfo("first");
        QTRY_COMPARE(shown, 2);
    }

    void thePaneFollowsUnlessTheUserHasScrolledUp() {
        LogStore log;
        LogPane pane(log);
        pane.resize(300, 160);
        pane.show();
        QVERIFY(QTest::qWaitForWindowExposed(&pane));
        auto* const text = pane.findChild<QPlainTextEdit*>(QStringLiteral("logText"));
        QScrollBar* const bar = text->verticalScrollBar();
        const auto add = [&](int lines, int width) {
            const int all = text->blockCount() + lines;
            for (int i = 0; i < lines; ++i) {
                qInfo("%s", std::string(size_t(width), 'x').c_str());
            }
            QTRY_VERIFY(text->blockCount() >= all - 1);
            QCoreApplication::processEvents();
        };
        add(30, 5);
        QVERIFY(bar->maximum() > 0);
        QCOMPARE(bar->value(), bar->maximum());
        add(1, 300); // wider than the pane: a scroll bar comes and covers the last line
        add(3, 5);
        QCOMPARE(bar->value(), bar->maximum());
        bar->setValue(4);
        add(5, 5);
        QCOMPARE(bar->value(), 4);
        bar->setValue(bar->maximum());
        add(5, 5);
        QCOMPARE(bar->value(), bar->maximum());
    }

    void thePaneShowsTheKindThatIsChosenUntilItIsCleared() {
        LogStore log;
        LogPane pane(log);
        auto* const text = pane.findChild<QPlainTextEdit*>(QStringLiteral("logText"));
        auto* const kinds = pane.findChild<QComboBox*>();
        const auto shows = [&](const char* lines) {
            QTRY_COMPARE(text->toPlainText(), QLatin1String(lines));
        };
        qInfo("[ENTER] slot");
        qInfo("[LEAVE] slot");
        qInfo("[USER] click");
        qInfo("plain");
        qWarning("careful");
        shows("[ENTER] slot\n[LEAVE] slot\n[USER] click\nplain\ncareful");
        kinds->setCurrentIndex(1);
        shows("[ENTER] slot\n[LEAVE] slot\n[USER] click");
        kinds->setCurrentIndex(2);
        shows("careful");
        qInfo("more");
        qCritical("broken");
        shows("careful\nbroken");
        pane.findChild<QToolButton*>()->click();
        shows("");
        QCOMPARE(log.lines().size(), 7); // for the support file
        qInfo("after");
        kinds->setCurrentIndex(0); // shows it before it is told
        QCoreApplication::processEvents();
        shows("after");
        qInfo("gone");
        log.clear();
        QCoreApplication::processEvents();
        shows("");
    }

    void eachKindOfLineHasItsColour() {
        LogStore log;
        LogPane pane(log);
        const auto& text = *pane.findChild<QPlainTextEdit*>(QStringLiteral("logText"));
        const auto colours = [&text] {
            QStringList names;
            for (QTextBlock line = text.document()->begin(); line.isValid(); line = line.next()) {
                const QBrush brush = line.begin().fragment().charFormat().foreground();
                names += brush.style() == Qt::NoBrush ? QStringLiteral("none") : brush.color().name();
            }
            return names.join(QLatin1Char(' '));
        };
        qInfo("plain");
        qInfo("[USER] click");
        qWarning("careful");
        qCritical("broken");
        QTRY_COMPARE(colours(), QStringLiteral("none #8cc8ff #f5c26b #ff9a94"));
        AppStyle::apply(*qApp, QStringLiteral("light"));
        QTRY_COMPARE(colours(), QStringLiteral("none #0a58a5 #8a5300 #a3201a"));
        AppStyle::apply(*qApp, QStringLiteral("dark"));
    }

    void linesOfThreadsArrive() {
        LogStore log;
        QList<QThread*> threads;
        for (int i = 0; i < 4; ++i) {
            threads.append(QThread::create([] {
                for (int line = 0; line < 200; ++line) {
                    qInfo("line");
                }
            }));
            threads.last()->start();
        }
        for (QThread* const thread : threads) {
            QVERIFY(thread->wait(20000));
            delete thread;
        }
        QCOMPARE(log.lines().size(), 800);
        QCOMPARE(g_passedOn.size(), 800);
    }

    void aNameMakesNoLineOfItsOwn() {
        LogStore log;
        qInfo("Marlin\n2026-01-01 critical forged\x1b[31m");
        QCOMPARE(log.lines().size(), 1);
        QVERIFY(!log.lines().first().text.contains(QLatin1Char('\n')));
        QVERIFY(!log.lines().first().text.contains(QLatin1Char('\x1b')));
        QVERIFY(log.lines().first().text.startsWith(QStringLiteral("Marlin")));
    }

    void theSessionsBeforeAreKept() {
        QTemporaryDir folder;
        const QString logs = folder.filePath(QStringLiteral("log"));
        for (const char* const text : {"first", "second", "third", "fourth"}) {
            LogStore log;
            qInfo("before %s", text);
            const SessionLog session(log, logs);
            qWarning("%s\u65e5", text);
            QCoreApplication::processEvents();
        }
        LogStore log;
        const SessionLog session(log, logs);
        const QList<QStringList> earlier = session.earlier();
        QCOMPARE(earlier.size(), 2);
        QCOMPARE(earlier.first().size(), 2);
        QVERIFY(earlier.first().at(0).endsWith(QStringLiteral("info before fourth")));
        QVERIFY(earlier.first().at(1).endsWith(QStringLiteral("warning fourth\u65e5")));
        QVERIFY(earlier.last().last().endsWith(QStringLiteral("third\u65e5")));
        const QFileInfoList files = QDir(logs).entryInfoList(QDir::Files);
        QCOMPARE(files.size(), SessionLog::Sessions);
        for (const QFileInfo& file : files) {
            QVERIFY(!(file.permissions() & (QFile::ReadGroup | QFile::ReadOther)));
        }
        const SessionLog none(log, QStringLiteral("/proc/nowhere")); // keeps none
        qInfo("still there");
        QVERIFY(none.earlier().isEmpty());
    }

private:
    QtMessageHandler m_before = nullptr;
};

QTEST_MAIN(TestLogStore)
#include "tst_log_store.moc"
