#include "viewer/app/PreferencesDialog.h"
#include "viewer/prefs/FilePreferences.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMetaProperty>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

class TestPreferencesDialog : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        m_preferences = std::make_unique<FilePreferences>(m_folder->filePath(QStringLiteral("settings.ini")));
        m_dialog = std::make_unique<PreferencesDialog>(*m_preferences);
    }

    void cleanup() { m_dialog.reset(); }

    void pageIsFoundByNameAndByTitle_data() {
        QTest::addColumn<QString>("asked");
        QTest::addColumn<QString>("page");
        QTest::newRow("name") << QStringLiteral("s_record") << QStringLiteral("s_record");
        QTest::newRow("title") << QStringLiteral("Ethernet") << QStringLiteral("s_ethernet");
        QTest::newRow("unknown") << QStringLiteral("s_nothing") << QStringLiteral("s_io");
        QTest::newRow("empty") << QString() << QStringLiteral("s_io");
    }

    void pageIsFoundByNameAndByTitle() {
        QFETCH(QString, asked);
        m_dialog->setPage(asked);
        QString shown;
        whileOpen([&] {
            shown = m_dialog->page();
            m_dialog->reject();
        });
        QTEST(shown, "page");
    }

    void okStoresWhatWasChanged() {
        QSignalSpy applied(m_dialog.get(), &PreferencesDialog::applied);
        m_dialog->setPage(QStringLiteral("s_record"));
        const int result = whileOpen([&] {
            QVERIFY(box("Keep each recording when it ends")->isChecked()); // the factory's value
            QTest::mouseClick(box("Keep each recording when it ends"), Qt::LeftButton, Qt::NoModifier,
                              QPoint(8, 8));
            press(QDialogButtonBox::Ok);
        });
        QCOMPARE(result, int(QDialog::Accepted));
        QCOMPARE(applied.count(), 1);
        QCOMPARE(m_preferences->value(QStringLiteral("recording/AutoDownload")), QVariant(false));
        QCOMPARE(m_preferences->keys(), QStringList(QStringLiteral("recording/AutoDownload")));
    }

    // Each is stored under its name when it was changed, and shows so the next time.
    void eachFieldHasItsPreference() {
        const QList<QPair<const char*, const char*>> fields{
            {"Accept the external trigger while ready", "io/externalTrigger"},
            {"Keep each recording when it ends", "recording/AutoDownload"},
            {"Save what was kept, by the settings of saving", "recording/AutoSave"},
            {"Go back to live after the recording was kept", "recording/backToLive"},
            {"Offer the trigger test", "recording/useTriggerTest"},
            {"Frames to keep of a recording", "recording/keepFrames"},
            {"Folder for kept recordings", "recording/spoolFolder"},
            {"Kept recordings take up at most", "recording/spoolLimit"},
            {"Replay speed", "recording/playbackRate"},
            {"Address to search at", "cameraconnection/SearchIP"},
            {"Address offered for a new camera", "cameraconnection/AddIPDefault"},
            {"Search", "cameraconnection/SearchWay"},
            {"File of camera names", "usercustom/cameraNameFilePath"},
            {"Style", "env/style"},
            {"Language", "env/language"},
            {"Output language", "display/outputLanguage"},
            {"Shutter speed", "display/ShutterSpeed"},
            {"Group the digits of frame rates", "display/recordRateInsertDelimiter"},
            {"Group the digits of frame numbers", "display/frameInsertDelimiter"},
            {"Image values in the camera's own bit depth", "display/DisplayWithRealBitDepth"},
            {"Windows in turn: show each for", "view/cycleSeconds"}};
        QVariantMap wanted;
        whileOpen([&] {
            QStringList words;
            for (const auto& [label, key] : fields) {
                const auto* const choice = qobject_cast<QComboBox*>(field(label));
                for (int i = 0; choice && i < choice->count(); ++i) {
                    words += choice->itemData(i).toString() + QLatin1Char('=') + choice->itemText(i);
                }
                wanted[QLatin1String(key)] = change(field(label));
                const auto* const number = qobject_cast<QSpinBox*>(field(label));
                words += number ? QStringList{number->specialValueText(), number->text()} : QStringList();
            }
            QCOMPARE(words.join(QLatin1Char('|')),
                     QStringLiteral("All|42 frames|No limit|42 GB||42 fps|0=All cameras of the network|"
                                    "1=At one address|dark=Dark|light=Light|en=English|ja=Japanese|"
                                    "0=Same as operating language|1=English|2=Japanese|"
                                    "1=As a fraction of a second|2=As an exposure time||42 s"));
            m_dialog->setPage(QStringLiteral("Display"));
            press(QDialogButtonBox::Ok);
        });
        QCOMPARE(m_preferences->keys().size(), fields.size());
        whileOpen([&] {
            QCOMPARE(m_dialog->page(), QStringLiteral("s_display")); // where it was left
            for (const auto& [label, key] : fields) {
                QCOMPARE(m_preferences->value(QLatin1String(key)), wanted.value(QLatin1String(key)));
                QCOMPARE(valueOf(field(label)), wanted.value(QLatin1String(key)));
            }
            m_dialog->reject();
        });
    }

    void zeroStandsForAll() {
        whileOpen([&] {
            for (const auto& [label, all] : {std::make_pair("Frames to keep of a recording", "All"),
                                             std::make_pair("Kept recordings take up at most", "No limit")}) {
                auto* const number = qobject_cast<QSpinBox*>(field(label));
                number->setValue(0);
                QCOMPARE(number->text(), QLatin1String(all));
                number->setValue(1);
                QVERIFY(number->text() != QLatin1String(all));
                number->setValue(0);
            }
            press(QDialogButtonBox::Ok);
        });
        for (const char* const key : {"recording/keepFrames", "recording/spoolLimit"}) {
            QCOMPARE(m_preferences->value(QLatin1String(key)).toInt(), 0);
        }
    }

    // What holds in the program is what the dialog shows, and OK on it changes nothing.
    void okWithoutATouchStoresNothing() {
        whileOpen([&] {
            const QHash<const char*, const char*> boxes{
                {"Group the digits of frame rates", "display/recordRateInsertDelimiter"},
                {"Group the digits of frame numbers", "display/frameInsertDelimiter"},
                {"Keep each recording when it ends", "recording/AutoDownload"},
                {"Save what was kept, by the settings of saving", "recording/AutoSave"},
                {"Offer the trigger test", "recording/useTriggerTest"}};
            for (auto it = boxes.begin(); it != boxes.end(); ++it) {
                QCOMPARE(QVariant(box(it.key())->isChecked()),
                         m_preferences->value(QLatin1String(it.value())));
            }
            // Stored by the panel meanwhile.
            m_preferences->setValue(QStringLiteral("cameraconnection/SearchIP"), QStringLiteral("10.0.0.9"));
            press(QDialogButtonBox::Ok);
        });
        QCOMPARE(m_preferences->keys(), QStringList(QStringLiteral("cameraconnection/SearchIP")));
        QCOMPARE(m_preferences->value(QStringLiteral("cameraconnection/SearchIP")).toString(),
                 QStringLiteral("10.0.0.9"));
    }

    void cancelStoresNothing() {
        m_dialog->setPage(QStringLiteral("s_record"));
        const int result = whileOpen([&] {
            box("Keep each recording when it ends")->setChecked(false);
            press(QDialogButtonBox::Cancel);
        });
        QCOMPARE(result, int(QDialog::Rejected));
        QVERIFY(m_preferences->keys().isEmpty());
    }

    // What another hand stored in between shows at the next opening.
    void openingShowsWhatIsStored() {
        whileOpen([&] { m_dialog->reject(); });
        m_preferences->setValue(QStringLiteral("recording/useTriggerTest"), true);
        whileOpen([&] {
            QVERIFY(box("Offer the trigger test")->isChecked());
            m_dialog->reject();
        });
    }

    void aHalfTypedAddressIsToldAndNotStored() {
        m_preferences->setValue(QStringLiteral("cameraconnection/AddIPDefault"), QStringLiteral("10.0.0.1"));
        m_dialog->setPage(QStringLiteral("s_ethernet"));
        whileOpen([&] {
            const auto edits = m_dialog->findChildren<QLineEdit*>();
            auto* const edit = *std::find_if(edits.begin(), edits.end(), [](const QLineEdit* one) {
                return one->text() == QLatin1String("10.0.0.1");
            });
            edit->selectAll();
            QTest::keyClicks(edit, QStringLiteral("10.0.999.x"));
            QVERIFY(edit->text() != QLatin1String("10.0.999.x"));
            m_dialog->setPage(QStringLiteral("s_io"));
            press(QDialogButtonBox::Ok); // stays, and says why
            QVERIFY(m_dialog->isVisible());
            QCOMPARE(m_dialog->page(), QStringLiteral("s_ethernet"));
            const auto* const notice = m_dialog->findChild<QLabel*>(QStringLiteral("notice"));
            QVERIFY(notice->isVisible() && notice->text().contains(edit->text()));
            press(QDialogButtonBox::Cancel);
        });
        QCOMPARE(m_preferences->value(QStringLiteral("cameraconnection/AddIPDefault")).toString(),
                 QStringLiteral("10.0.0.1"));
    }

    // A file for the names, a folder for what is kept.
    void pathsAreChosenByTheirKind_data() {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("isFile");
        QTest::newRow("names") << QStringLiteral("s_ethernet") << QStringLiteral("File of camera names")
                               << true;
        QTest::newRow("spool") << QStringLiteral("s_record") << QStringLiteral("Folder for kept recordings")
                               << false;
    }

    void pathsAreChosenByTheirKind() {
        QFETCH(QString, page);
        QFETCH(QString, button);
        m_dialog->setPage(page);
        QStringList titles;
        QStringList paths;
        bool isFile = false;
        m_preferences->setValue(QStringLiteral("env/x"), 1); // so that there is a file
        whileOpen([&] {
            QTimer look;
            connect(&look, &QTimer::timeout, &look, [&] {
                if (auto* const files = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
                    isFile = files->fileMode() == QFileDialog::ExistingFile;
                    files->setDirectory(m_folder->path());
                    files->selectFile(isFile ? QStringLiteral("settings.ini") : QString());
                    titles += files->windowTitle();
                    titles.size() == 1 ? static_cast<QDialog*>(files)->accept() : files->reject();
                }
            });
            look.start(10);
            for (QPushButton* const browse : m_dialog->findChildren<QPushButton*>()) {
                if (browse->accessibleName().startsWith(button)) {
                    for (int time = 0; time < 2; ++time) { // the second is canceled
                        browse->click();
                        paths += valueOf(field(button.toLatin1().constData())).toString();
                    }
                }
            }
            m_dialog->reject();
        });
        QCOMPARE(titles, QStringList({button, button}));
        QTEST(isFile, "isFile");
        const QString chosen = m_folder->path() + QLatin1String(isFile ? "/settings.ini" : "");
        QCOMPARE(paths, QStringList({chosen, chosen}));
    }

