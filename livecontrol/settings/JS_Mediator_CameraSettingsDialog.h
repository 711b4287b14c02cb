#pragma once

#include "livecontrol/bridge/JS_Mediator_Dialog.h"
#include "livecontrol/interface/types.h"

#include <QMap>
#include <QVariantList>

/// The script object `cameraSettings` of the dialog that keeps the settings of the cameras.
class JS_Mediator_CameraSettingsDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    /// Makes the folder if it isn't there.
    JS_Mediator_CameraSettingsDialog(HostObject* host, const QString& folder);

public slots:
    /// 0 a file, 1 presets of the cameras; of the last ok().
    int getDialogMode();
    /// Both let the user choose; false if he doesn't. The folder is remembered at once.
    bool openFile();
    bool openFolder();
    /// JSON: folder, and the file's name without what is added to it.
    QString getFilePathSettings();
    /// JSON texts, one a camera device: its presets, and which it has in force.
    QVariantList getPresetList();
    /// The time, in English, whatever the user's language.
    QString addDateTime(const QString& format);
    /// JSON: how the file's name is composed.
    QString recvFileNameDialogData();
    void sendFileNameDialogData(const QString& sendData);
    /// `additional`: with time and extension.
    QString getFileName(bool additional = false);
    /// Keeps the settings as the page says. The dialog stays open if the user has to mend something first.
    void ok(const QString& sendData);
    void cancel();

private:
    bool zcsxFunc();
    bool presetFunc();
    bool storePresets();
    /// As getFileName; false if it failed on the way, which the user knows by then. `name` then holds what
    /// there was.
    bool tryFileName(QString& name, bool additional);
    /// The same, but throws.
    void composeFileName(QString& name, bool additional);
    void writeFile(const QString& path);
    /// Tells what is wrong with the name; true if it can be written.
    bool acceptsName(const QString& fileName);
    QString pathOf(const QString& fileName) const;

    int m_dialogMode = 0;
    QMap<DOCKEY, int> m_presets;
    QString m_folder;
    QString m_file;
};
