// The dialog on the information over the image, without its page: which group a change goes to, when the
// image follows, the dialogs behind its links, the logo, and what is asked of the documents.

#include "livecontrol/interface/InfoItems.h"
#include "livecontrol/overlays/info/GUI_EditInfoDialog.h"
#include "tests/support/ModalAnswer.h"
#include "tests/support/TestRig.h"
#include "tests/unit/overlays/StoredInfo.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QPixmap>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

class tst_InfoSlots : public QObject {
    Q_OBJECT

    std::unique_ptr<TestRig> m_rig;
    std::unique_ptr<FakeCamera> m_other; // under the key 8
    std::unique_ptr<GUI_EditInfoDialog> m_dialog;
    QVariantMap m_prefs;
    bool m_isFileMode = false;

    QVariantList args(const char* operation) { return m_rig->host.calls.lastArgs(QLatin1String(operation)); }
    int count(const char* operation) { return m_rig->host.calls.count(QLatin1String(operation)); }
    int updates() { return count("HostApplication.updateAll"); }
    QVariant stored(const char* key) { return m_prefs.value(QLatin1String(key)); }
    void open(bool saved, int saveType = 1, int partition = 3) {
        m_dialog = saved
                       ? std::make_unique<GUI_EditInfoDialog>(&m_rig->host, saveType, true, &m_rig->camera,
                                                              partition, QList<DOC_Interface*>{m_other.get()},
                                                              QDateTime())
                       : std::make_unique<GUI_EditInfoDialog>(&m_rig->host);
    }
    int updatesBy(const std::function<void(GUI_EditInfoDialog&)>& change) {
        const int before = updates();
        change(*m_dialog);
        return updates() - before;
    }

private slots:
    void init() {
        m_isFileMode = false;
        m_prefs = storedInfo();
        m_rig = std::make_unique<TestRig>();
        FakeHost& host = m_rig->host;
        m_other = std::make_unique<FakeCamera>(host.calls);
        const auto read = [this](const QString& key, const QVariant& none) {
            return m_prefs.value(key, none);
        };
        host.onGetPref = read;
        host.onGetPrefInt = [read](const QString& key, const QVariant& none) {
            return read(key, none).toInt();
        };
        host.onGetPrefBool = [read](const QString& key, const QVariant& none) {
            return read(key, none).toBool();
        };
        host.onSetPref = [this](const QString& key, const QVariant& value) { m_prefs[key] = value; };
        host.onSetPrefBool = [this](const QString& key, bool value) { m_prefs[key] = value; };
        host.onIsFileMode = [this] { return m_isFileMode; };
        host.onTranslate = [](const QString& text, const char*, int) { return text; };
        host.onGetInfoItemLabel = [](const QString& key) { return key; };
        host.onCurrentDocument = [this]() -> DOC_Interface* { return &m_rig->camera; };
        host.onKeyOfDocument = [this](DOC_Interface* document) {
            return document == m_other.get() ? DOCKEY(8) : TestRig::kKey;
        };
        host.onDocByKey = [this](DOCKEY key, bool) -> DOC_Interface* {
            return key == 8 ? m_other.get() : &m_rig->camera;
        };
    }
    void cleanup() {
        m_dialog.reset();
        m_other.reset();
        m_rig.reset();
    }

    void aChangeGoesToTheGroupThatWasReadLast() {
        open(true);
        m_dialog->getFontSize(4);
        m_dialog->setWidth(41);
        m_dialog->getWithinImage(3);
        m_dialog->setWidth(31);
        m_dialog->getInfoSettingsHtml(5);
        m_dialog->setWidth(51);
        for (const int none : {-1, 7}) { // there is no such group
            QVERIFY(!m_dialog->getBold(none) && m_dialog->getInfoSettingsHtml(none).isEmpty());
            m_dialog->getWithinImage(none);
            m_dialog->backupFontSettings(none);
            m_dialog->setFontName(QStringLiteral("Five"));
        }
        QCOMPARE(stored("saveinfo/Width4"), QVariant(QStringLiteral("41")));
        QCOMPARE(stored("saveinfo/Width3"), QVariant(QStringLiteral("31")));
        QCOMPARE(stored("saveinfo/Width5"), QVariant(QStringLiteral("51")));
        QCOMPARE(stored("saveinfo/FontName5"), QVariant(QStringLiteral("Five")));
        QVERIFY(!m_dialog->getWithinImage());
        m_dialog->setWithinImage(true);
        QVERIFY(stored("saveinfo/WithinImage").toBool() && m_dialog->getWithinImage());
    }

