#pragma once

#include "livecontrol/bridge/JS_Mediator_Dialog.h"
#include "livecontrol/interface/types.h"
#include "livecontrol/overlays/notes/RecordChoice.h"

#include <QMap>
#include <QPointer>
#include <QVariantList>
#include <QWidget>
#include <functional>

class DOC_Interface;
class DOC_Settings;

/// The script object `CustomInfoDialog` of the dialog that maintains custom items.
///
/// Targets are document keys, customs maps with name, value, unit (texts) and selected (boolean). A key
/// without a document is skipped. What fails is shown to the user; what was changed before stays.
class JS_Mediator_CustomInfoDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    /// Keeps the items of all documents for cancel(). Throws what the host throws.
    JS_Mediator_CustomInfoDialog(HostObject* host, bool forTemporary);

    void setParentDialog(QWidget* dialog) { m_parentDialog = dialog; }
    /// See GUI_CustomInfoDialog.
    void setCallbackType(int type) { m_callbackType = type; }

public slots:
    /// Gives all documents the items that they had at the start. Closes nothing.
    void cancel();
    /// JSON: the documents, and which of them is the current one.
    QString getDeviceInfo();
    /// JSON: the items of a document.
    QString getCustomInfo(DOCKEY dockey);
    /// Asks for a file, and writes the items to it or gives those in it to the targets.
    void save(const QVariantList& customs);
    void load(const QVariantList& targets);
    void deleteCustomData(const QVariantList& targets, const QVariantList& customs);
    /// Replaces all items. One that is called "Comments" becomes the document's comment instead.
    void restoreCustomData(const QVariantList& targets, const QVariantList& customs);
    /// `custom` has `oldname` besides. What is not on the page stays: where the item is shown and used.
    void editCustomData(const QVariantList& targets, const QVariant& custom);
    void addCustomData(const QVariantList& targets, const QVariant& custom);
    /// Takes over which items are selected.
    void enableCustomData(const QVariantList& targets, const QVariantList& customs);
    void setSelectedDeviceItems(const QList<int>& ids) { m_records.select(ids); }
    int getCurrentDeviceRecord() { return m_records.current(); }
    int getCallbackType() { return m_callbackType; }

private:
    QList<DOCKEY> keys();
    bool isOverlay() const;
    DOC_Settings* settingsOf(DOCKEY key);
    /// Runs for each document of the targets, then tells the tools. Failures end it and are reported.
    void change(const QVariantList& targets, const std::function<void(DOC_Interface&)>& action);
    /// Takes the folder of the last file, and keeps that of the chosen one.
    QString folder();
    void keepFolder(const QString& file);

    QPointer<QWidget> m_parentDialog;
    QMap<QString, QVariantList> m_backup; ///< Items by document key in decimal.
    RecordChoice m_records;
    int m_callbackType;
    bool m_temporary;
};
