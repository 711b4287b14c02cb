#pragma once

#include "livecontrol/interface/JS_Mediator.h"

class PLG_Interface;

/// The mediator of a plug-in's panel: hands the panel's life cycle on to the plug-in and undo to the host.
class JS_Mediator_Plugin : public JS_Mediator {
    Q_OBJECT

public:
    /// `plugin` is not owned, may be null, and must outlive the mediator.
    JS_Mediator_Plugin(HostObject* host, const QString& name, PLG_Interface* plugin);

public slots:
    virtual QString name();
    virtual QString uiName();
    virtual void onOpen();
    virtual void onApply();
    virtual void onOK();
    virtual void onCancel();
    /// The reset runs with the live image suspended.
    virtual void onReset();
    virtual void onClose();
    virtual void onClosed();
    virtual void undo();
    virtual void redo();
    virtual void beginMacro();
    virtual void endMacro();
    virtual bool isCurrentDummy();
    virtual QString getCurrentWindowTitle();

protected:
    PLG_Interface* plugin() const { return m_plugin; }

private:
    template <class Call>
    void onPlugin(Call&& call) {
        guarded([&] {
            if (m_plugin) {
                call(*m_plugin);
            }
        });
    }

    PLG_Interface* m_plugin;
};