    // Once for each step of the user's, and never for what is saved later.
    void theImageFollowsWhereItIsLive() {
        using Dialog = GUI_EditInfoDialog;
        for (const bool saved : {false, true}) {
            open(saved);
            m_dialog->backupFontSettings(saved ? 1 : 0);
            const int once = saved ? 0 : 1;
            QCOMPARE(updatesBy([](Dialog& it) { it.setBold(true, false); }), 0);
            QCOMPARE(updatesBy([](Dialog& it) { it.setBold(true); }), once);
            QCOMPARE(updatesBy([](Dialog& it) { it.setWithinImage(false, false); }), 0);
            QCOMPARE(updatesBy([](Dialog& it) { it.setDisplayBlankLine(true); }), once);
            QVERIFY(stored("info/BlankLine").toBool());
            QCOMPARE(updatesBy([](Dialog& it) { it.restoreFontSettings(); }), once);
            QCOMPARE(updatesBy([](Dialog& it) { it.writeFontCancel(); }), once);
        }
        QCOMPARE(args("HostApplication.updateAll"), (QVariantList{-1, true}));
        open(false);
        const int told = count("HostApplication.setSaveViewFontName");
        m_dialog->setFontName(QStringLiteral("Live"));
        QCOMPARE(count("HostApplication.setSaveViewFontName"), told);
    }

    void whatIsSavedOffersItsOwnItems() {
        QStringList keys;
        for (const InfoItem* item = kInfoItems; *item->key; ++item) {
            if (item->key != QByteArray(kInfoSeparator)) {
                keys += QLatin1String(item->key) + QStringLiteral(":false");
            }
        }
        m_prefs[QStringLiteral("saveinfo/display2")] = keys.join(QStringLiteral(",<hr>,"));
        open(true);
        const QStringList items =
            m_dialog->getInfoSettingsHtml(2).split(QStringLiteral("<hr class='unsortable'>"));
        QCOMPARE(items.size(), keys.size());
        int row = 0;
        for (const InfoItem* item = kInfoItems; *item->key; ++item) {
            if (item->key != QByteArray(kInfoSeparator)) {
                QVERIFY2(items.at(row).contains(QLatin1String("disabled")) != item->saved, item->key);
                ++row;
            }
        }
    }

    void afterAnOkTheListIsReadAndCancelledAnew() {
        open(false);
        m_dialog->getInfoSettingsHtml();
        m_dialog->changeDisp(QStringLiteral("Comment"), false);
        m_dialog->ok();
        QVERIFY(stored("info/display").toString().startsWith(QLatin1String("Comment:false,")));
        m_dialog->getInfoSettingsHtml();
        m_dialog->cancel();
        QCOMPARE(stored("info/display"), storedInfo().value(QStringLiteral("info/display")));
    }

    // The partition of the document counts where none is given.
    void whatIsAskedOfTheDocument() {
        m_rig->camera.onGetPartitionNumber = [](bool device) { return device ? 9 : 2; };
        m_rig->camera.onGetImageSize3 = [](int, int, int) { return QSize(32, 16); };
        m_rig->camera.onRenderThumbnail = [](int, int width, int height, int, int, QDateTime*) {
            return QPixmap(width, height);
        };
        for (const auto& [given, expected] : {std::make_pair(0, 2), {4, 4}}) {
            open(true, 4, given);
            m_dialog->getThumbnail(40, 30);
            QCOMPARE(args("DOC_Geometry.renderThumbnail").mid(0, 5), (QVariantList{18, 40, 30, expected, 0}));
            QCOMPARE(m_dialog->getThumbnailResolution(), (QList<int>{40, 30}));
            m_dialog->getThumbnail();
            QCOMPARE(args("DOC_Save.getImageSize"), (QVariantList{4, expected, 0}));
            QCOMPARE(m_dialog->getThumbnailResolution(), (QList<int>{32, 16}));
        }
        m_dialog->backupFontSettings(1);
        m_dialog->setFixedFontSizeRatio(true);
        m_dialog->writeFontOK();
        QCOMPARE(args("DOC_Save.getImageSize"), (QVariantList{1, 0, 1}));
        const char* const languages[] = {"Same as operating language", "English", "Japanese", ""};
        for (int i = 0; i < 4; ++i) {
            m_prefs[QStringLiteral("display/outputLanguage")] = i;
            QCOMPARE(m_dialog->getExportLanguage(),
                     QStringLiteral("Output Language Setting : ") + QLatin1String(languages[i]));
        }
        open(true, 6);
        QVERIFY(m_dialog->onConvertParameterEditDialog());
        m_isFileMode = true;
        QVERIFY(!m_dialog->onConvertParameterEditDialog());
    }

