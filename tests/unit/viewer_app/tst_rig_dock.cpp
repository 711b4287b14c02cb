// What one does to the simulated cameras with one's hands.

#include "tests/support/SmallRig.h"
#include "viewer/app/panes/RigDock.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

class TestRigDock : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_small = std::make_unique<SmallRig>();
        m_dock = std::make_unique<RigDock>(m_small->rig);
        m_dock->show();
    }
    void cleanup() {
        m_dock.reset();
        m_small.reset();
    }

    void theListTellsLinkAndState() {
        QCOMPARE(rows().first(), QStringLiteral("Mono Connected Live"));
        QCOMPARE(rows().last(), QStringLiteral("Dummy Dummy "));
        m_dock->select(m_small->body("Dummy"));
        QVERIFY(!button("Trigger pulse").isEnabled());
        m_dock->select(m_small->body("Colour"));
        QCOMPARE(camera(), QStringLiteral("Camera: Colour"));
        button("Unplug").click();
        QVERIFY(!m_small->body("Colour")->isPlugged());
        QTRY_COMPARE(rows().at(1), QStringLiteral("Colour Unplugged Live"));
        button("Plug in").click();
        QVERIFY(m_small->body("Colour")->isConnected());
        m_small->body("Colour")->disconnectLink();
        QTRY_COMPARE(rows().at(1), QStringLiteral("Colour Plugged Live"));
        m_small->body("Colour")->setName(QStringLiteral("A & B"));
        QTRY_COMPARE(camera(), QStringLiteral("Camera: A && B"));
    }

    void powerHeatAndPulseReachTheCamera() {
        SimulatedBody& mono = *m_small->body("Mono");
        button("Switch off").click();
        QCOMPARE(mono.state(), CameraState::Off);
        button("Switch on").click();
        QVERIFY(mono.state() != CameraState::Off);
        const CameraBody* pulsed = nullptr;
        connect(m_dock.get(), &RigDock::triggerPulse, this,
                [&pulsed](const CameraBody* body) { pulsed = body; });
        m_dock->select(m_small->body("Twin"));
        button("Trigger pulse").click();
        QCOMPARE(pulsed, m_small->body("Twin"));
        number("°C").setValue(71);
        QCOMPARE(m_small->body("Twin")->temperature(), 71.0);
        m_small->body("Mono")->set(QStringLiteral("temperature"), 55);
        m_dock->select(&mono);
        QCOMPARE(number("°C").value(), 55.0);
        QCOMPARE(m_small->body("Twin")->temperature(), 71.0);
    }

    void faultsAreSetForTheCameraThatShows() {
        SimulatedBody& mono = *m_small->body("Mono");
        number("ms").setValue(250);
        QCOMPARE(mono.faults().delayMs, 250.0);
        m_dock->findChild<QSpinBox*>()->setValue(3);
        button("Refuse the next commands").click();
        QCOMPARE(mono.faults().refuse, 3);
        QCOMPARE(mono.faults().refuseReason.english(), QStringLiteral("The camera is busy."));
        QCOMPARE(status(), QStringLiteral("The next 3 commands will be refused."));
        check("Unplug during the next command").click();
        check("Phase warning").click();
        QVERIFY(mono.faults().unplugDuringNext && mono.isOutOfPhase());
        m_dock->select(m_small->body("Colour"));
        QCOMPARE(number("ms").value(), 0.0);
        QVERIFY(!check("Unplug during the next command").isChecked());
        QVERIFY(!check("Phase warning").isChecked() && !check("Phase warning").isEnabled()); // it has none
        m_dock->select(&mono);
        QCOMPARE(number("ms").value(), 250.0);
        QVERIFY(check("Unplug during the next command").isChecked());
        QVERIFY(check("Phase warning").isEnabled() && check("Phase warning").isChecked());
        QCOMPARE(m_dock->findChild<QSpinBox*>()->toolTip(), QStringLiteral("How many commands"));
        QVERIFY(button("Trigger pulse").toolTip().startsWith(QLatin1String("A pulse at the trigger socket")));
    }

    void cardsGoInAndOut() {
        const auto slot = [this] { return m_small->body("Mono")->storage()->slot(StorageKind::SDCard, 0); };
        QVERIFY(!slot().inserted && !button("Record on it").isEnabled());
        button("Insert").click();
        QVERIFY(slot().inserted);
        button("Record on it").click();
        button("Record on it").click();
        QCOMPARE(slot().records, 2);
        check("Write protected").click();
        QVERIFY(slot().writeProtected && !button("Record on it").isEnabled());
        m_dock->select(m_small->body("Plain"));
        QVERIFY(!check("Write protected").isVisible());
        m_dock->select(m_small->body("Mono"));
        QVERIFY(check("Write protected").isChecked());
        m_small->body("Mono")->storage()->setProtected(StorageKind::SDCard, 0, false); // at the camera
        m_dock->select(m_small->body("Plain"));
        m_dock->select(m_small->body("Mono"));
        QVERIFY(!check("Write protected").isChecked() && button("Record on it").isEnabled());
        button("Pull").click();
        QVERIFY(!slot().inserted && !check("Write protected").isEnabled());
        QComboBox& cards = *m_dock->findChild<QComboBox*>();
        QCOMPARE(texts(cards), QStringLiteral("SD card 1|SD card 2|DockStore 1|CFast 1"));
        cards.setCurrentIndex(3);
        button("Insert").click();
        QVERIFY(m_small->body("Mono")->storage()->slot(StorageKind::CFast, 0).inserted && !slot().inserted);
        cards.setCurrentIndex(1);
        QVERIFY(!button("Record on it").isEnabled()); // nothing is in this one
        m_dock->select(m_small->body("Colour"));
        QCOMPARE(texts(cards), QStringLiteral("SD card 1"));
    }

    void anotherLanguageLeavesTheCamera() {
        m_dock->select(m_small->body("Plain"));
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(m_dock.get(), &change);
        QCOMPARE(camera(), QStringLiteral("Camera: Plain"));
    }

    void whatTheBackOffersIsPressed() {
        m_dock->select(m_small->body("Twin"));
        SimulatedBody& twin = *m_small->body("Twin");
        for (const char* const name : {"Pair", "Twin"}) {
            twin.setName(QLatin1String(name));
            QTRY_COMPARE(texts(box(0)), QStringLiteral("%1 L|%1 R").arg(QLatin1String(name)));
        }
        box(0).setCurrentIndex(1);
        const auto choose = [this](const char* key) {
            box(1).setCurrentIndex(box(1).findData(QLatin1String(key)));
        };
        choose("rate");
        QVERIFY2(box(2).itemText(0).endsWith(QLatin1String("fps")), qPrintable(box(2).itemText(0)));
        box(2).setCurrentIndex(1);
        const uint rate = box(2).currentData().toUInt();
        button("Press").click();
        QCOMPARE(m_small->head("Twin", 1).settings().rate, rate);
        QVERIFY(m_small->head("Twin", 0).settings().rate != rate);
        QVERIFY(rate != box(2).itemData(0).toUInt());
        QTest::qWait(0); // the camera's change is followed
        QCOMPARE(box(2).currentData().toUInt(), rate);
        choose("shutter");
        QVERIFY2(box(2).itemText(0).contains(QLatin1String("sec")), qPrintable(box(2).itemText(0)));
        m_dock->select(m_small->body("Mono"));
        choose("resolution");
        QVERIFY2(box(2).itemText(0).contains(QLatin1String(" x ")), qPrintable(box(2).itemText(0)));
    }

    void whatTheCameraRefusesIsTold() {
        m_small->body("Mono")->recordReady().result();
        const HeadSettings before = m_small->head("Mono").settings();
        box(2).setCurrentIndex(box(2).count() - 1);
        button("Press").click();
        QVERIFY(m_small->head("Mono").settings().rate == before.rate);
        QVERIFY2(status().startsWith(QLatin1String("settings can't change")), qPrintable(status()));
        check("Phase warning").click();
        QCOMPARE(status(), QString());
    }

    void theListFollowsTheRig() {
        m_dock->select(m_small->body("Plain"));
        m_small->rig.removeBody(m_small->body("Mono"));
        QTRY_COMPARE(rows().size(), 4);
        m_small->rig.addDummy(QStringLiteral("Second"), QStringLiteral("999.999.999.2"));
        QTRY_COMPARE(rows().size(), 5);
    }

