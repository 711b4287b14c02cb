// What the image view does with input, with the plug-in over it, and with a picture that can't be seen.

#include "simulator/device/Rig.h"
#include "tests/support/Recordings.h"
#include "tests/unit/viewer_views/NotingPlugin.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/views/DocumentArea.h"
#include "viewer/views/ImageView.h"
#include "viewer/views/MarkSlider.h"

#include <QSignalSpy>
#include <QTest>

namespace {

/// A drag straight to `view`: QTest's moves the X server's pointer, and its event may come late.
void drag(QWidget* view, QPoint from, QPoint to) {
    QMouseEvent move(QEvent::MouseMove, to, view->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QTest::mousePress(view, Qt::LeftButton, Qt::NoModifier, from);
    QCoreApplication::sendEvent(view, &move);
    QTest::mouseRelease(view, Qt::LeftButton, Qt::NoModifier, to);
}

} // namespace

class TestImageView : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_rig = Rig::load(QStringLiteral(":/rigs/default.json"), Clock::Mode::Stepped);
        m_documents = std::make_unique<DocumentList>(*m_rig, m_calls);
        m_documents->addAllCameras();
        m_documents->setSelection({m_documents->documents().first()});
        m_area =
            std::make_unique<DocumentArea>(*m_documents, m_client, [](const QString&) { return QIcon(); });
        m_area->resize(500, 400);
        m_area->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_area.get()));
        QTRY_VERIFY(view() && view()->isVisible() && !view()->transform().isEmpty());
        m_plugin = std::make_unique<NotingPlugin>();
        m_client.plugin = m_plugin.get();
    }

    void cleanup() {
        m_area.reset();
        m_client.plugin = nullptr;
        m_plugin.reset();
        m_documents.reset();
        m_rig.reset();
    }

    void areaPageGetsTheMouse() {
        const QString key = QString::number(document()->key());
        drag(view(), QPoint(30, 40), QPoint(35, 45));
        QVERIFY(m_plugin->events.contains(QStringLiteral("press 30,40 ") + key));
        QVERIFY(m_plugin->events.contains(QStringLiteral("move 35,45 ") + key));
        QCOMPARE(m_plugin->events.last(), QStringLiteral("release 35,45 ") + key);

        // A second button during the drag does not take it from the plug-in.
        m_plugin->events.clear();
        QTest::mousePress(view(), Qt::LeftButton, Qt::NoModifier, QPoint(30, 40));
        QTest::mouseClick(view(), Qt::MiddleButton, Qt::NoModifier, QPoint(30, 40));
        QVERIFY(m_plugin->events.filter(QStringLiteral("release")).isEmpty());
        QTest::mouseRelease(view(), Qt::LeftButton, Qt::NoModifier, QPoint(30, 40));
        QCOMPARE(m_plugin->events.filter(QStringLiteral("press")).size(), 1);
        QCOMPARE(m_plugin->events.filter(QStringLiteral("release")).size(), 1);
        QTest::keyClick(view(), Qt::Key_Left);
        QCOMPARE(m_plugin->events.last(), QStringLiteral("key %1").arg(Qt::Key_Left));
    }

    void aResizeDrawsOnce() {
        FrameTimer& pacer = m_area->pacer();
        pacer.setPeriod(FrameTimer::LongestPeriodMs);
        QSignalSpy beats(&pacer, &FrameTimer::beat);
        QVERIFY(beats.wait());
        QTRY_VERIFY(m_plugin->paints > 0);
        QCoreApplication::processEvents();
        m_plugin->paints = 0;
        beats.clear();
        view()->resize(view()->size() - QSize(0, 60));
        QTRY_VERIFY(m_plugin->paints > 0);
        QCoreApplication::processEvents();
        QCOMPARE(m_plugin->paints, 1 + beats.count());
        const QRectF shown = view()->transform().imageCorners().boundingRect();
        QVERIFY(QRectF(view()->rect()).adjusted(-1, -1, 1, 1).contains(shown));
    }

    // Each press can be taken back alone, a held key as one.
    void onlyTheRepeatsOfAKeyJoin() {
        m_client.joins.clear();
        for (const bool isRepeat : {false, true, false}) {
            QKeyEvent key(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, QString(), isRepeat);
            QCoreApplication::sendEvent(view(), &key);
        }
        QCOMPARE(m_client.joins, QList<bool>({false, true, false}));
    }

    // Otherwise a drag moves the image, and nothing goes to the plug-in.
    void otherwiseADragMovesTheImage() {
        m_plugin->area = false;
        view()->setZoom(2);
        const QPointF before = view()->transform().originalToView(QPointF(600, 500));
        drag(view(), QPoint(100, 100), QPoint(80, 70));
        QCOMPARE(view()->transform().originalToView(QPointF(600, 500)), before + QPointF(-20, -30));
        QVERIFY(m_plugin->events.isEmpty());
        const QPoint at(200, 150);
        QMouseEvent move(QEvent::MouseMove, at, view()->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(view(), &move);
        QCOMPARE(document()->pointerPos(), view()->transform().pixelAt(at, true));
    }

    void aKeyThatComesUpIsToldOnce() {
        QKeyEvent repeated(QEvent::KeyRelease, Qt::Key_Left, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(view(), &repeated);
        QCOMPARE(m_plugin->keysUp, 0);
        QTest::keyRelease(view(), Qt::Key_Left);
        QCOMPARE(m_plugin->keysUp, 1);
    }

    // The release of a drag whose view went away never comes.
    void dragIsCancelledWithTheView() {
        QTest::mousePress(view(), Qt::LeftButton, Qt::NoModifier, QPoint(30, 40));
        view()->hide();
        QVERIFY(m_plugin->events.last().startsWith(QStringLiteral("cancel")));
    }

    void dragEndsWithTheLinkOfItsOwnCamera() {
        CameraBody* const own = document()->body();
        const QList<SimulatedBody*> bodies = m_rig->bodies();
        const auto other =
            std::find_if(bodies.begin(), bodies.end(), [own](CameraBody* body) { return body != own; });
        QTest::mousePress(view(), Qt::LeftButton, Qt::NoModifier, QPoint(30, 40));
        (*other)->unplug();
        QVERIFY(m_plugin->events.filter(QStringLiteral("cancel")).isEmpty());
        own->disconnectLink();
        QVERIFY(m_plugin->events.last().startsWith(QStringLiteral("cancel")));
    }

    // The shape that the plug-in gave to the pointer is the whole program's.
    void thePointerIsGivenBackByAViewThatGoes() {
        QMouseEvent move(QEvent::MouseMove, QPoint(35, 45), view()->mapToGlobal(QPoint(35, 45)), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view(), &move);
        QCOMPARE(m_plugin->leaves, 0);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(view(), &leave);
        QCOMPARE(m_plugin->leaves, 1);
        QCoreApplication::sendEvent(view(), &move);
        view()->hide();
        QCOMPARE(m_plugin->leaves, 2);
    }

    // The release goes to the window that the user has gone to.
    void dragIsCancelledWhenTheWindowLosesTheFocus() {
        const auto leave = [this](Qt::FocusReason reason) {
            QFocusEvent event(QEvent::FocusOut, reason);
            QCoreApplication::sendEvent(view(), &event);
        };
        QTest::mousePress(view(), Qt::LeftButton, Qt::NoModifier, QPoint(30, 40));
        leave(Qt::PopupFocusReason); // a menu of this window
        QVERIFY(m_plugin->events.filter(QStringLiteral("cancel")).isEmpty());
        leave(Qt::ActiveWindowFocusReason);
        QVERIFY(m_plugin->events.last().startsWith(QStringLiteral("cancel")));
        m_plugin->events.clear();
        QTest::mouseRelease(view(), Qt::LeftButton, Qt::NoModifier, QPoint(30, 40));
        QVERIFY(m_plugin->events.isEmpty());

        m_plugin->area = false; // the same for a picture that is moved
        view()->setZoom(2);
        const QPointF before = view()->transform().center();
        QTest::mousePress(view(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
        leave(Qt::ActiveWindowFocusReason);
        QMouseEvent move(QEvent::MouseMove, QPoint(60, 60), view()->mapToGlobal(QPoint(60, 60)), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view(), &move);
        QCOMPARE(view()->transform().center(), before);
    }

    void aSecondPressIsAPressWhereAnAreaIsEdited() {
        QSignalSpy doubled(view(), &ImageView::doubleClicked);
        const auto pressTwice = [this] {
            const QPoint at(30, 40);
            QTest::mouseClick(view(), Qt::LeftButton, Qt::NoModifier, at);
            QMouseEvent second(QEvent::MouseButtonDblClick, at, view()->mapToGlobal(at), Qt::LeftButton,
                               Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(view(), &second);
            QTest::mouseRelease(view(), Qt::LeftButton, Qt::NoModifier, at);
        };
        pressTwice();
        QCOMPARE(m_plugin->events.filter(QStringLiteral("press")).size(), 2);
        QCOMPARE(m_plugin->events.filter(QStringLiteral("release")).size(), 2);
        QCOMPARE(doubled.count(), 0);
        m_plugin->area = false;
        m_plugin->events.clear();
        pressTwice();
        QVERIFY(m_plugin->events.isEmpty());
        QCOMPARE(doubled.count(), 1);
    }

    void failuresOfThePluginStayInside() {
        m_plugin->throws = true;
        QTest::ignoreMessage(QtCriticalMsg, "Input on the image failed: press");
        QTest::mousePress(view(), Qt::LeftButton, Qt::NoModifier, QPoint(30, 40));
        m_plugin->paints = 0;
        view()->refresh();
        QTRY_VERIFY(m_plugin->paints > 0);
        m_plugin->throws = false;
    }

    void overlayIsPaintedForTheDocument() {
        QTRY_VERIFY(m_plugin->paints > 0);
        QCOMPARE(m_plugin->painted, document()->face());
    }

    void hiddenViewCostsNothing() {
        QTRY_VERIFY(m_plugin->paints > 0);
        m_area->hide();
        QCoreApplication::processEvents();
        m_plugin->paints = 0;
        QSignalSpy beats(&m_area->pacer(), &FrameTimer::beat);
        QTRY_VERIFY(beats.count() >= 5);
        QCOMPARE(m_plugin->paints, 0);

        // One slow picture delays one beat.
        FrameTimer& pacer = m_area->pacer();
        QList<int> intervals;
        QObject listener;
        connect(&pacer, &FrameTimer::beat, &listener, [&] { intervals += pacer.interval(); });
        pacer.spent(50 * 1000000);
        QTRY_VERIFY(intervals.size() >= 2);
        QCOMPARE(intervals.mid(0, 2), QList<int>({100, FrameTimer::PeriodMs}));
    }

    // The document knows where its image lies, for whoever maps a point.
    void documentIsToldWhereTheImageLies() {
        view()->setZoom(1);
        QCOMPARE(document()->view().imageToView, view()->transform().originalToViewTransform());
        ViewState turned = document()->view();
        turned.quarterTurns = 1;
        document()->setView(turned);
        QCOMPARE(document()->view().imageToView, view()->transform().originalToViewTransform());
        QVERIFY(view()->transform().isAxisSwapped());
    }

    void zoomIsToldInPixelsOfTheOriginal() {
        const double before = view()->originalZoom();
        ViewState binned = document()->view();
        binned.binning = 1;
        document()->setView(binned);
        QVERIFY(qAbs(view()->originalZoom() - before) < 0.01); // fitted: it looks as large as before
        view()->setOriginalSize();
        QCOMPARE(view()->originalZoom(), 1.0);
        QCOMPARE(view()->transform().zoom(), 2.0);
    }

    void marksStandOnTheSliderAndAreReachedByAKey() {
        m_documents->setMode(HOST_MODE_FILE);
        FileDocument* const file = m_documents->addRecording(recordingOf(RecordingInfo(), 50, QSize(64, 48)));
        m_documents->setCurrent(file);
        m_plugin->area = false;
        QTRY_VERIFY(view() && view()->isVisible());
        MarkSlider* slider = nullptr;
        for (MarkSlider* const each : m_area->findChildren<MarkSlider*>()) {
            slider = each->isVisible() ? each : slider;
        }
        QVERIFY(slider);
        const auto colorAt = [&](int frame) {
            return slider->grab().toImage().pixelColor(slider->placeOf(frame), 0);
        };
        const QColor plain = colorAt(30);
        file->setMarks({10, 30});
        QVERIFY(colorAt(30) != plain && colorAt(10) == colorAt(30) && colorAt(20) == plain);
        QVERIFY2(slider->toolTip().contains(QStringLiteral("11, 31")), qPrintable(slider->toolTip()));
        file->setMarks({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
        QVERIFY2(slider->toolTip().contains(QString::fromUtf8("11, 12, …. N")),
                 qPrintable(slider->toolTip()));
        file->setMarks({10, 30});
        for (const auto& [modifiers, frame] :
             QList<QPair<Qt::KeyboardModifiers, int>>{{Qt::NoModifier, 10},
                                                      {Qt::NoModifier, 30},
                                                      {Qt::NoModifier, 10},
                                                      {Qt::ShiftModifier, 30},
                                                      {Qt::ShiftModifier, 10}}) {
            QTest::keyClick(view(), Qt::Key_N, modifiers);
            QCOMPARE(file->playPosition(), frame);
        }
        // The same whether the image or the slider has the keyboard.
        QTest::keyClick(slider, Qt::Key_N);
        QCOMPARE(file->playPosition(), 30);
        QTest::keyClick(view(), Qt::Key_Left);
        QTest::keyClick(slider, Qt::Key_M);
        QCOMPARE(file->marks(), (QVector<int>{10, 29, 30}));
        QTest::keyClick(view(), Qt::Key_Home);
        QCOMPARE(file->playPosition(), 0);
        QTest::keyClick(view(), Qt::Key_PageUp);
        QCOMPARE(file->playPosition(), slider->pageStep());
        QTest::keyClick(view(), Qt::Key_Right);
        QTest::keyClick(view(), Qt::Key_PageDown);
        QCOMPARE(file->playPosition(), 1);
        QTest::keyClick(view(), Qt::Key_End);
        QCOMPARE(file->playPosition(), 49);
        QTest::keyClick(view(), Qt::Key_M, Qt::ControlModifier);
        QTest::keyClick(view(), Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(file->playPosition(), 49);
        QCOMPARE(file->marks().size(), 3);
        file->setMarks({});
        QTest::keyClick(view(), Qt::Key_N);
        QCOMPARE(file->playPosition(), 49);
    }

    // However small it shows, and with rows that are longer than their pixels.
    void aPlugInThatCountsReadsAllPixels() {
        m_documents->setMode(HOST_MODE_FILE);
        m_client.reads = m_plugin->reads = true;
        for (const bool isWide : {false, true}) {
            QImage image(1201, 20, isWide ? QImage::Format_Grayscale16 : QImage::Format_Grayscale8);
            image.fill(0);
            RecordingInfo info;
            info.bitDepth = isWide ? 16 : 8;
            image.setPixelColor(1200, 19, Qt::white);
            m_documents->setCurrent(
                m_documents->addRecording(std::make_shared<FrameList>(info, QVector<QImage>{image})));
            QTRY_VERIFY(m_plugin->painted == document()->face() && m_plugin->size.isValid());
            QCOMPARE(m_plugin->size, QSize(1201, 20));
            QVERIFY(m_plugin->bins.value(0) == 1201U * 20 - 1 && m_plugin->bins.value(255) == 1U);
            QCOMPARE(m_plugin->corner, isWide ? 65535 : -1);
        }
        m_client.reads = false;
    }

    void windowsFollowTheSelection() {
        const QList<Document*> all = m_documents->documents();
        m_documents->setSelection({all[0], all[1]});
        m_documents->setCurrent(all[1]);
        QCOMPARE(m_area->windowKeys(true), (QList<DOCKEY>{all[1]->key(), all[0]->key()}));
        QTRY_VERIFY(m_area->view(all[1]->key()));
        m_area->setArrangement(DocumentArea::Arrangement::Single);
        QCOMPARE(m_area->windowKeys(true), QList<DOCKEY>{all[1]->key()});
        QCOMPARE(m_area->windowKeys(false).size(), 2);
        m_area->setBusyText(kInvalidDockey, QStringLiteral("All of them"));
        m_area->setBusyText(all[1]->key(), QStringLiteral("Updating"));
        QCOMPARE(m_area->busyText(), QStringLiteral("All of them"));
        m_area->setBusyText(kInvalidDockey, QString());
        const QSignalSpy busy(m_area.get(), &DocumentArea::busyTextChanged);
        m_documents->remove(all[1]);
        QCOMPARE(busy.count(), 1);
        QCOMPARE(busy.first().first().toString(), QString()); // nobody else would take it back
        QTRY_COMPARE(m_area->windowKeys(true), QList<DOCKEY>{all[0]->key()});
        QCoreApplication::processEvents();
        QVERIFY(m_area->view(all[0]->key()));
    }

    void aPressMakesCurrentAndTwoShowOneAlone() {
        const QList<Document*> all = m_documents->documents();
        m_documents->setSelection({all[0], all[1]});
        m_documents->setCurrent(all[0]);
        m_plugin->area = false;
        QTRY_VERIFY(m_area->view(all[1]->key()) && m_area->view(all[1]->key())->isVisible());
        QTest::mouseClick(m_area->view(all[1]->key()), Qt::LeftButton);
        QCOMPARE(m_documents->current(), all[1]);
        QTest::mouseDClick(m_area->view(all[0]->key()), Qt::LeftButton);
        QCOMPARE(m_documents->current(), all[0]);
        QCOMPARE(m_area->arrangement(), DocumentArea::Arrangement::Single);
        QTest::mouseDClick(m_area->view(all[0]->key()), Qt::LeftButton);
        QCOMPARE(m_area->arrangement(), DocumentArea::Arrangement::Tile);
    }

    void cyclingShowsOneAfterTheOther() {
        const QList<Document*> all = m_documents->documents();
        m_documents->setSelection({all[0], all[1]});
        m_area->setCycling(1);
        const DOCKEY first = m_documents->currentKey();
        QTRY_VERIFY_WITH_TIMEOUT(m_documents->currentKey() != first, 3000);
        QCOMPARE(m_area->windowKeys(true).size(), 1);
        QVERIFY(m_area->isCycling());
        m_area->setCycling(0);
        QVERIFY(!m_area->isCycling());
    }

private:
    Document* document() { return m_documents->current(); }
    ImageView* view() { return m_area->currentView(); }

    NotingClient m_client;
    std::unique_ptr<Rig> m_rig;
    CallRecorder m_calls;
    std::unique_ptr<DocumentList> m_documents;
    std::unique_ptr<DocumentArea> m_area;
    std::unique_ptr<NotingPlugin> m_plugin;
};

QTEST_MAIN(TestImageView)
#include "tst_image_view.moc"
