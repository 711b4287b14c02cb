// Every text that the program shows has a Japanese one, and keeps its places for values.

#include "livecontrol/foundation/DeviceOperations.h"
#include "viewer/app/Icons.h"
#include "viewer/app/Language.h"
#include "viewer/messages/Translated.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

namespace {

// Texts that are the same in both languages.
const QSet<QString> kSame{QStringLiteral("fps"), QStringLiteral("OK"),  QStringLiteral("%"),
                          QStringLiteral("AF"),  QStringLiteral("LED"), QStringLiteral("\"%1\": %2")};

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
        texts += found(source,
                       "^\\s*(?:add|command|mode|menu|QMenu\\* const view = menu)\\(\"\\w+\", \"([^\"]*)\"");
        texts +=
            found(source,
                  "add(?:Check|Number|Choice|Text)\\(form, QStringLiteral\\(\"[^\"]*\"\\),\\s*\"([^\"]*)\"");
    }
    return texts;
}

QStringList textsOfPages() {
    QStringList texts;
    for (const char* const folder : {"/livecontrol/resources/pages", "/pagelib/dialogs"}) {
        QDirIterator files(QStringLiteral(SOURCE_DIR) + QLatin1String(folder), {QStringLiteral("*.html")},
                           QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString html = sourceOf(files.next());
            texts += found(html, "class=\"[^\"]*localize[^\"]*\"[^>]*>([^<\\s][^<]*)");
            for (const char* const attribute : {"title", "aria-label", "placeholder"}) {
                texts += found(
                    html, qPrintable(QStringLiteral("class=\"[^\"]*localize[^\"]*\"[^>]* %1=\"([^\"]*)\"")
                                         .arg(QLatin1String(attribute))));
            }
        }
    }
    return texts;
}

/// Titles of the plug-in's dialogs and files.
QStringList textsOfPlugin() {
    QStringList texts;
    QDirIterator files(QStringLiteral(SOURCE_DIR "/livecontrol"), {QStringLiteral("*.cpp")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString source = sourceOf(files.next());
        texts += found(source, "host, QStringLiteral\\(\"([^\"]*)\"\\),\\s*QStringLiteral\\(\"qrc:/");
        texts += found(source, "translate\\(QStringLiteral\\(\"([^\"]*)\"\\), nullptr, 0\\)");
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
        QVERIFY2(pages.size() > 20, "the texts were not found in the page");
        QVERIFY2(plugin.size() > 20, "the texts were not found in the plug-in");
        QSet<QString> all;
        for (const QString& text : viewer + pages + plugin + textsOfOperations()) {
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
};

QTEST_MAIN(TestTexts)
#include "tst_texts.moc"
