// The items and comments that a user made up: what stays with the camera, and the list itself.
#include "tests/support/Recordings.h"
#include "tests/support/SmallRig.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/KeptItems.h"
#include "viewer/prefs/FilePreferences.h"
#include "viewer/recordings/RecordingCopy.h"
#include "viewer/recordings/RecordingReader.h"

#include <QTemporaryDir>
#include <QtTest>

class tst_KeptItems : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    static CustomItem load() {
        return {QStringLiteral("Load"), QStringLiteral("9 \u00b5"), QStringLiteral("kN"), true, false};
    }

    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

private slots:
    void itemsAndCommentStayWithTheirCamera() {
        FilePreferences preferences(path("settings.ini"));
        {
            SmallRig small;
            const KeptItems kept(small.list, preferences);
            small.camera("Twin", 1)->customItems().add(load());
            small.camera("Twin", 1)->setComment(QStringLiteral("left\nhead"));
            small.list.remove(small.camera("Twin", 1));
            small.list.addCamera(small.body("Twin"));
            QCOMPARE(small.camera("Twin", 1)->customItems().toList(), QVariantList{load().toMap()});
            QVERIFY(small.camera("Twin", 0)->customItems().isEmpty());
            small.camera("Mono")->customItems().add(load());
            small.camera("Colour")->setComment(QStringLiteral("alone")); // it has no items
        }
        SmallRig again;
        const KeptItems kept(again.list, preferences);
        QCOMPARE(again.camera("Mono")->customItems().items().size(), 1);
        QCOMPARE(again.camera("Twin", 1)->customItems().items().size(), 1);
        QCOMPARE(again.camera("Twin", 1)->comment(), QStringLiteral("left\nhead"));
        QCOMPARE(again.camera("Twin", 0)->comment(), QString());
        QCOMPARE(again.camera("Colour")->comment(), QStringLiteral("alone"));
        again.camera("Mono")->customItems().clear();
        QTRY_VERIFY(!preferences.value(QStringLiteral("custominfo/SN-1011.1")).isValid());
        again.camera("Twin", 1)->customItems().remove(QStringLiteral("Load"));
        QTRY_VERIFY(!preferences.value(QStringLiteral("custominfo/SN-1014.2")).isValid());
    }

    // Whoever opens the file next finds what was noted, and the marks of a part stay those of the part.
    void whatIsNotedLaterGoesIntoTheFile() {
        const QString whole = path("whole.rchx");
        const QString part = path("part.rchx");
        const FrameSourcePtr frames = recordingOf(RecordingInfo(), 4, QSize(16, 16));
        RecordingCopy().run(*frames, frames->info(), whole);
        {
            SmallRig small;
            FileDocument* const document =
                small.list.addRecording(std::make_shared<RecordingReader>(whole), whole);
            document->setMarks({1, 3});
            document->setLogoPath(QStringLiteral("/logo.png"));
            document->setComment(QStringLiteral("later"));
            document->customItems().add(load());
            QCOMPARE(document->info().items.items().size(), 1);
            RecordingCopy copy;
            copy.first = 2;
            copy.run(*frames, document->info(), part);
        }
        const RecordingReader reader(whole);
        QCOMPARE(reader.info().comment, QStringLiteral("later"));
        QCOMPARE(reader.info().marks, (QVector<int>{1, 3}));
        QCOMPARE(reader.info().items.items().size(), 1);
        QCOMPARE(reader.info().logoPath, QStringLiteral("/logo.png"));
        QCOMPARE(reader.count(), 4);
        QVERIFY(reader.isWhole());
        {
            SmallRig small;
            FileDocument* const document =
                small.list.addRecording(std::make_shared<RecordingReader>(whole), whole);
            QCOMPARE(document->customItems().toList(), QVariantList{load().toMap()});
            QCOMPARE(document->logoPath(), QStringLiteral("/logo.png"));
            document->setSaved(part, document->notes());
            document->setComment(QStringLiteral("of the part"));
        }
        QCOMPARE(RecordingReader(part).info().comment, QStringLiteral("of the part"));
        QCOMPARE(RecordingReader(part).info().marks, QVector<int>{1});
        QCOMPARE(reader.info().comment, QStringLiteral("later"));
    }

    // Nobody has saved it, and the next start offers it.
    void whatWasAddedStaysWithARecordingInTheSpool() {
        const auto closed = [this](const char* name, const std::function<void(FileDocument&)>& change) {
            const QString spooled = path(name);
            const FrameSourcePtr frames = recordingOf(RecordingInfo(), 2, QSize(16, 16));
            RecordingCopy().run(*frames, frames->info(), spooled);
            {
                SmallRig small;
                FileDocument* const document =
                    small.list.addRecording(std::make_shared<RecordingReader>(spooled));
                document->setSpoolPath(spooled);
                change(*document);
            }
            return RecordingReader(spooled).info();
        };
        const QString comment = QStringLiteral("left\nside");
        QCOMPARE(closed("comment.rchx", [&](FileDocument& it) { it.setComment(comment); }).comment, comment);
        const QString logo = QStringLiteral("/pictures/logo.png");
        QCOMPARE(closed("logo.rchx", [&](FileDocument& it) { it.setLogoPath(logo); }).logoPath, logo);
    }

    void aNameStandsForOneItem() {
        CustomItems items;
        items.add(load());
        items.add({QStringLiteral("Run"), QStringLiteral("1"), QString(), true, true});
        items.rename(QStringLiteral("Run"), QStringLiteral("Load")); // would hide one of the two
        QCOMPARE(items.items().at(0).name, QStringLiteral("Load"));
        QCOMPARE(items.items().at(1).name, QStringLiteral("Run"));
        items.add({QStringLiteral("Run"), QStringLiteral("2"), QString(), true, true});
        QCOMPARE(items.items().size(), 2);
        QCOMPARE(items.items().at(1).value, QStringLiteral("2"));
    }
};

QTEST_GUILESS_MAIN(tst_KeptItems)
#include "tst_kept_items.moc"
