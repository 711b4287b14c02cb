// Every text that the program shows has a Japanese one, and keeps its places for values.

#include "livecontrol/foundation/DeviceOperations.h"
#include "livecontrol/interface/InfoItems.h"
#include "viewer/app/look/Icons.h"
#include "viewer/app/look/Language.h"
#include "viewer/messages/Translated.h"

#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

namespace {

// Texts that are the same in both languages.
const QSet<QString> kSame{QStringLiteral("fps"),     QStringLiteral("OK"),        QStringLiteral("%"),
                          QStringLiteral("AF"),      QStringLiteral("LED"),       QStringLiteral("LUT"),
                          QStringLiteral("TRG-EXP"), QStringLiteral("\"%1\": %2")};

QString sourceOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList found(const QString& source, const char* pattern) {
    QStringList texts;
    auto matches = QRegularExpression(QString::fromLatin1(pattern), QRegularExpression::MultilineOption)
                       .globalMatch(source);
    while (matches.hasNext()) {
        texts.append(matches.next().captured(1).replace(QLatin1String("\\\""), QLatin1String("\"")));
    }
    return texts;
}

// The sources of the viewer and of its cameras.
QStringList viewerSources(const QStringList& names) {
    QStringList sources;
    for (const char* const folder : {"/viewer", "/simulator"}) {
        QDirIterator files(QStringLiteral(SOURCE_DIR) + QLatin1String(folder), names, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            sources.append(sourceOf(files.next()));
        }
    }
    return sources;
}

QStringList textsOfViewer() {
    QStringList texts;
    for (QString source : viewerSources({QStringLiteral("*.cpp")})) {
        source.remove(QRegularExpression(QStringLiteral("\"\\s*\\n\\s*\""))); // joined literals
        source.replace(QLatin1String("\\u00b0"), QString(QChar(0xb0)));
        texts += found(source, "(?:translated\\(|translate\\(\\s*\"zel4\",\\s*)\"((?:[^\"\\\\]|\\\\.)*)\"");
        texts += found(source, "\\breason\\(\\s*\"((?:[^\"\\\\]|\\\\.)*)\"");
        texts += found(source, "m_actions\\.add\\(named\\(\"\\w+\"\\),\\s*\"([^\"]*)\"");
        texts += found(
            source,
            "^\\s*(?:add|addSaving|command|mode|menu|QMenu\\* const view = menu)\\(\"\\w+\", \"([^\"]*)\"");
        texts +=
            found(source,
                  "add(?:Check|Number|Choice|Text)\\(form, QStringLiteral\\(\"[^\"]*\"\\),\\s*\"([^\"]*)\"");
    }
    return texts;
}

/// The markup of all pages, of the panel and of the dialogs.
QMap<QString, QString> pages() {
    QMap<QString, QString> pages;
    for (const char* const folder : {"/livecontrol/resources", "/pagelib"}) {
        QDirIterator files(QStringLiteral(SOURCE_DIR) + QLatin1String(folder), {QStringLiteral("*.html")},
                           QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            pages.insert(files.fileName(), sourceOf(path));
        }
    }
    return pages;
}

/// What a tag and the text after it say; without the parts that a template fills in.
QStringList wordsOf(const QString& attributes, const QString& text) {
    QStringList words{text};
    for (const char* const attribute : {"title", "aria-label", "placeholder"}) {
        words +=
            found(attributes, qPrintable(QStringLiteral("\\b%1=\"([^\"]*)\"").arg(QLatin1String(attribute))));
    }
    static const QRegularExpression kFilledIn(QStringLiteral("\\{\\{[^}]*\\}\\}|@\\w+@|&\\w+;"));
    static const QRegularExpression kWord(QStringLiteral("[A-Za-z]{2}"));
    QStringList texts;
    for (const QString& word : qAsConst(words)) {
        const QString plain = QString(word).remove(kFilledIn).trimmed();
        if (plain.contains(kWord)) {
            texts.append(plain);
        }
    }
    return texts;
}

/// The texts of a page that its script translates, or those that it leaves alone.
QStringList textsIn(QString html, bool isLocalized) {
    html.remove(QRegularExpression(
        QStringLiteral("<head>.*</head>|<!--.*-->|<(script|style|object)\\b.*</\\1>"),
        QRegularExpression::DotMatchesEverythingOption | QRegularExpression::InvertedGreedinessOption));
    static const QRegularExpression kTag(QStringLiteral("<(/?[a-z]\\w*)([^>]*)>([^<]*)"));
    static const QRegularExpression kMark(QStringLiteral("class=\"[^\"]*\\blocalize\\b"));
    QStringList texts;
    auto tags = kTag.globalMatch(html);
    while (tags.hasNext()) {
        const QRegularExpressionMatch tag = tags.next();
        if (tag.captured(2).contains(kMark) == isLocalized) {
            texts += wordsOf(tag.captured(2), tag.captured(3));
        }
    }
    return texts;
}

QStringList textsOfPages() {
    QStringList texts;
    for (const QString& page : pages()) {
        texts += textsIn(page, true);
    }
    return texts;
}

/// Titles of the plug-in's dialogs and files.
QStringList textsOfPlugin() {
    QStringList texts;
    QDirIterator files(QStringLiteral(SOURCE_DIR "/livecontrol"), {QStringLiteral("*.cpp")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QString source = sourceOf(files.next());
        source.remove(QRegularExpression(QStringLiteral("\"\\s*\\n\\s*\""))); // joined literals
        texts += found(source, "host, QStringLiteral\\(\"([^\"]*)\"\\),\\s*QStringLiteral\\(\"qrc:/");
        texts += found(source, "\\btranslate\\(\\s*QStringLiteral\\(\\s*\"((?:[^\"\\\\]|\\\\.)*)\"");
        texts += found(source, "UTL_Messages::\\w+\\(\\s*QStringLiteral\\(\\s*\"((?:[^\"\\\\]|\\\\.)*)\"");
        if (files.fileName() != QLatin1String("UTL_Messages.cpp")) { // whose names of buttons go to the log
            texts += found(source, "\\{QMessageBox::\\w+, QStringLiteral\\(\"([^\"]*)\"\\)\\}");
        }
    }
    return texts;
}

/// What a camera was to do when it failed, in words.
QStringList textsOfOperations() {
    QStringList texts = deviceOperations().values();
    texts.removeAll(QString());
    texts.removeAll(QStringLiteral("?")); // no words yet
    return texts;
}

} // namespace

class TestTexts : public QObject {
    Q_OBJECT

private slots:
    void everyTextHasAJapaneseOne_data() {
        QTest::addColumn<QString>("text");
        const QStringList viewer = textsOfViewer();
        const QStringList pages = textsOfPages();
        QVERIFY2(viewer.size() > 100, "the texts were not found in the source");
        const QStringList plugin = textsOfPlugin();
        QVERIFY2(pages.size() > 150, "the texts were not found in the pages");
        QVERIFY2(plugin.size() > 20, "the texts were not found in the plug-in");
        QSet<QString> all;
        QStringList items;
        for (const InfoItem* item = kInfoItems; *item->key; ++item) {
            items << QString::fromLatin1(item->label) << QString::fromLatin1(item->shortLabel);
        }
        items.removeAll(QString());
        for (const QString& text : viewer + pages + plugin + textsOfOperations() + items) {
            if (!kSame.contains(text) && !all.contains(text)) {
                all.insert(text);
                QTest::newRow(qPrintable(text)) << text;
            }
        }
    }

