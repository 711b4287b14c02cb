#include "livecontrol/devices/JS_Mediator_DeviceList.h"
#include "livecontrol/plugin/AreaGeometry.h"
#include "livecontrol/plugin/PLG_livecontrol.h"
#include "tests/support/TestRig.h"

#include <QKeyEvent>
#include <QtTest>
#include <random>

using namespace area;

namespace {
const QSize kImage(1280, 1024);

Limits steps(int pos, int size, QSize smallest = {1, 1}, QSize largest = {-1, -1}) {
    Limits limits;
    limits.posStep = {pos, pos};
    limits.sizeStep = {size, size};
    limits.minSize = smallest;
    limits.maxSize = largest;
    return limits;
}
} // namespace

class tst_AreaGeometry : public QObject {
    Q_OBJECT

private slots:
    void roundsHalvesUpward() {
        QCOMPARE(roundHalfUp(1.5), 2);
        QCOMPARE(roundHalfUp(-1.5), -1);
        QCOMPARE(roundHalfUp(-1.6), -2);
    }

    // What a host edits as numbers: limits from the image, the smallest size and a ratio that is kept.
    void propertiesTellValuesAndLimits() {
        PLG_livecontrol plugin;
        AreaPropertiesInput input;
        input.area = QRect(100, 40, 320, 240);
        input.aspectRatio = 2;
        input.zoomRate = 50;
        const auto at = [&](const char* name) {
            return plugin.getAreaProperties(nullptr, kImage, input).value(QLatin1String(name)).toInt();
        };
        const QVariantMap all = plugin.getAreaProperties(nullptr, kImage, input);
        QCOMPARE(all.size(), 23);
        const std::map<const char*, int> numbers{
            {"Width", 320},         {"Height", 240},        {"WidthMax", 1180},      {"HeightMax", 984},
            {"WidthStep", 1},       {"HeightStep", 1},      {"PosX", 100},           {"PosY", 40},
            {"PosXMin", 0},         {"PosYMin", 0},         {"PosXMax", 1280 - 320}, {"PosYMax", 1024 - 240},
            {"PosXStep", 1},        {"PosYStep", 1},        {"AspectRatio", 2},      {"ZoomRate", 50},
            {"CurrentWidth", 1280}, {"CurrentHeight", 1024}};
        for (const auto& [name, value] : numbers) {
            QVERIFY2(at(name) == value, name);
        }
        QVERIFY(at("WidthMin") >= 1 && at("HeightMin") >= 1);
        QCOMPARE(all.value(QStringLiteral("ZoomResolution")).toString(), QStringLiteral("160,120"));
        QCOMPARE(all.value(QStringLiteral("FixAspect")), QVariant(false));
        QCOMPARE(all.value(QStringLiteral("OriginalAspect")), QVariant(false));
        input.fixedAspect = true; // twice as wide as high, within 1180 x 984
        QCOMPARE(QSize(at("WidthMax"), at("HeightMax")), QSize(1180, 590));
        input.aspectRatio = 0.5;
        QCOMPARE(QSize(at("WidthMax"), at("HeightMax")), QSize(492, 984));
        input.zoomRate = 0;
        QCOMPARE(plugin.getAreaProperties(nullptr, kImage, input)
                     .value(QStringLiteral("ZoomResolution"))
                     .toString(),
                 QStringLiteral("1,1"));
    }

    void movesToThePositionGrid() {
        QCOMPARE(constrain(Inside, QRect(12, 12, 50, 50), {}, kImage, steps(8, 1)).topLeft(), QPoint(16, 16));
        QCOMPARE(constrain(Inside, QRect(11, 11, 50, 50), {}, kImage, steps(8, 1)).topLeft(), QPoint(8, 8));
    }

