#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What the command line asks for.
struct Options {
    QString rig = QStringLiteral(":/rigs/default.json");
    QString console;  // path of the socket; empty: none
    QString style;    // "dark" or "light"; empty: what the preferences say
    QString language; // "en" or "ja"; empty: what the preferences say
    double scale = 0; // of the user interface; 0: the screen's own
    QString settings; // folder of the preferences; empty: the user's
    QString plugin;   // module file; empty: livecontrol.zel beside the program
};

/// How reading the command line ended: with options, or with a text to show and a code to exit with.
struct OptionsResult {
    std::optional<Options> options;
    QString text;     // help or version, or what is wrong
    int exitCode = 0; // 0 for help and version, 2 for a wrong command line
};

/// Reads the arguments, the program's name first. Touches nothing but them.
OptionsResult readOptions(const QStringList& arguments);
