// The dialog on the information over the image, without its page: lists, styles, and what Cancel brings back.

#include "livecontrol/interface/InfoItems.h"
#include "livecontrol/overlays/info/DisplayList.h"
#include "livecontrol/overlays/info/GUI_EditInfoDialog.h"
#include "tests/support/TestRig.h"
#include "tests/unit/overlays/StoredInfo.h"

#include <QPixmap>
#include <QRandomGenerator>
#include <QtTest>

#include <memory>
#include <stdexcept>

namespace {
const QString kDisplay = QStringLiteral("info/display");

QString itemHtml(const char* key, const char* rest, const char* label, const char* link = "") {
    return QStringLiteral("<li><input type='checkbox' id='%1' %2><label for='%1'>%3</label>%4</li>")
        .arg(QLatin1String(key), QLatin1String(rest), QLatin1String(label), QLatin1String(link));
}
} // namespace

class tst_EditInfo : public QObject {
    Q_OBJECT

    std::unique_ptr<TestRig> m_rig;
    std::unique_ptr<GUI_EditInfoDialog> m_dialog;
    QVariantMap m_prefs;
    int m_mode = HOST_MODE_LIVE;

    /// What was never set may come back as what nothing is read as. A size has no text.
    static bool isSame(const QVariant& was, const QVariant& now) {
        if (now == was || now.type() == QVariant::Size) {
            return now == was;
        }
        const bool isNothing = now == QVariant(false) || now.toString() == QLatin1String("0");
        return now.toString() == was.toString() || (was.toString().isEmpty() && isNothing);
    }
    int updates() { return m_rig->host.calls.count(QStringLiteral("HostApplication.updateAll")); }
    QString display(int group = -1) {
        return m_prefs.value(group < 0 ? kDisplay : QStringLiteral("saveinfo/display%1").arg(group))
            .toString();
    }
    void open(bool saved = false, int saveType = 1) {
        m_dialog = saved ? std::make_unique<GUI_EditInfoDialog>(&m_rig->host, saveType, true, &m_rig->camera,
                                                                3, QList<DOC_Interface*>(), QDateTime())
                         : std::make_unique<GUI_EditInfoDialog>(&m_rig->host);
    }
    /// Another value of each kind for each setting of a group.
    void changeAll(int group) {
        m_dialog->backupFontSettings(group);
        m_dialog->setFontName(QStringLiteral("Other"));
        m_dialog->setFontSize(QStringLiteral("44"));
        m_dialog->setBold(false);
        m_dialog->setItalic(false);
        m_dialog->setForegroundColor(QStringLiteral("#123456"));
        m_dialog->setAlignment(2);
        m_dialog->setWidth(9999);
        m_dialog->setUseBackgroundColor(false);
        m_dialog->setBackgroundColor(QStringLiteral("#654321"));
        m_dialog->setToColumn(false);
        m_dialog->setColumnNum(QStringLiteral("10"));
        m_dialog->setColumnSpacing(30);
        m_dialog->setFixedFontSizeRatio(true);
        m_dialog->setFixedFontSizeRatioBaseResolution(QSize(20, 10));
        m_dialog->setWithinImage(true);
        m_dialog->setDisplayBlankLine(true);
        m_dialog->changeDisp(QStringLiteral("Comment"), false, group);
    }

private slots:
    void init() {
        m_mode = HOST_MODE_LIVE;
        m_prefs = storedInfo();
        m_rig = std::make_unique<TestRig>();
        FakeHost& host = m_rig->host;
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
        host.onRemovePref = [this](const QString& key) { m_prefs.remove(key); };
        host.onGetMode = [this] { return m_mode; };
        host.onIsFileMode = [this] { return m_mode == HOST_MODE_FILE; };
        host.onCurrentDocument = [this]() -> DOC_Interface* { return &m_rig->camera; };
        host.onKeyOfDocument = [](DOC_Interface*) { return TestRig::kKey; };
        host.onGetInfoItemLabel = [](const QString& key) { return key + QStringLiteral(" & co"); };
        host.onTranslate = [](const QString& text, const char*, int) { return text; };
        m_rig->camera.onRenderThumbnail = [](int kind, int width, int height, int, int, QDateTime*) {
            QPixmap picture(width, height);
            picture.fill(QColor(kind, 0, 0));
            return picture;
        };
    }
    void cleanup() {
        m_dialog.reset();
        m_rig.reset();
    }