    void stopsAtTheSmallestSizeWhenAnEdgeIsPulledPastTheOther() {
        const QRect before(100, 100, 200, 200);
        const Limits limits = steps(1, 1, {32, 32});
        const QRect stuck = moveEdges(Left, before, QPoint(400, 0), kImage, limits);
        QCOMPARE(stuck, before);
        const QRect least = moveEdges(Left, before, QPoint(before.right() - 31, 0), kImage, limits);
        QCOMPARE(least.width(), 32);
        // A corner moves only if both of its edges may.
        QCOMPARE(moveEdges(TopLeft, before, QPoint(120, 900), kImage, limits), before);
    }

    // Only the edges that are dragged move, however far they are dragged and whatever cuts the size.
    void keepsTheOtherEdges_data() {
        QTest::addColumn<int>("handle");
        const char* const names[] = {"top",      "bottom",    "left",        "right",
                                     "top left", "top right", "bottom left", "bottom right"};
        for (int handle = Top; handle <= BottomRight; ++handle) {
            QTest::newRow(names[handle]) << handle;
        }
    }
    void keepsTheOtherEdges() {
        QFETCH(int, handle);
        const QRect pressed(400, 400, 100, 100);
        const QPoint pos(movesLeft(handle) ? 101 : 797, movesTop(handle) ? 103 : 799);
        const QRect dragged = moveEdges(handle, pressed, pos, kImage, steps(1, 1));
        const struct {
            Limits limits;
            QSize size;
        } kCuts[] = {{steps(1, 1), dragged.size()},
                     {steps(1, 1, {1, 1}, {150, 170}), QSize(150, 170)},
                     {steps(1, 32, {36, 36}, {150, 170}), QSize(132, 164)}};
        for (const auto& [limits, size] : kCuts) {
            const QRect rect = constrain(handle, dragged, pressed, kImage, limits);
            QVERIFY(movesLeft(handle) || rect.left() == pressed.left());
            QVERIFY(movesRight(handle) || rect.right() == pressed.right());
            QVERIFY(movesTop(handle) || rect.top() == pressed.top());
            QVERIFY(movesBottom(handle) || rect.bottom() == pressed.bottom());
            QCOMPARE(rect.width(), handle == Top || handle == Bottom ? pressed.width() : size.width());
            QCOMPARE(rect.height(), handle == Left || handle == Right ? pressed.height() : size.height());
        }
    }

    void movesTheOppositeEdgeInACentredDirection() {
        Limits limits = steps(1, 1, {16, 16});
        limits.centerX = true;
        const QRect moved = moveEdges(Left, QRect(440, 0, 400, 300), QPoint(400, 0), kImage, limits);
        QCOMPARE(moved.left(), 400);
        QCOMPARE(moved.right(), kImage.width() - 1 - 400);
    }

    void constrainingTwiceIsConstrainingOnce() {
        std::mt19937 random(7);
        const auto upTo = [&random](int limit) { return static_cast<int>(random() % unsigned(limit)); };
        for (int i = 0; i < 3000; ++i) {
            const int step = 1 << upTo(5);
            Limits limits = steps(1 << upTo(5), step, {step * (1 + upTo(3)), step * (1 + upTo(3))});
            limits.centerX = upTo(4) == 0;
            limits.centerY = upTo(4) == 0;
            const int handle = upTo(9);
            const QRect rect(upTo(1400) - 60, upTo(1100) - 60, 1 + upTo(1280), 1 + upTo(1024));
            const QRect once = constrain(handle, rect, rect, kImage, limits);
            QCOMPARE(constrain(handle, once, rect, kImage, limits), once);
            QVERIFY2(once.width() >= limits.minSize.width() && once.height() >= limits.minSize.height(),
                     qPrintable(QStringLiteral("case %1").arg(i)));
        }
    }

