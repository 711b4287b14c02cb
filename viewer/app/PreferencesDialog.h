#pragma once

#include "livecontrol/interface/HostApplication.h"

#include <QDialog>

#include <functional>

class Preferences;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QSpinBox;
class QStackedWidget;

/// The preferences dialog. Shows what holds each time it opens and stores what was changed on OK.
class PreferencesDialog : public QDialog, public HostPrefsDialog {
    Q_OBJECT

public:
    explicit PreferencesDialog(Preferences& preferences, QWidget* parent = nullptr);
    ~PreferencesDialog() override;

    /// A page by its name ("s_io", "s_record", "s_ethernet", "s_display") or its title; another text changes
    /// nothing.
    void setPage(const QString& page) override;
    QString page() const;
    /// Runs the dialog modally.
    int exec() override;

signals:
    /// The user has stored his settings.
    void applied();

private:
    /// A control with how it takes a value and gives it.
    struct Field {
        QString key;
        std::function<void(const QVariant&)> show;
        std::function<QVariant()> read;
        QVariant shown{}; // what it gave when the dialog opened
    };
    struct Choice {
        QVariant value;
        const char* text;
    };

    QFormLayout* addPage(const QString& name, const char* title);
    void addCheck(QFormLayout* form, const QString& key, const char* text);
    void addNumber(QFormLayout* form, const QString& key, const char* label, int min, int max,
                   const char* unit, const char* none = nullptr);
    void addChoice(QFormLayout* form, const QString& key, const char* label, const QList<Choice>& choices);
    QLineEdit* newEdit(const char* label, const QString& pattern);
    void addText(QFormLayout* form, const QString& key, const char* label, const QString& pattern);
    enum class PathKind { File, Folder };
    /// Typed, or chosen with a button.
    void addPath(QFormLayout* form, const QString& key, const char* label, PathKind kind);
    void addInputPage();
    void addRecordingPage();
    void addEthernetPage();
    void addDisplayPage();
    void build();
    void load();
    bool tellsWrong();
    void store();

    Preferences& m_preferences;
    QListWidget* m_list = nullptr;
    QStackedWidget* m_stack = nullptr;
    QLabel* m_notice = nullptr;                 // why OK was refused
    QList<QPair<QString, const char*>> m_pages; // name and title
    QList<Field> m_fields;
    QList<QLineEdit*> m_typed; // texts that may be wrong
};