    // --- The list ---

    void anItemShowsWhatItIsAndWhatItMay() {
        open();
        constexpr char kLink[] =
            "<a href='#' name='editinfo_edit' id='edit_comment' class='float-right localize'>edit...</a>";
        QCOMPARE(
            m_dialog->getInfoSettingsHtml(),
            itemHtml("Comment", "checked='checked'", "Comment &amp; co", kLink) + QStringLiteral("<hr>") +
                itemHtml("RecDateTime", "checked='checked' disabled='disabled'", "RecDateTime &amp; co") +
                itemHtml("Mystery", " disabled='disabled'", "Mystery &amp; co"));
        m_mode = HOST_MODE_FILE;
        QVERIFY(m_dialog->getInfoSettingsHtml().contains(
            itemHtml("RecDateTime", "checked='checked'", "RecDateTime &amp; co")));
        m_rig->host.onDocByKey = [](DOCKEY, bool) -> DOC_Interface* { return nullptr; };
        QCOMPARE(m_dialog->getInfoSettingsHtml(), QString()); // its document has gone
        QCOMPARE(m_dialog->getInfoSettingsHtml(7), QString());
    }

    void textOfThePreferencesIsNoMarkup() {
        m_prefs[kDisplay] = QStringLiteral("'><script>x</script>:true,alone,:,Comment:true:more");
        open();
        const QString html = m_dialog->getInfoSettingsHtml();
        QVERIFY2(html.startsWith(QLatin1String("<li><input type='checkbox' id='&#39;&gt;&lt;script&gt;")) &&
                     !html.contains(QLatin1String("<script")),
                 qPrintable(html));
        QVERIFY(!html.contains(QLatin1String("alone")));
        m_dialog->changeDisp(QStringLiteral("Comment"), false); // stores the entry without a state, too
        QCOMPARE(display(), QStringLiteral("'><script>x</script>:true,alone:,:,Comment:false"));
    }

    void everyItemOfTheTableIsOfferedByItsMode() {
        QStringList keys;
        for (const InfoItem* item = kInfoItems; *item->key; ++item) {
            const bool isSeparator = DisplayList::isSeparator(QLatin1String(item->key));
            keys += isSeparator ? QString() : QLatin1String(item->key) + QStringLiteral(":false");
        }
        QCOMPARE(keys.size(), 39);
        m_prefs[kDisplay] = keys.join(QLatin1Char(','));
        open();
        for (m_mode = HOST_MODE_LIVE; m_mode <= HOST_MODE_FILE + 1; ++m_mode) {
            const QStringList items = m_dialog->getInfoSettingsHtml().split(QStringLiteral("<li>")).mid(1);
            QCOMPARE(items.size(), 30);
            int row = 0;
            for (const InfoItem* item = kInfoItems; *item->key; ++item) {
                if (DisplayList::isSeparator(QLatin1String(item->key))) {
                    continue;
                }
                const bool offered[] = {item->live, item->memory, item->file, false};
                QVERIFY2(items.at(row).contains(QLatin1String("disabled")) != offered[m_mode], item->key);
                ++row;
            }
        }
    }

    void statesOutliveAnotherOrder() {
        open();
        m_dialog->getInfoSettingsHtml();
        m_dialog->changeOrder(QStringLiteral("Mystery,HR,Comment,RecDateTime"));
        QCOMPARE(display(), QStringLiteral("Mystery:false,<hr>,Comment:true,RecDateTime:true"));
        QCOMPARE(updates(), 1);
        m_dialog->changeDisp(QStringLiteral("Mystery"), true);
        QCOMPARE(display(), QStringLiteral("Mystery:true,<hr>,Comment:true,RecDateTime:true"));
        m_dialog->changeOrder(QStringLiteral("New"), 9); // no such group
        QCOMPARE(updates(), 2);
    }