    void findsTheHandleUnderThePointer_data() {
        QTest::addColumn<int>("degrees");
        QTest::addColumn<bool>("flipA");
        QTest::addColumn<QPoint>("pos");
        QTest::addColumn<int>("handle");
        // The rectangle stands at 100,100 with 100 by 60 pixels in the view.
        QTest::newRow("upright top left") << 0 << false << QPoint(102, 97) << int(TopLeft);
        QTest::newRow("upright left") << 0 << false << QPoint(97, 130) << int(Left);
        QTest::newRow("inside") << 0 << false << QPoint(150, 130) << int(Inside);
        QTest::newRow("outside") << 0 << false << QPoint(80, 130) << int(None);
        QTest::newRow("mirrored left is right") << 0 << true << QPoint(97, 130) << int(Right);
        QTest::newRow("turned left is bottom") << 90 << false << QPoint(97, 130) << int(Bottom);
        QTest::newRow("turned top is left") << 90 << false << QPoint(150, 98) << int(Left);
        QTest::newRow("turned and mirrored left is top") << 90 << true << QPoint(97, 130) << int(Top);
        QTest::newRow("upside down left is right") << 180 << false << QPoint(97, 130) << int(Right);
        QTest::newRow("turned back left is top") << 270 << false << QPoint(97, 130) << int(Top);
    }

    void findsTheHandleUnderThePointer() {
        QFETCH(int, degrees);
        QFETCH(bool, flipA);
        QFETCH(QPoint, pos);
        QFETCH(int, handle);
        QCOMPARE(hitTest(pos, QRect(100, 100, 100, 60), 5, {degrees, flipA, false}), handle);
    }

    void turnsTheArrowKeysWithTheImage_data() {
        QTest::addColumn<int>("degrees");
        QTest::addColumn<bool>("flipA");
        QTest::addColumn<bool>("flipB");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("onImage");
        const int left = Qt::Key_Left;
        const int up = Qt::Key_Up;
        const int right = Qt::Key_Right;
        const int down = Qt::Key_Down;
        QTest::newRow("90 up") << 90 << false << false << up << left;
        QTest::newRow("90 left") << 90 << false << false << left << down;
        QTest::newRow("180 left") << 180 << false << false << left << right;
        QTest::newRow("270 right") << 270 << false << false << right << down;
        QTest::newRow("flip A") << 0 << true << false << left << right;
        QTest::newRow("flip A leaves up") << 0 << true << false << up << up;
        QTest::newRow("flip B at 90") << 90 << false << true << up << right;
        QTest::newRow("another key") << 0 << false << false << int(Qt::Key_A) << 0;
    }

    void turnsTheArrowKeysWithTheImage() {
        QFETCH(int, degrees);
        QFETCH(bool, flipA);
        QFETCH(bool, flipB);
        QFETCH(int, key);
        QFETCH(int, onImage);
        QCOMPARE(arrowOnImage(key, {degrees, flipA, flipB}), onImage);
    }

    void stepsAnEdgeAndStaysWhereItCannotGo() {
        const Limits limits = steps(8, 16, {32, 32});
        const QRect atTheBorder(0, 100, 32, 64);
        QCOMPARE(stepEdge(Qt::Key_Left, false, atTheBorder, kImage, limits), atTheBorder);
        QCOMPARE(stepEdge(Qt::Key_Right, true, atTheBorder, kImage, limits), atTheBorder);
        QCOMPARE(stepEdge(Qt::Key_Right, false, atTheBorder, kImage, limits).width(), 48);
        QCOMPARE(stepEdge(Qt::Key_Down, true, atTheBorder, kImage, limits).height(), 48);
    }

