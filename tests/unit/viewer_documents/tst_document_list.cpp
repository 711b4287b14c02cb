// The selection, the current document, devices and their heads, modes, removal.
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "tests/support/Recordings.h"
#include "tests/support/SmallRig.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/adapters/DocumentAdapter.h"

#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

namespace {
FrameSourcePtr oneFrame(const QString& name) {
    return recordingOf({QImage(8, 4, QImage::Format_Grayscale8)}, name);
}
} // namespace

class tst_DocumentList : public QObject {
    Q_OBJECT

    std::unique_ptr<SmallRig> m_small;

    QStringList selectedTitles() const {
        QStringList titles;
        for (const Document* const document : m_small->list.selected()) {
            titles.append(document->title());
        }
        return titles;
    }

    QString currentTitle() const {
        return m_small->list.current() ? m_small->list.current()->title() : QString();
    }

    // The steps by which a page selects one head of a device.
    void pickHead(CameraDocument* head) {
        DeviceDocument* const device = head->parentDevice();
        if (!device->isSelected()) {
            m_small->list.selectKeepCurrent(device);
            device->setActiveHead(head);
            device->headsChanged();
        }
        device->deviceSelected();
    }

private slots:
    void init() { m_small = std::make_unique<SmallRig>(); }

    void theFirstLinkedCameraIsCurrentAndDevicesAreNotListed() {
        QCOMPARE(currentTitle(), QStringLiteral("Mono"));
        QCOMPARE(selectedTitles(), QStringList{QStringLiteral("Mono")});
        QCOMPARE(m_small->list.documents().size(), 6); // four heads of one or two, and the dummy
        QCOMPARE(m_small->list.devices().size(), 5);
        m_small->select({m_small->camera("Colour")});
        m_small->list.addAllCameras();
        QCOMPARE(m_small->list.documents().size(), 6);
        QCOMPARE(currentTitle(), QStringLiteral("Colour")); // the user's choice stays
    }

    void selectingAddsAndMakesCurrent() {
        m_small->list.select(m_small->camera("Colour"));
        QCOMPARE(currentTitle(), QStringLiteral("Colour"));
        m_small->list.selectKeepCurrent(m_small->camera("Plain"));
        QCOMPARE(currentTitle(), QStringLiteral("Colour"));
        QCOMPARE(selectedTitles(),
                 (QStringList{QStringLiteral("Mono"), QStringLiteral("Colour"), QStringLiteral("Plain")}));
        QCOMPARE(m_small->list.selectedCameras().first(), m_small->camera("Colour")); // the current one leads
    }

    void unselectingTheCurrentOneMovesOnAndTheLastOneStays() {
        m_small->list.select(m_small->camera("Colour"));
        m_small->list.selectKeepCurrent(m_small->camera("Plain"));
        m_small->list.unselect(m_small->camera("Plain")); // another one
        QCOMPARE(currentTitle(), QStringLiteral("Colour"));
        m_small->list.unselect(m_small->camera("Colour"));
        QCOMPARE(currentTitle(), QStringLiteral("Mono"));
        m_small->list.unselect(m_small->camera("Mono"));
        QCOMPARE(currentTitle(), QStringLiteral("Mono"));
        QVERIFY(m_small->list.selected().isEmpty());
        QCOMPARE(m_small->list.targetCameras(), QList<CameraDocument*>{m_small->camera("Mono")});
    }

    void replacingTheSelectionKeepsTheCurrentOneIfItCan() {
        m_small->select({m_small->camera("Colour"), m_small->camera("Mono")});
        QCOMPARE(currentTitle(), QStringLiteral("Mono"));
        QSignalSpy moves(&m_small->list, &DocumentList::currentChanged);
        m_small->select({m_small->camera("Plain"), m_small->camera("Colour")});
        QCOMPARE(currentTitle(), QStringLiteral("Plain"));
        QCOMPARE(moves.size(), 1);
        QCOMPARE(selectedTitles(), (QStringList{QStringLiteral("Colour"), QStringLiteral("Plain")}));
    }

    void selectingAllLeavesOutWhatHasNoLink() {
        m_small->body("Plain")->unplug();
        m_small->list.selectAll();
        QCOMPARE(m_small->list.selected().size(), 4); // neither the unplugged one nor the dummy
        QCOMPARE(currentTitle(), QStringLiteral("Mono"));
        m_small->camera("Plain")->setSelected(true); // marked all the same
        QVERIFY(!m_small->list.selectedCameras().contains(m_small->camera("Plain")));
    }

    void aLostLinkIsToldAndTheCameraStaysCurrent() {
        QSignalSpy changes(&m_small->list, &DocumentList::connectionChanged);
        m_small->body("Mono")->unplug();
        QVERIFY(!changes.isEmpty());
        QCOMPARE(currentTitle(), QStringLiteral("Mono"));
        QVERIFY(m_small->list.targetCameras().isEmpty());
    }