private:
    QTreeWidget& list() const { return *m_dock->findChild<QTreeWidget*>(); }
    QStringList rows() const {
        QStringList rows;
        for (int i = 0; i < list().topLevelItemCount(); ++i) {
            const QTreeWidgetItem& row = *list().topLevelItem(i);
            rows.append(QStringLiteral("%1 %2 %3").arg(row.text(0), row.text(1), row.text(2)));
        }
        return rows;
    }
    template <class Button>
    Button& named(const char* text) const {
        for (Button* const button : m_dock->findChildren<Button*>()) {
            if (button->text() == QLatin1String(text)) {
                return *button;
            }
        }
        qFatal("no %s", text);
    }
    QPushButton& button(const char* text) const { return named<QPushButton>(text); }
    QCheckBox& check(const char* text) const { return named<QCheckBox>(text); }
    QDoubleSpinBox& number(const char* unit) const {
        for (QDoubleSpinBox* const box : m_dock->findChildren<QDoubleSpinBox*>()) {
            if (box->suffix() == QLatin1Char(' ') + QString::fromUtf8(unit)) {
                return *box;
            }
        }
        qFatal("no %s", unit);
    }
    static QString texts(const QComboBox& box) {
        QStringList texts;
        for (int i = 0; i < box.count(); ++i) {
            texts += box.itemText(i);
        }
        return texts.join(QLatin1Char('|'));
    }
    /// Head, setting and value.
    QComboBox& box(int index) const {
        for (const QGroupBox* const group : m_dock->findChildren<QGroupBox*>()) {
            if (group->title() == QLatin1String("Buttons on the camera's back")) {
                return *group->findChildren<QComboBox*>().at(index);
            }
        }
        qFatal("no buttons");
    }
    QString camera() const { return m_dock->findChild<QGroupBox*>()->title(); }
    QString status() const { return m_dock->findChild<QLabel*>(QStringLiteral("dim"))->text(); }

    std::unique_ptr<SmallRig> m_small;
    std::unique_ptr<RigDock> m_dock;
};

QTEST_MAIN(TestRigDock)
#include "tst_rig_dock.moc"