    void everyTextHasAJapaneseOne() {
        QFETCH(QString, text);
        Language language;
        language.set(QStringLiteral("ja"));
        const QString japanese = translated(text.toUtf8().constData());
        QVERIFY2(japanese != text, qPrintable(text));
        for (const char* place : {"%1", "%2", "%3"}) {
            QCOMPARE(japanese.contains(QLatin1String(place)), text.contains(QLatin1String(place)));
        }
    }

    // The pages' word and the window's are the same.
    void aWordIsSpeltInOneWay() {
        for (const char* const file : {"/viewer/app/i18n/zelviewer_ja.ts",
                                       "/livecontrol/resources/translations/livecontroltr_ja.ts"}) {
            const QString source = sourceOf(QStringLiteral(SOURCE_DIR) + QLatin1String(file));
            QVERIFY(source.contains(QString::fromUtf8("トリガー")));
            const QRegularExpression other(
                QString::fromUtf8("トリガ(?!ー)[^<]*|[^>]*(?:フォルダー|カメラー|メモリー)[^<]*"));
            QCOMPARE(other.match(source).captured(), QString());
        }
    }

    // A word that no script translates stays English whatever the tables have.
    void everyWordOfAPageIsTranslated() {
        const QMap<QString, QString> all = pages();
        QVERIFY(all.contains(QStringLiteral("livecontrol.html")) &&
                all.contains(QStringLiteral("custominfo.html")));
        QStringList left;
        for (auto page = all.begin(); page != all.end(); ++page) {
            if (page.key() !=
                QLatin1String("livecontrol_progress.html")) { // shows a given text, without a script
                for (const QString& text : textsIn(page.value(), false)) {
                    left.append(page.key() + QStringLiteral(": ") + text);
                }
            }
        }
        QVERIFY2(left.isEmpty(), qPrintable(left.join(QLatin1Char('\n'))));
    }