    void aListSurvivesStoring() {
        QRandomGenerator random(5);
        for (int round = 0; round < 200; ++round) {
            QStringList entries;
            DisplayList::States states;
            for (int i = random.bounded(12); i > 0; --i) {
                const QString key = QStringLiteral("Item %1").arg(random.bounded(40));
                states[key] = QLatin1String(random.bounded(2) ? "true" : "false");
                entries += random.bounded(4) ? key : QString(QLatin1String(kInfoSeparator));
            }
            for (QString& entry : entries) {
                entry += DisplayList::isSeparator(entry) ? QString() : QLatin1Char(':') + states.value(entry);
            }
            DisplayList list;
            list.parse(entries.join(QLatin1Char(',')));
            QCOMPARE(list.text(states), entries.join(QLatin1Char(',')));
        }
    }

    void resetBringsTheHostsListBack() {
        m_rig->host.onGetDefaultInfoDisplay = [] { return QStringLiteral("Logo:true"); };
        m_rig->host.onGetPrefDefault = [](const QString& key) {
            return QVariant(key == QLatin1String("info/BlankLine"));
        };
        open();
        m_dialog->reset();
        QCOMPARE(display(), QStringLiteral("Logo:true"));
        QVERIFY(m_dialog->getDisplayBlankLine());
        QCOMPARE(updates(), 1);
        open(true);
        m_dialog->reset();
        for (int group = 0; group < InfoSettings::Groups; ++group) {
            QVERIFY(!m_prefs.contains(QStringLiteral("saveinfo/display%1").arg(group)));
        }
        QCOMPARE(updates(), 1);
    }

    // --- What comes back ---

    void cancelBringsBackWhatWasThere_data() {
        QTest::addColumn<bool>("saved");
        QTest::addColumn<int>("how");
        for (const bool saved : {false, true}) {
            for (int how = 0; how < 3; ++how) {
                QTest::addRow("%s, way %d", saved ? "saved" : "live", how) << saved << how;
            }
        }
    }
    void cancelBringsBackWhatWasThere() {
        QFETCH(bool, saved);
        QFETCH(int, how);
        open(saved);
        m_dialog->setCollectiveSetting(true);
        m_dialog->setCollectiveSetting(false); // the host's store has no value for what was never set
        const QVariantMap before = m_prefs;
        for (int group = saved ? 1 : 0; group < (saved ? InfoSettings::Groups : 1); ++group) {
            m_dialog->getInfoSettingsHtml(group);
            changeAll(group);
        }
        m_dialog->changeOrder(QStringLiteral("Date,Time"),
                              0); // that of a saved view has no style, only items
        QVERIFY(m_prefs != before);
        m_dialog->show();
        const int count = updates();
        if (how == 0) {
            m_dialog->cancel();
        } else if (how == 1) {
            m_dialog->close();
        } else {
            QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
        }
        QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
        QVERIFY(!m_dialog->isVisible());
        QCOMPARE(updates() - count, saved ? 0 : 1);
        for (auto it = m_prefs.cbegin(); it != m_prefs.cend(); ++it) {
            const bool isBlankLine = it.key() == QLatin1String("info/BlankLine"); // of the live family
            QVERIFY2(isSame(before.value(it.key()), it.value()) || (saved && isBlankLine),
                     qPrintable(it.key() + QLatin1Char(' ') + it->toString()));
        }
    }

    void okKeepsWhatWasSet() {
        open();
        changeAll(0);
        const QVariantMap set = m_prefs;
        m_dialog->show();
        m_dialog->ok();
        QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
        QCOMPARE(m_prefs, set);
    }