    void eachLinkOpensItsDialog_data() {
        QTest::addColumn<QByteArray>("slot");
        QTest::addColumn<QString>("dialog");
        const auto row = [](const char* slot, const char* dialog) {
            QTest::newRow(slot) << QByteArray(slot) << QString::fromLatin1(dialog);
        };
        row("editComment", "GUI_CommentDialog");
        row("editCustom", "GUI_CustomInfoDialog");
        row("execTimeCodeSettingDialog", "GUI_TimeCodeCustomDialog");
        row("editShutterDispFormat", "GUI_ShutterSpeedFormatDialog");
        row("editRectimeDispFormat", "GUI_RectimeFormatDialog");
        row("editRecordRateDispFormat", "GUI_RecordRateFormatDialog");
        row("editFrameDispFormat", "GUI_FrameFormatDialog");
    }

    void eachLinkOpensItsDialog() {
        QFETCH(QByteArray, slot);
        QFETCH(QString, dialog);
        for (const bool saved : {false, true}) {
            open(saved);
            int before = -1;
            ModalAnswer<QDialog> answer([&](QDialog& window) {
                before = updates();
                QCOMPARE(QString::fromLatin1(window.metaObject()->className()), dialog);
                window.done(1);
            });
            QVERIFY(QMetaObject::invokeMethod(m_dialog.get(), slot.constData()));
            QVERIFY(answer.seen);
            QCOMPARE(updates() - before, saved ? 0 : 1); // once it is closed
        }
        QCOMPARE(count("HostDocuments.getSelectedKeys") > 0, dialog == QLatin1String("GUI_CustomInfoDialog"));
    }

    void aChosenLogoGoesWhereItShows() {
        QTemporaryDir folder;
        const QString before = folder.filePath(QStringLiteral("before.png"));
        const QString chosen = folder.filePath(QStringLiteral("chosen.png"));
        for (const QString& path : {before, chosen}) {
            QVERIFY(QImage(1, 1, QImage::Format_Mono).save(path));
        }
        m_prefs[QStringLiteral("info/LogoPath")] = m_prefs[QStringLiteral("saveinfo/LogoPath")] = before;
        QStringList paths;
        m_rig->camera.onGetLogoPath = [&] { return before; };
        m_rig->camera.onSetLogoPath = [&](const QString& path) { paths += QStringLiteral("7 ") + path; };
        m_other->onSetLogoPath = [&](const QString& path) { paths += QStringLiteral("8 ") + path; };
        const auto choose = [&](const QString& path) {
            ModalAnswer<QFileDialog> answer([&](QFileDialog& dialog) {
                QCOMPARE(dialog.directory().path(), folder.path());
                QCOMPARE(dialog.windowTitle(), QStringLiteral("Logo Setting"));
                dialog.findChild<QLineEdit*>()->setText(path);
                QMetaObject::invokeMethod(&dialog, path.isEmpty() ? "reject" : "accept");
            });
            m_dialog->setLogoPath();
            QVERIFY(answer.seen);
        };
        for (const bool saved : {false, true}) {
            open(saved);
            const char* const key = saved ? "saveinfo/LogoPath" : "info/LogoPath";
            const int shown = updates();
            choose(QString());
            QVERIFY(stored(key) == before && updates() == shown);
            choose(chosen);
            QCOMPARE(stored(key), QVariant(chosen));
            QCOMPARE(updates() - shown, saved ? 0 : 1);
        }
        QVERIFY(paths.isEmpty());
        m_isFileMode = true; // each file has its own
        m_prefs[QStringLiteral("saveinfo/LogoPath")] = before;
        choose(chosen);
        QCOMPARE(paths, (QStringList{QStringLiteral("7 ") + chosen, QStringLiteral("8 ") + chosen}));
        QCOMPARE(stored("saveinfo/LogoPath"), QVariant(before));
        m_rig->host.onDocByKey = [](DOCKEY, bool) -> DOC_Interface* { return nullptr; };
        m_dialog->setLogoPath(); // of a file that has gone, nothing is asked
    }
};

QTEST_MAIN(tst_InfoSlots)
#include "tst_info_slots.moc"