    void turnsTheLimitsWithTheView() {
        TestRig rig;
        PLG_livecontrol plugin;
        plugin.init(&rig.host);
        rig.host.onIsAutoExposureSetting = [] { return true; };
        rig.host.onIsCurrentDocument = [](DOC_Interface*) { return true; };
        rig.camera.onGetImageSize0 = [] { return kImage; };
        rig.camera.onGetImageScale = [] { return 1; };
        rig.camera.onIsAxisSwapped = [] { return true; };
        plugin.setAreaConstraints({2, 4}, {8, 16}, {640, 480}, {32, 64}, false, false);
        const auto press = [&plugin](int key, Qt::KeyboardModifiers modifiers) {
            QKeyEvent event(QEvent::KeyPress, key, modifiers);
            plugin.keyPress(&event);
            return plugin.getArea();
        };
        plugin.setSelectArea(QRect(100, 100, 128, 96));
        QCOMPARE(press(Qt::Key_Right, Qt::NoModifier), QRect(104, 100, 128, 96));
        QCOMPARE(press(Qt::Key_Down, Qt::NoModifier), QRect(104, 102, 128, 96));
        QCOMPARE(press(Qt::Key_Right, Qt::ShiftModifier), QRect(104, 102, 144, 96));
        QCOMPARE(press(Qt::Key_Down, Qt::ShiftModifier), QRect(104, 102, 144, 104));
        plugin.setSelectArea(QRect(0, 0, 480, 640));
        QCOMPARE(press(Qt::Key_Right, Qt::ShiftModifier), QRect(0, 0, 480, 640)); // the largest
        plugin.setSelectArea(QRect(0, 0, 64, 32));
        QCOMPARE(press(Qt::Key_Right, Qt::ShiftModifier | Qt::ControlModifier), QRect(0, 0, 64, 32));
    }

    // The smaller the view shows the image, the further from a line the pointer still catches it.
    void catchesALineByTheZoomOfTheView() {
        TestRig rig;
        PLG_livecontrol plugin;
        plugin.init(&rig.host);
        rig.host.onIsAutoExposureSetting = [] { return true; };
        rig.host.onIsCurrentDocument = [](DOC_Interface*) { return true; };
        rig.camera.onGetImageSize0 = [] { return kImage; };
        rig.camera.onGetImageScale = [] { return 1; };
        rig.camera.onMapRectToView = [](const QRect& area, bool) { return area; };
        rig.camera.onMapViewToImage = [](const QPoint& pos, bool) { return pos; };
        const QRect before(100, 100, 200, 200);
        // The left line that is dragged from beside it follows the pointer; from further away nothing moves.
        const auto isCaught = [&](float zoom, int beside) {
            rig.camera.onGetZoomFactor = [zoom](bool) { return zoom; };
            plugin.setSelectArea(before);
            plugin.mousePress({before.left() - beside, 200}, TestRig::kKey);
            plugin.mouseMove({80, 200}, TestRig::kKey);
            plugin.mouseRelease({80, 200}, TestRig::kKey);
            return plugin.getArea() == QRect(QPoint(80, 100), before.bottomRight());
        };
        for (const auto& [zoom, margin] :
             {std::pair(1.0F, 5), {0.5F, 10}, {2.0F, 2}, {20.0F, 1}, {0.0F, 1}}) {
            QVERIFY2(isCaught(zoom, margin), qPrintable(QString::number(zoom)));
            QVERIFY2(!isCaught(zoom, margin + 1), qPrintable(QString::number(zoom)));
        }
    }

    void leavesDocumentsOfOthersAlone() {
        struct Blind : PLG_livecontrol {
            bool hasDocument(DOCKEY) override { return false; }
        };
        TestRig rig;
        Blind plugin;
        plugin.init(&rig.host);
        plugin.mousePress(QPoint(), TestRig::kKey);
        plugin.mouseMove(QPoint(5, 5), TestRig::kKey);
        plugin.mouseRelease(QPoint(5, 5), TestRig::kKey);
        QVERIFY(!plugin.isDragging());
        QCOMPARE(plugin.getPointerDocKey(), kInvalidDockey);
        for (const char* const call :
             {"HostHistory.beginMacro", "HostHistory.endMacro", "DOC_Geometry.setPointerPos"}) {
            QCOMPARE(rig.host.calls.count(QLatin1String(call)), 0);
        }
    }
};

QTEST_APPLESS_MAIN(tst_AreaGeometry)
#include "tst_area_geometry.moc"
