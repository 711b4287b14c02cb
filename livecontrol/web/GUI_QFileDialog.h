#pragma once

#include <QFileDialog>

class HostObject;

/// The file picker: Qt's own, with the close of its frame logged. It doesn't ask before a file is
/// overwritten: the caller does.
class GUI_QFileDialog : public QFileDialog {
    Q_OBJECT

public:
    GUI_QFileDialog(QWidget* parent, HostObject* host, const QString& caption, const QString& dir,
                    const QString& filter);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    HostObject* m_host; ///< Not owned.
};
