#pragma once

#include "livecontrol/bridge/JS_Mediator.h"
#include "viewer/saving/SaveRequest.h"

#include <QMap>
#include <QVariantList>

class DOC_Interface;

/// The script object `saving` of the dialogs that save and open: what only the program can do.
class SavingMediator : public JS_Mediator {
    Q_OBJECT

public:
    /// The name of the widget that holds the page tells what is saved.
    SavingMediator(HostObject* host, const QString& parentWidgetName, SaveFunction save);

public slots:
    /// Saves the rows, maps with "dockey" and "partitionno", by the settings. False if that failed; the user
    /// was told.
    bool save(const QVariantList& targets);
    /// Why a movie of that format can't be coded so, in the user's language; empty if it can, and for what is
    /// no movie.
    QString codecRefusal(const QString& format, const QString& codec);
    /// Opens files that the user chooses for the dialog; false if he cancels.
    bool openFiles();

private:
    /// Of the partitions of a document.
    struct Paths {
        QMap<PARTITIONNUMBER, QString> folders;
        QMap<PARTITIONNUMBER, QString> paths;
    };

    SaveRequest request(const QVariantList& targets);
    Paths compose(int saveType, DOC_Interface* document);

    QString m_parentWidgetName;
    SaveFunction m_save;
};
