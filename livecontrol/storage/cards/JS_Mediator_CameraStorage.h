#pragma once

#include "livecontrol/interface/JS_Mediator.h"
#include "livecontrol/interface/types.h"

class DOC_Interface;
class DOC_Settings;

/// What the script objects of a camera's own storage share. They keep nothing: each call asks the camera
/// anew, so a card that was pulled a moment ago is missed by the next call.
///
/// A document that has gone gives the neutral result.
class JS_Mediator_CameraStorage : public JS_Mediator {
    Q_OBJECT

public:
    using JS_Mediator::JS_Mediator;

signals:
    void accepted();
    void rejected();
    void refreshed();

public slots:
    void accept() { emit accepted(); }
    void reject() { emit rejected(); }
    void refresh() { emit refreshed(); }
    /// Asks for a folder, beginning in `dir`. It ends in "/"; a null text if the user cancels.
    QString selectFolder(const QString& dir);

protected:
    DOC_Interface* document(DOCKEY key);

    /// Asks the camera of a document; `neutral` without one and after a failure.
    template <class Ask, class Result>
    Result ask(DOCKEY key, Ask&& question, Result neutral) {
        return guarded(
            [&] {
                DOC_Settings* const camera = settingsOf(key);
                return camera ? Result(question(*camera)) : neutral;
            },
            neutral);
    }

    /// As a page gets a record of a storage, but for its name.
    static QJsonObject recordRow(int recid, uint frames, uint date, uint time);

private:
    DOC_Settings* settingsOf(DOCKEY key);
};