    void oneHeadOfADeviceIsSelectedAloneThenTheWholeDevice() {
        CameraDocument* const left = m_small->camera("Twin", 0);
        CameraDocument* const right = m_small->camera("Twin", 1);
        DeviceDocument* const device = left->parentDevice();
        pickHead(right);
        QVERIFY(right->isSelected() && !left->isSelected() && device->isSelected());
        QCOMPARE(m_small->list.current(), right);
        QCOMPARE(device->activeHead(), right);
        pickHead(left); // the device is selected already: all of it is meant
        QVERIFY(right->isSelected() && left->isSelected());
    }

    void aDeviceIsSelectedAsLongAsOneOfItsHeadsIs() {
        CameraDocument* const left = m_small->camera("Twin", 0);
        CameraDocument* const right = m_small->camera("Twin", 1);
        DeviceDocument* const device = left->parentDevice();
        m_small->list.select(device);
        device->deviceSelected();
        QVERIFY(left->isSelected() && right->isSelected());
        QCOMPARE(m_small->list.current(), left); // never the device itself
        m_small->camera("Mono")->setSelected(false);
        m_small->list.unselect(left);
        device->headsChanged();
        QVERIFY(device->isSelected());
        QCOMPARE(device->activeHead(), right); // which is current now
        m_small->list.unselect(right);
        device->headsChanged();
        QVERIFY(!device->isSelected());
        device->deviceSelected();
        device->setActiveHead(right);
        device->deviceUnselected();
        QCOMPARE(device->activeHead(), left);
        QVERIFY(!left->isSelected() && !right->isSelected() && !device->isSelected());
    }

    // A window of a plug-in, or its worker, may hold a document that is closed meanwhile.
    void whatIsRemovedLivesAsLongAsAWindowMayHoldIt() {
        m_small->list.setKeepingRemoved(true);
        const QPointer<Document> mono = m_small->camera("Mono");
        m_small->list.remove(mono);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(mono);
        QCOMPARE(m_small->list.find(mono->key()), nullptr);
        m_small->list.setKeepingRemoved(false);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!mono);
    }

    void removingAHeadRemovesTheWholeDevice() {
        QStringList removed;
        connect(&m_small->list, &DocumentList::documentRemoved, this, [&](Document* document) {
            removed.append(document->title());
            QCOMPARE(m_small->list.find(document->key()), nullptr);
        });
        const DOCKEY key = m_small->camera("Twin", 1)->key();
        m_small->list.remove(m_small->camera("Twin", 0));
        QCOMPARE(removed.size(), 2);
        QCOMPARE(m_small->list.find(key), nullptr);
        QCOMPARE(m_small->list.devices().size(), 4);
        m_small->rig.removeBody(m_small->body("Mono"));
        QCOMPARE(currentTitle(), QString()); // nothing else was selected
        m_small->list.removeAll();
        QVERIFY(m_small->list.allDocuments().isEmpty());
    }

    void fileModeShowsTheRecordingsAndComesBackToTheSameCamera() {
        m_small->list.select(m_small->camera("Colour"));
        m_small->list.addRecording(oneFrame(QStringLiteral("first")));
        m_small->list.setMode(HOST_MODE_FILE);
        QCOMPARE(currentTitle(), QStringLiteral("first"));
        QCOMPARE(m_small->list.documents().size(), 1);
        QVERIFY(m_small->list.currentCamera() == nullptr);
        m_small->list.remove(m_small->list.current());
        QVERIFY(m_small->list.current() == nullptr);
        m_small->list.setMode(HOST_MODE_LIVE);
        QCOMPARE(currentTitle(), QStringLiteral("Colour"));
    }

    void playingEndsWithItsMode() {
        FileDocument* const file = m_small->list.addRecording(recordingOf({}, 4, QSize(4, 4)));
        m_small->list.setMode(HOST_MODE_FILE);
        file->setLooping(true);
        file->setPlayPosition(3);
        file->setPlaying(true);
        QCOMPARE(file->playPosition(), 3); // goes round from here
        m_small->list.setMode(HOST_MODE_LIVE);
        QVERIFY(!file->isPlaying());
        file->setLooping(false);
        file->setPlaying(true);
        QCOMPARE(file->playPosition(), 0); // it had come to its end
    }

    // Where one looked at a recording says nothing of the next, or of another partition.
    void aNewRecordingBeginsAtItsBegin() {
        SimulatedBody& body = *m_small->body("Mono");
        CameraDocument& mono = *m_small->camera("Mono");
        for (int shot = 0; shot < 2; ++shot) {
            body.recordReady().result();
            m_small->rig.clock().advanceMs(body.model().readyTimeMs + 50);
            body.triggerIn().result();
            m_small->rig.clock().advanceMs(60000);
            QCOMPARE(mono.playPosition(), 0);
            mono.setPlayPosition(7);
            QCOMPARE(mono.playPosition(), 7);
            body.goLive().result();
        }
        body.setPartition(2).result();
        docAs<DOC_Settings>(mono.face()).refreshPartition(false);
        QCOMPARE(mono.playPosition(), 0);
    }

    void keysAreNotUsedTwice() {
        const DOCKEY first = m_small->list.addRecording(oneFrame(QStringLiteral("a")))->key();
        m_small->list.remove(m_small->list.find(first));
        QVERIFY(m_small->list.addRecording(oneFrame(QStringLiteral("b")))->key() != first);
    }
};

QTEST_MAIN(tst_DocumentList)
#include "tst_document_list.moc"