    // The host shows a message as it gets it.
    void everyMessageOfThePluginIsTranslated() {
        QStringList left;
        int told = 0;
        QDirIterator files(QStringLiteral(SOURCE_DIR "/livecontrol"), {QStringLiteral("*.cpp")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString source = sourceOf(files.next());
            const QString message =
                QStringLiteral("(?<!UTL_Messages::)\\b(?:info|warn|alert|confirm|confirmOkCancel)\\(\\s*%1");
            told +=
                found(source, qPrintable(message.arg(QStringLiteral("(?:\\w+(?:->|\\.))?(translate)\\("))))
                    .size();
            left +=
                found(source, qPrintable(message.arg(QStringLiteral("QStringLiteral\\(\\s*\"([^\"]*)\""))));
        }
        QVERIFY2(told > 5, "the messages were not found in the plug-in");
        QVERIFY2(left.isEmpty(), qPrintable(left.join(QLatin1Char('\n'))));
    }

    // A function that is misspelt on one side would be told without words.
    void everyFunctionThatTheViewerCallsHasWords() {
        QSet<QString> called;
        for (const QString& source : viewerSources({QStringLiteral("*.cpp"), QStringLiteral("*.h")})) {
            for (const QString& name : found(source, "\"(KVF?C_\\w+)\"")) {
                called.insert(name);
            }
        }
        QVERIFY(called.size() > 20);
        for (const QString& name : qAsConst(called)) {
            QVERIFY2(!deviceOperations().value(name).isEmpty(), qPrintable(name));
        }
    }

    void englishWordsTheKeys() {
        Language language;
        language.set(QStringLiteral("en"));
        QCOMPARE(translated("p_livecontrol"), QStringLiteral("Live control"));
        QCOMPARE(translated("Frame rate"), QStringLiteral("Frame rate"));
        language.set(QStringLiteral("ja"));
        language.set(QStringLiteral("no such language"));
        QCOMPARE(language.name(), QStringLiteral("en"));
        QCOMPARE(translated("p_livecontrol"), QStringLiteral("Live control"));
    }

    // An icon with a slip in its path would show as an empty button.
    void everyIconDrawsSomething() {
        QVERIFY(Icons::names().size() > 20);
        for (const QString& name : Icons::names()) {
            const QImage image =
                Icons::get(name).pixmap(48, 48).toImage().convertToFormat(QImage::Format_ARGB32);
            int inked = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    inked += qAlpha(image.pixel(x, y)) > 128 ? 1 : 0;
                }
            }
            QVERIFY2(inked > 60, qPrintable(name));
        }
        QVERIFY(Icons::get(QStringLiteral("no such icon")).isNull());
    }

    void whatCantBeUsedHasNoColours() {
        const auto hasColours = [](QIcon::Mode mode) {
            const QImage image = Icons::get(QStringLiteral("record")).pixmap(48, 48, mode).toImage();
            for (int i = 0; i < 48 * 48; ++i) {
                const QColor color = image.pixelColor(i % 48, i / 48);
                if (color.alpha() > 128 && color.saturation() > 60) {
                    return true;
                }
            }
            return false;
        };
        QVERIFY(hasColours(QIcon::Normal) && !hasColours(QIcon::Disabled));
    }
};

QTEST_MAIN(TestTexts)
#include "tst_texts.moc"
