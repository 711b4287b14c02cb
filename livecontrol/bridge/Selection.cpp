// Which documents are selected, from a page's view.

#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/foundation/DeterUpdateScope.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/JS_Mediator.h"

QVariantList JS_Mediator::getSelectedDockey() {
    return guarded(
        [&] {
            QVariantList texts;
            const QList<DOCKEY> keys = m_host->getSelectedKeys(false);
            for (const DOCKEY key : keys) {
                texts.append(QString::number(key));
            }
            return texts;
        },
        QVariantList());
}

void JS_Mediator::setSelectDoc(const QString& docKey) {
    const DeterUpdateScope deter(m_host);
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator::setSelectDocSub"),
                                      traceArgs({{"docKey", docKey}}));
    guarded([&] {
        bool ok = false;
        const DOCKEY key = docKey.toUInt(&ok);
        if (ok) {
            m_host->setSelection({key}, false);
        }
    });
}

// Without the current key nothing is selected: it could not be made current again.
void JS_Mediator::selectAllDocs() {
    guarded([&] {
        const DOCKEY current = m_host->getCurrentKey();
        const DeterUpdateScope deter(m_host);
        const OperationEventHandler scope(this, QStringLiteral("JS_Mediator::selectAllDocsSub"));
        m_host->selectAll(this);
        if (current != kInvalidDockey) {
            m_host->setCurrentKey(current, true);
        }
    });
}
