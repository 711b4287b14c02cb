// The selection, the current document, devices and their heads, modes, removal.
#include "tests/support/SmallRig.h"
#include "viewer/documents/DocumentFace.h"
#include "viewer/documents/FileDocument.h"

#include <QSignalSpy>
#include <QtTest>

namespace {
Clip oneFrame(const QString& name) {
    Clip clip;
    clip.cameraName = name;
    clip.frames = {QImage(8, 4, QImage::Format_Grayscale8)};
    return clip;
}
} // namespace

class tst_DocumentList : public QObject {
    Q_OBJECT

    std::unique_ptr<SmallRig> m;

    QStringList selectedTitles() const {
        QStringList titles;
        for (const Document* const document : m->list.selected()) {
            titles.append(document->title());
        }
        return titles;
    }

    QString currentTitle() const { return m->list.current() ? m->list.current()->title() : QString(); }

    // The steps by which a page selects one head of a device.
    void pickHead(CameraDocument* head) {
        DeviceDocument* const device = head->parentDevice();
        if (!device->isSelected()) {
            m->list.selectKeepCurrent(device);
            device->setActiveHead(head);
            device->headsChanged();
        }
        device->deviceSelected();
    }

private slots:
    void init() { m = std::make_unique<SmallRig>(); }

    void theFirstLinkedCameraIsCurrentAndDevicesAreNotListed() {
        QCOMPARE(currentTitle(), QStringLiteral("Mono"));
        QCOMPARE(selectedTitles(), QStringList{QStringLiteral("Mono")});
        QCOMPARE(m->list.documents().size(), 6); // four heads of one or two, and the dummy
        QCOMPARE(m->list.devices().size(), 5);
        m->list.addAllCameras();
        QCOMPARE(m->list.documents().size(), 6);
    }

    void selectingAddsAndMakesCurrent() {
        m->list.select(m->camera("Colour"));
        QCOMPARE(currentTitle(), QStringLiteral("Colour"));
        m->list.selectKeepCurrent(m->camera("Plain"));
        QCOMPARE(currentTitle(), QStringLiteral("Colour"));
        QCOMPARE(selectedTitles(),
                 (QStringList{QStringLiteral("Mono"), QStringLiteral("Colour"), QStringLiteral("Plain")}));
        QCOMPARE(m->list.selectedCameras().first(), m->camera("Colour")); // the current one leads
    }

    void unselectingTheCurrentOneMovesOnAndTheLastOneStays() {
        m->list.select(m->camera("Colour"));
        m->list.unselect(m->camera("Colour"));
        QCOMPARE(currentTitle(), QStringLiteral("Mono"));
        m->list.unselect(m->camera("Mono"));
        QCOMPARE(currentTitle(), QStringLiteral("Mono"));
        QVERIFY(m->list.selected().isEmpty());
        QCOMPARE(m->list.targetCameras(), QList<CameraDocument*>{m->camera("Mono")});
    }

    void replacingTheSelectionKeepsTheCurrentOneIfItCan() {
        m->select({m->camera("Colour"), m->camera("Mono")});
        QCOMPARE(currentTitle(), QStringLiteral("Mono"));
        QSignalSpy moves(&m->list, &DocumentList::currentChanged);
        m->select({m->camera("Plain"), m->camera("Colour")});
        QCOMPARE(currentTitle(), QStringLiteral("Plain"));
        QCOMPARE(moves.size(), 1);
        QCOMPARE(selectedTitles(), (QStringList{QStringLiteral("Colour"), QStringLiteral("Plain")}));
    }

    void selectingAllLeavesOutWhatHasNoLink() {
        m->body("Plain")->unplug();
        m->list.selectAll();
        QCOMPARE(m->list.selected().size(), 4); // neither the unplugged one nor the dummy
        QCOMPARE(currentTitle(), QStringLiteral("Mono"));
        m->camera("Plain")->setSelected(true); // marked all the same
        QVERIFY(!m->list.selectedCameras().contains(m->camera("Plain")));
    }

    void aLostLinkIsToldAndTheCameraStaysCurrent() {
        QSignalSpy changes(&m->list, &DocumentList::connectionChanged);
        m->body("Mono")->unplug();
        QVERIFY(!changes.isEmpty());
        QCOMPARE(currentTitle(), QStringLiteral("Mono"));
        QVERIFY(m->list.targetCameras().isEmpty());
    }

    void oneHeadOfADeviceIsSelectedAloneThenTheWholeDevice() {
        CameraDocument* const left = m->camera("Twin", 0);
        CameraDocument* const right = m->camera("Twin", 1);
        DeviceDocument* const device = left->parentDevice();
        pickHead(right);
        QVERIFY(right->isSelected() && !left->isSelected() && device->isSelected());
        QCOMPARE(m->list.current(), right);
        QCOMPARE(device->activeHead(), right);
        pickHead(left); // the device is selected already: all of it is meant
        QVERIFY(right->isSelected() && left->isSelected());
    }

    void aDeviceIsSelectedAsLongAsOneOfItsHeadsIs() {
        CameraDocument* const left = m->camera("Twin", 0);
        CameraDocument* const right = m->camera("Twin", 1);
        DeviceDocument* const device = left->parentDevice();
        m->list.select(device);
        device->deviceSelected();
        QVERIFY(left->isSelected() && right->isSelected());
        QCOMPARE(m->list.current(), left); // never the device itself
        m->list.unselect(left);
        device->headsChanged();
        QVERIFY(device->isSelected());
        m->list.unselect(right);
        device->headsChanged();
        QVERIFY(!device->isSelected());
        device->deviceSelected();
        device->deviceUnselected();
        QVERIFY(!left->isSelected() && !right->isSelected() && !device->isSelected());
    }

    void removingAHeadRemovesTheWholeDevice() {
        QStringList removed;
        connect(&m->list, &DocumentList::documentRemoved, this, [&](Document* document) {
            removed.append(document->title());
            QCOMPARE(m->list.find(document->key()), nullptr);
        });
        const DOCKEY key = m->camera("Twin", 1)->key();
        m->list.remove(m->camera("Twin", 0));
        QCOMPARE(removed.size(), 2);
        QCOMPARE(m->list.find(key), nullptr);
        QCOMPARE(m->list.devices().size(), 4);
        m->rig.removeBody(m->body("Mono"));
        QCOMPARE(currentTitle(), QString()); // nothing else was selected
        m->list.removeAll();
        QVERIFY(m->list.allDocuments().isEmpty());
    }

    void fileModeShowsTheRecordingsAndComesBackToTheSameCamera() {
        m->list.select(m->camera("Colour"));
        m->list.addClip(oneFrame(QStringLiteral("first")));
        m->list.setMode(HOST_MODE_FILE);
        QCOMPARE(currentTitle(), QStringLiteral("first"));
        QCOMPARE(m->list.documents().size(), 1);
        QVERIFY(m->list.currentCamera() == nullptr);
        m->list.remove(m->list.current());
        QVERIFY(m->list.current() == nullptr);
        m->list.setMode(HOST_MODE_LIVE);
        QCOMPARE(currentTitle(), QStringLiteral("Colour"));
    }

    void keysAreNotUsedTwice() {
        const DOCKEY first = m->list.addClip(oneFrame(QStringLiteral("a")))->key();
        m->list.remove(m->list.find(first));
        QVERIFY(m->list.addClip(oneFrame(QStringLiteral("b")))->key() != first);
    }
};

QTEST_MAIN(tst_DocumentList)
#include "tst_document_list.moc"
