#pragma once

#include "livecontrol/interface/JS_Mediator.h"
#include "viewer/saving/SaveRequest.h"
#include "viewer/saving/SettingsDraft.h"

#include <QMap>
#include <QVariantList>

class DOC_Interface;

/// The script object `saving` of the dialogs that save and open: what only the program can do.
class SavingMediator : public JS_Mediator {
    Q_OBJECT

public:
    /// The name of the widget that holds the page tells what is saved, `moment` the time for all its names.
    SavingMediator(HostObject* host, Preferences& preferences, const QString& parentWidgetName,
                   const QDateTime& moment, SaveFunction save, LayoutPicture layoutPicture);

public slots:
    /// Saves the rows, maps with "dockey" and "partitionno", by the settings. False if that failed; the user
    /// was told.
    bool save(const QVariantList& targets);
    /// What the page stores from here on can be taken back.
    void rememberSettings();
    /// Ends what the last rememberSettings() began: what was stored since then stays, or is given back.
    void settleSettings(bool isAgreed);
    /// Why a movie of that format can't be coded so, in the user's language; empty if it can, and for what is
    /// no movie.
    QString codecRefusal(const QString& format, const QString& codec);
    /// A picture of what the row would become, as PNG in base64, where that is another one than the picture
    /// of its recording with the information; empty otherwise. `targets`: all rows that would be saved with
    /// it.
    QString preview(const QVariantMap& row, const QVariantList& targets, int width, int height);
    /// Under which paths the rows would be saved, without endings.
    QStringList pathsOf(const QVariantList& targets);
    /// How much may still be written to a folder, which may not exist yet, in the user's words.
    QString freeSpace(const QString& folder);
    /// The document that shows; kInvalidDockey for none.
    DOCKEY currentKey();
    /// What saving the rows, as save() takes them, will take up, as digits; "0" for what nobody knows before.
    QString bytesNeeded(const QVariantList& targets);
    /// Whether the rows, as save() takes them, would need more than is free in their folder. Formats that
    /// lose detail need what nobody knows before: false.
    bool lacksRoom(const QVariantList& targets);
    /// Opens files that the user chooses for the dialog; false if he cancels.
    bool openFiles();

private:
    /// Of the partitions of a document.
    struct Paths {
        QMap<PARTITIONNUMBER, QString> folders;
        QMap<PARTITIONNUMBER, QString> paths;
    };

    SaveRequest request(const QVariantList& targets);
    double bytesOf(const QVariantMap& target);
    double bytesOfAll(const SaveRequest& wish, const QVariantList& targets); // 0 for formats that lose detail
    quint32 rateOf(const QVariantMap& target);                               // 0 if it has gone
    Paths compose(int saveType, DOC_Interface* document);

    Preferences& m_preferences;
    QList<SettingsDraft> m_drafts;
    QString m_parentWidgetName;
    QDateTime m_moment;
    SaveFunction m_save;
    LayoutPicture m_layoutPicture;
};