    void theLiveFamilyHasNothingOfASavedView() {
        open();
        const QStringList keys = m_prefs.keys();
        m_dialog->setCollectiveSetting(true);
        m_dialog->setUseBackgroundColor(true);
        m_dialog->setBackgroundColor(QStringLiteral("#ff0000"));
        m_dialog->setToColumn(true);
        m_dialog->setColumnNum(QStringLiteral("5"));
        m_dialog->setColumnSpacing(5);
        m_dialog->setFixedFontSizeRatio(true);
        m_dialog->setFixedFontSizeRatioBaseResolution(QSize(5, 5));
        m_dialog->setWithinImage(true);
        QCOMPARE(m_prefs.keys(), keys);
        const int before = updates();
        m_dialog->setCollectiveSetting(true);
        QCOMPARE(updates(), before);
        QVERIFY(!m_dialog->isCollectiveSetting() && !m_dialog->getUseBackgroundColor() &&
                !m_dialog->getToColumn() && !m_dialog->isFixedFontSizeRatio() && !m_dialog->getWithinImage());
        QVERIFY(m_dialog->getBackgroundColor().isEmpty() && m_dialog->getColumnNum().isEmpty());
        QCOMPARE(m_dialog->getColumnSpacing(), 0);
        QCOMPARE(m_dialog->getFixedFontSizeRatioBaseResolution(), QSize(-1, -1));
        QCOMPARE(m_dialog->getWidth(), 300);
        m_dialog->setWidth(77, false);
        QCOMPARE(m_prefs.value(QStringLiteral("info/Width")).type(), QVariant::String);
    }

    void theFontDialogsCancelBringsItsOwnBack() {
        open(true);
        QCOMPARE(m_dialog->getFontName(4), QStringLiteral("Sans4"));
        m_dialog->backupFontSettings(2);
        m_dialog->setFontName(QStringLiteral("Other"));
        m_dialog->setWidth(1);
        m_dialog->setCollectiveSetting(true);
        m_dialog->restoreFontSettings();
        QCOMPARE(m_dialog->getFontName(2), QStringLiteral("Sans2"));
        QCOMPARE(m_dialog->getWidth(2), 102);
        QVERIFY(!m_dialog->isCollectiveSetting());
        QVERIFY(!m_prefs.contains(QStringLiteral("saveinfo/IconSize2")));
        const QVariantMap before = m_prefs;
        changeAll(2);
        const QVariantMap changed = m_prefs;
        m_dialog->restoreFontSettings();
        for (auto it = m_prefs.cbegin(); it != m_prefs.cend(); ++it) {
            if (it.key().endsWith(QLatin1Char('2')) && it.key() != QLatin1String("saveinfo/display2")) {
                QVERIFY2(isSame(before[it.key()], *it) && changed[it.key()] != *it, qPrintable(it.key()));
            }
        }
        m_dialog->setFontName(QStringLiteral("Third"));
        m_dialog->writeFontCancel(); // all that the dialog found
        QCOMPARE(m_dialog->getFontName(2), QStringLiteral("Sans2"));
        open();
        m_dialog->backupFontSettings();
        m_dialog->setIconSize(2);
        m_dialog->restoreFontSettings();
        QCOMPARE(m_dialog->getIconSize(), 1);
    }

