#include "viewer/app/Options.h"

#include "viewer/messages/Translated.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace {

QCommandLineOption option(const char* name, const char* description, const char* valueName) {
    return {QString::fromLatin1(name), QString::fromLatin1(description), QString::fromLatin1(valueName)};
}

const QCommandLineOption kRig = option("rig", "The cameras, from a rig file (JSON).", "file");
const QCommandLineOption kConsole = option("console", "Listen for JSON-RPC on a local socket.", "path");
const QCommandLineOption kStyle = option("style", "dark or light.", "style");
const QCommandLineOption kLanguage = option("language", "en or ja.", "language");
const QCommandLineOption kScale = option("scale", "Factor of the user interface, from 0.5 to 4.", "factor");
const QCommandLineOption kSettings = option("settings", "Folder of the preferences.", "folder");
const QCommandLineOption kPlugin =
    option("plugin", "The plug-in to load in place of livecontrol.zel.", "file");

OptionsResult wrong(const QString& text) { return {std::nullopt, text, 2}; }

QString oneOf(const QCommandLineParser& parser, const QCommandLineOption& asked, const QStringList& allowed,
              QString& value) {
    value = parser.value(asked);
    if (!parser.isSet(asked) || allowed.contains(value)) {
        return QString();
    }
    return QStringLiteral("--%1 must be %2, not \"%3\".")
        .arg(asked.names().first(), allowed.join(QStringLiteral(" or ")), value);
}

QString readScale(const QCommandLineParser& parser, double& scale) {
    if (!parser.isSet(kScale)) {
        return QString();
    }
    bool ok = false;
    scale = parser.value(kScale).toDouble(&ok);
    return ok && scale >= 0.5 && scale <= 4
               ? QString()
               : QStringLiteral("--scale must be a number from 0.5 to 4, not \"%1\".")
                     .arg(parser.value(kScale));
}

} // namespace

OptionsResult readOptions(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A viewer for high-speed cameras, with simulated ones."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addOptions({kRig, kConsole, kStyle, kLanguage, kScale, kSettings, kPlugin});
    if (!parser.parse(arguments)) {
        return wrong(parser.errorText());
    }
    if (parser.isSet(help)) {
        return {std::nullopt, parser.helpText(), 0};
    }
    if (parser.isSet(version)) {
        return {std::nullopt,
                QCoreApplication::applicationName() + QLatin1Char(' ') +
                    QCoreApplication::applicationVersion(),
                0};
    }
    if (!parser.positionalArguments().isEmpty()) {
        return wrong(QStringLiteral("\"%1\" is no option.").arg(parser.positionalArguments().first()));
    }

    Options options;
    if (parser.isSet(kRig)) {
        options.rig = parser.value(kRig);
    }
    options.console = parser.value(kConsole);
    options.settings = parser.value(kSettings);
    options.plugin = parser.value(kPlugin);
    const QStringList styles{QStringLiteral("dark"), QStringLiteral("light")};
    const QStringList languages{QStringLiteral("en"), QStringLiteral("ja")};
    for (const QString& fault :
         {oneOf(parser, kStyle, styles, options.style), oneOf(parser, kLanguage, languages, options.language),
          readScale(parser, options.scale)}) {
        if (!fault.isEmpty()) {
            return wrong(fault);
        }
    }
    return {options, QString(), 0};
}
