#pragma once

#include "livecontrol/plugin/PLG_HTML.h"
#include "tests/support/TestRig.h"

#include <functional>

/// A plug-in whose attributes a test sets.
struct TestPlugin : PLG_HTML {
    explicit TestPlugin(HostObject* host) {
        m_name = QStringLiteral("tool");
        m_hasPanel = true;
        init(host);
    }
    using PLG_HTML::m_closeWithPlugin;
    using PLG_HTML::m_exclusiveTool;
    using PLG_HTML::m_hasPanel;
    using PLG_HTML::m_holdLiveWhileOpen;
    using PLG_HTML::m_kind;
    using PLG_HTML::m_modeMask;
    using PLG_HTML::m_name;
    using PLG_HTML::m_quickToolOption;
    using PLG_HTML::m_toolOption;
    GUI_ModelessPatternDialog* createDialog() override { return makeDialog ? makeDialog() : nullptr; }
    bool isAreaEditable(DOC_Interface*) override { return true; }
    std::function<GUI_ModelessPatternDialog*()> makeDialog;
};

/// What the host was told since the last time: operations and arguments, a call a piece.
inline QString told(TestRig& rig) {
    QStringList pieces;
    for (const CallRecorder::Call& call : rig.host.calls.calls()) {
        QString piece = call.name().section(QLatin1Char('.'), 1);
        for (const QVariant& arg : call.args) {
            piece += QLatin1Char(' ') + (arg.type() == QVariant::StringList
                                             ? arg.toStringList().join(QLatin1Char('+'))
                                             : arg.toString());
        }
        pieces.append(piece.trimmed());
    }
    rig.host.calls.clear();
    return pieces.join(QLatin1String("; "));
}