    void oneSettingForAllLeavesTheOthersOrder() {
        open(true);
        m_rig->camera.onGetImageSize3 = [](int, int, int) { return QSize(640, 480); };
        m_dialog->getInfoSettingsHtml(3);
        changeAll(3);
        m_dialog->writeFontOK();
        QCOMPARE(m_dialog->getFixedFontSizeRatioBaseResolution(3), QSize(640, 480)); // alone, for now
        QCOMPARE(m_dialog->getFixedFontSizeRatioBaseResolution(2), QSize(64, 48));
        m_dialog->backupFontSettings(3);
        m_dialog->setCollectiveSetting(true);
        m_dialog->writeFontOK();
        for (int group = 1; group < InfoSettings::Groups; ++group) {
            QCOMPARE(m_dialog->getFontName(group), QStringLiteral("Other"));
            QCOMPARE(m_dialog->getFixedFontSizeRatioBaseResolution(group), QSize(640, 480));
            QCOMPARE(m_dialog->getColumnSpacing(group), 30);
            QCOMPARE(m_prefs.value(QStringLiteral("saveinfo/ColumnSpacing%1").arg(group)), QVariant(30));
            QCOMPARE(display(group),
                     QStringLiteral("Comment:") + QLatin1String(group == 3 ? "false" : "true"));
        }
        QCOMPARE(m_dialog->getFontName(0), QStringLiteral("Sans0"));
    }

    void theHostHearsOfASavedFont() {
        open(true);
        m_dialog->backupFontSettings(0);
        m_dialog->setFontName(QStringLiteral("A"));
        m_dialog->backupFontSettings(5);
        m_dialog->setFontName(QStringLiteral("B"));
        m_prefs[QStringLiteral("display/language")] = QStringLiteral("ja");
        m_dialog->setFontName(QStringLiteral("C"));
        const QString operation = QStringLiteral("HostApplication.setSaveViewFontName");
        QCOMPARE(m_rig->host.calls.count(operation), 1);
        QCOMPARE(m_rig->host.calls.lastArgs(operation), (QVariantList{QStringLiteral("B"), 4}));
        m_prefs[QStringLiteral("display/language")] = QStringLiteral("en");
        m_dialog->setCollectiveSetting(true);
        m_dialog->writeFontOK(); // to the five others
        QCOMPARE(m_rig->host.calls.count(operation), 6);
        m_dialog->writeFontCancel();
        QCOMPARE(m_rig->host.calls.lastArgs(operation), (QVariantList{QStringLiteral("Sans6"), 5}));
    }

    // --- The picture ---

    void theThumbnailIsThatOfItsOutput() {
        m_rig->camera.onGetImageSize3 = [](int, int, int) { return QSize(32, 16); };
        for (const auto& [saveType, kind] : {std::pair(1, 10), {4, 18}, {6, 11}, {16, 17}}) {
            open(true, saveType);
            const QByteArray png = QByteArray::fromBase64(m_dialog->getThumbnail().toLatin1());
            const QImage image = QImage::fromData(png, "PNG");
            QCOMPARE(image.size(), QSize(32, 16));
            QCOMPARE(qRed(image.pixel(0, 0)), kind);
            QCOMPARE(m_dialog->getThumbnailResolution(), (QList<int>{32, 16}));
            QCOMPARE(m_dialog->onConvertParameterEditDialog(), saveType == 6);
        }
        m_rig->host.onDocByKey = [](DOCKEY, bool) -> DOC_Interface* { return nullptr; };
        QCOMPARE(m_dialog->getThumbnail(), QString());
        QCOMPARE(m_dialog->getThumbnailResolution(), (QList<int>{-1, -1}));
        QCOMPARE(m_dialog->getResolutionStr(), QStringLiteral("Resolution : -1 x -1"));
        m_prefs[QStringLiteral("display/outputLanguage")] = 2;
        QCOMPARE(m_dialog->getExportLanguage(), QStringLiteral("Output Language Setting : Japanese"));
    }

    void aFailingHostEndsNothing() {
        open();
        m_rig->host.onSetPref = [](const QString&, const QVariant&) { throw std::runtime_error("full"); };
        m_dialog->changeDisp(QStringLiteral("Comment"), false);
        m_dialog->setWidth(5);
        QCOMPARE(m_rig->host.calls.count(QStringLiteral("HostApplication.handleError")), 2);
        m_dialog->show();
        m_dialog->cancel();
        QVERIFY(!m_dialog->isVisible());
    }
};

QTEST_MAIN(tst_EditInfo)
#include "tst_edit_info.moc"