private:
    int whileOpen(const std::function<void()>& act) {
        QTimer::singleShot(50, m_dialog.get(), [this, act] {
            act();
            if (QTest::currentTestFailed()) {
                m_dialog->reject(); // nobody else closes it then
            }
        });
        return m_dialog->exec();
    }

    /// By its label, its own text or its name.
    QWidget* field(const char* label) {
        for (QWidget* const one : m_dialog->findChildren<QWidget*>()) {
            const auto* const text = qobject_cast<QLabel*>(one);
            const auto* const box = qobject_cast<QCheckBox*>(one);
            if (text && text->buddy() && text->text() == QLatin1String(label)) {
                return text->buddy();
            }
            if ((box && box->text() == QLatin1String(label)) ||
                (qobject_cast<QLineEdit*>(one) && one->accessibleName() == QLatin1String(label))) {
                return one;
            }
        }
        qFatal("there is no field \"%s\"", label);
    }

    static QVariant valueOf(QWidget* field) {
        const auto* const choice = qobject_cast<QComboBox*>(field);
        return choice ? choice->currentData() : field->property(field->metaObject()->userProperty().name());
    }

    /// Gives what it was changed to.
    static QVariant change(QWidget* field) {
        if (auto* const box = qobject_cast<QCheckBox*>(field)) {
            box->toggle();
        } else if (auto* const number = qobject_cast<QSpinBox*>(field)) {
            number->setValue(42);
        } else if (auto* const choice = qobject_cast<QComboBox*>(field)) {
            choice->setCurrentIndex((choice->currentIndex() + 1) % choice->count());
        } else if (auto* const edit = qobject_cast<QLineEdit*>(field)) {
            edit->setText(edit->accessibleName().startsWith(QLatin1String("Address"))
                              ? QStringLiteral("10.0.0.7")
                              : QStringLiteral("/nowhere"));
        }
        return valueOf(field);
    }

    QCheckBox* box(const char* text) {
        for (QCheckBox* const one : m_dialog->findChildren<QCheckBox*>()) {
            if (one->text() == QLatin1String(text)) {
                return one;
            }
        }
        qFatal("there is no box \"%s\"", text);
    }

    void press(QDialogButtonBox::StandardButton which) {
        QTest::mouseClick(m_dialog->findChild<QDialogButtonBox*>()->button(which), Qt::LeftButton);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FilePreferences> m_preferences;
    std::unique_ptr<PreferencesDialog> m_dialog;
};

QTEST_MAIN(TestPreferencesDialog)
#include "tst_preferences_dialog.moc"
