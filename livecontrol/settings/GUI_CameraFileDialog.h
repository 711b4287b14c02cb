#pragma once

#include "livecontrol/interface/types.h"
#include "livecontrol/web/GUI_QFileDialog.h"

#include <QMap>
#include <QPixmap>

struct CameraRow;
class QCheckBox;
class QHBoxLayout;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

/// Lets the user bring settings back to the cameras: from a file, or, with a tick, from presets of the
/// cameras.
class GUI_CameraFileDialog : public GUI_QFileDialog {
    Q_OBJECT

public:
    /// Makes the folder if it isn't there. Throws what the host throws.
    GUI_CameraFileDialog(HostObject* host, QWidget* parent, const QString& caption, const QString& folder,
                         const QString& filter);

public slots:
    void on_checkLoadCamera_change(bool check);
    /// Enters a folder, loads a file.
    void accept() override;
    /// Loads the presets that are chosen.
    void on_ok_clicked();
    void on_cancel_clicked();

private:
    void createWidgets();
    void fillList();
    void addRow(const CameraRow& row);
    QList<QRadioButton*> addPresets(QWidget* container, int count, int selected);
    void loadFile(const QString& path);
    /// False if the user takes it back.
    bool loadPresets();
    QMap<DOCKEY, int> chosenPresets() const;
    /// Tells which cameras have to start again; false if the user doesn't want that.
    bool agreesToReboot(const QList<DOCKEY>& keys);
    void loadPreset(DOCKEY key, int preset, bool reboots);
    void logClick(const char* button);

    QPixmap m_icon;
    // Owned by the dialog, as children.
    QCheckBox* m_loadCamera;
    QListWidget* m_cameras;
    QPushButton* m_ok;
    QPushButton* m_cancel;
    QMap<DOCKEY, QList<QRadioButton*>> m_presets; ///< Of each camera 1 to its count, then none.
};
