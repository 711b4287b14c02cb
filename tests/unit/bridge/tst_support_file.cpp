// The steps of the support file's export, in their order, and what each failure leaves.

#include "livecontrol/interface/APP_Exception.h"
#include "livecontrol/interface/JS_Mediator.h"
#include "tests/support/TestRig.h"

#include <QFileDialog>
#include <QFutureWatcher>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <QtTest>

class tst_SupportFile : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_rig = std::make_unique<TestRig>();
        m_mediator = std::make_unique<JS_Mediator>(&m_rig->host, QStringLiteral("m"));
        m_steps.clear();
        m_question.clear();
        auto& host = m_rig->host;
        host.onConfirm = [this](const QString& text, QWidget*, const QMap<QString, QString>&) {
            m_question = text;
            return true;
        };
        host.onCollectSupportFiles = [this](QStringList& files) {
            m_steps.append(QStringLiteral("collect"));
            files.append(QStringLiteral("a.log"));
        };
        host.onWriteSupportFile = [this](const QString& path, QStringList* files) {
            m_worker = QThread::currentThread();
            m_written = path;
            m_files = *files;
            return true;
        };
        host.onRunWithProgress = [](const QString&, QFutureWatcher<void>& watcher) {
            watcher.waitForFinished();
        };
        host.onInfo = [this](const QString& text, QWidget*) { m_steps.append(text); };
        host.onHandleError = [this](std::exception& error) {
            m_steps.append(QStringLiteral("error: ") + QString::fromUtf8(error.what()));
        };
        host.onSetPrefString = [this](const QString& name, const QString& value) {
            m_steps.append(name + QLatin1Char('=') + value);
        };
    }

    void writesOnThePoolAndTells() {
        m_rig->host.onGetPrefString = [this](const QString& key, const QVariant&, int) {
            return key == QLatin1String("support/dir") ? m_folder.path() : QString();
        };
        run(m_folder.filePath(QStringLiteral("help"))); // a name alone gets what the dialog offers
        QCOMPARE(m_steps, QStringList({QStringLiteral("collect"),
                                       QStringLiteral("Please attach preserved file to a mail."), stored()}));
        QCOMPARE(m_written, path());
        QCOMPARE(m_folderAtFirst, m_folder.path()); // that of the last export
        QCOMPARE(m_filter, QStringLiteral("zip (*.zip)"));
        QCOMPARE(m_files, QStringList(QStringLiteral("a.log")));
        QVERIFY(m_worker != QThread::currentThread());
        QCOMPARE(m_question.split(QStringLiteral("<br>")).size(), 8);
    }

    void namesTheOtherWindowWhileItShows() {
        m_rig->host.onIsQmonWindowShown = [] { return true; };
        run(QString());
        const QStringList lines = m_question.split(QStringLiteral("<br>"));
        QCOMPARE(lines.size(), 9);
        QCOMPARE(lines.at(7), QStringLiteral("- QMON window screen capture"));
    }

    void stopsWhereTheUserStops() {
        run(QString()); // cancels the file dialog
        QCOMPARE(m_steps, QStringList());
        m_rig->host.onConfirm = [](const QString&, QWidget*, const QMap<QString, QString>&) { return false; };
        m_mediator->openExportSupportFileDialog(); // a file dialog would not end
        QCOMPARE(m_steps, QStringList());
    }

    // The user named another file, or one whose suffix is only a part of its name.
    void asksForAFileThatGotItsSuffixOnlyHere() {
        QFile old(path());
        QVERIFY(old.open(QIODevice::WriteOnly));
        bool proceeds = false;
        QStringList questions;
        m_rig->host.onConfirm = [&](const QString& text, QWidget*, const QMap<QString, QString>&) {
            questions.append(text);
            return questions.size() == 1 || proceeds;
        };
        run(m_folder.filePath(QStringLiteral("help")));
        QCOMPARE(questions.value(1), path() + QStringLiteral(" already exists. Do you want to replace it?"));
        QCOMPARE(m_steps, QStringList());
        questions.clear();
        proceeds = true;
        run(m_folder.filePath(QStringLiteral("help")));
        QCOMPARE(m_written, path());
        for (const char* const named : {"help.zip", "HELP.ZIP", "Run 1.2"}) {
            questions.clear();
            run(m_folder.filePath(QLatin1String(named)));
            QCOMPARE(questions.size(), 1);
        }
        QCOMPARE(m_written, m_folder.filePath(QStringLiteral("Run 1.2.zip")));
        QVERIFY(old.remove());
    }

    void tellsOneFailureAndKeepsTheFolder() {
        m_rig->host.onWriteSupportFile = [](const QString&, QStringList*) { return false; };
        run(path());
        QCOMPARE(m_steps, QStringList({QStringLiteral("collect"),
                                       QStringLiteral("error: Failed to save support file."), stored()}));
        m_steps.clear();
        m_rig->host.onWriteSupportFile = [](const QString&, QStringList*) -> bool {
            throw APP_Exception(QStringLiteral("Disk full."), 5);
        };
        run(path());
        QCOMPARE(m_steps,
                 QStringList({QStringLiteral("collect"), QStringLiteral("error: Disk full."), stored()}));
        m_steps.clear();
        m_rig->host.onWriteSupportFile = [](const QString&, QStringList*) -> bool {
            throw std::runtime_error("torn");
        };
        run(path());
        QCOMPARE(m_steps.value(1), QStringLiteral("error: torn"));
    }

    // On its way from the pool to the host, which tells more than the text of it.
    void aFailureKeepsWhatItKnows() {
        m_rig->host.onWriteSupportFile = [](const QString& path, QStringList*) -> bool {
            throw DOC_ReadFileException(path, QStringLiteral("It is locked."));
        };
        QString known;
        m_rig->host.onHandleError = [&](std::exception& error) {
            if (const auto* const file = dynamic_cast<const DOC_FileException*>(&error)) {
                known = file->path() + QLatin1Char(' ') + file->reason();
            }
        };
        run(path());
        QCOMPARE(known, path() + QStringLiteral(" It is locked."));
    }

    // The task reads what stands on the slot's stack.
    void waitsForTheTaskWhenTheProgressFails() {
        std::atomic<bool> ended{false};
        m_rig->host.onWriteSupportFile = [&](const QString&, QStringList*) {
            QThread::msleep(100);
            ended = true;
            return true;
        };
        m_rig->host.onRunWithProgress = [](const QString&, QFutureWatcher<void>&) {
            throw std::runtime_error("no window");
        };
        run(path());
        QVERIFY(ended);
        QCOMPARE(m_steps,
                 QStringList({QStringLiteral("collect"), QStringLiteral("error: no window"), stored()}));
    }

private:
    QString path() const { return m_folder.filePath(QStringLiteral("help.zip")); }
    QString stored() const { return QStringLiteral("support/dir=") + m_folder.path(); }

    /// Answers the file dialog; cancels it without a path.
    void run(const QString& answer) {
        QTimer poll;
        connect(&poll, &QTimer::timeout, this, [&] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog) {
                return;
            }
            poll.stop();
            m_folderAtFirst = dialog->directory().path();
            m_filter = dialog->nameFilters().value(0);
            if (answer.isEmpty()) {
                dialog->reject();
                return;
            }
            dialog->findChild<QWidget*>(QStringLiteral("fileNameEdit"))->setProperty("text", answer);
            QMetaObject::invokeMethod(dialog, "accept");
        });
        poll.start(10);
        m_mediator->openExportSupportFileDialog();
    }

    QTemporaryDir m_folder;
    std::unique_ptr<TestRig> m_rig;
    std::unique_ptr<JS_Mediator> m_mediator;
    QStringList m_steps;
    QString m_question;
    QString m_written;
    QString m_folderAtFirst;
    QString m_filter;
    QStringList m_files;
    QThread* m_worker = nullptr;
};

QTEST_MAIN(tst_SupportFile)
#include "tst_support_file.moc"
