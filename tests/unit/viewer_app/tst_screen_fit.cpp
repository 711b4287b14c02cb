// Dialogs of a fixed size on screens that are smaller.

#include "viewer/app/look/ScreenFit.h"

#include <QDialog>
#include <QScreen>
#include <QStyle>
#include <QtTest>

class TestScreenFit : public QObject {
    Q_OBJECT

private slots:
    void aDialogIsNoLargerThanTheScreen() {
        ScreenFit fit;
        qApp->installEventFilter(&fit);
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        for (const bool isLarge : {true, false}) {
            QDialog dialog;
            const QSize wanted(510, isLarge ? screen.height() + 60 : 530);
            dialog.setFixedSize(wanted);
            if (isLarge) { // where only a part of it would show
                dialog.move(screen.bottomRight() - QPoint(300, 300));
            }
            dialog.show();
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            QCOMPARE(dialog.width(), wanted.width());
            QCOMPARE(dialog.height() == wanted.height(), !isLarge);
            QVERIFY2(screen.contains(dialog.geometry()), qPrintable(QString::number(dialog.height())));
            const int title = dialog.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &dialog);
            QVERIFY(title > 0 && dialog.height() <= screen.height() - title); // which has its room above it
        }
    }
};

QTEST_MAIN(TestScreenFit)
#include "tst_screen_fit.moc"
