#include "viewer/app/PreferencesDialog.h"

#include "viewer/messages/Translated.h"
#include "viewer/prefs/Preferences.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QNetworkInterface>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QSpinBox>
#include <QStackedWidget>

namespace {

// Four numbers from 0 to 255; may be empty.
const char* const kAddressPattern = "^$|^((25[0-5]|2[0-4]\\d|1?\\d?\\d)\\.){3}(25[0-5]|2[0-4]\\d|1?\\d?\\d)$";

QStringList networkAdapters() {
    QStringList lines;
    for (const QNetworkInterface& adapter : QNetworkInterface::allInterfaces()) {
        for (const QNetworkAddressEntry& entry : adapter.addressEntries()) {
            if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol) {
                lines.append(QStringLiteral("%1: %2 / %3")
                                 .arg(adapter.humanReadableName(), entry.ip().toString())
                                 .arg(entry.prefixLength()));
            }
        }
    }
    return lines;
}

} // namespace

PreferencesDialog::PreferencesDialog(Preferences& preferences, QWidget* parent)
    : QDialog(parent), m_preferences(preferences) {
    setMinimumSize(560, 360);
}

PreferencesDialog::~PreferencesDialog() = default;

// Built anew at each opening: the language and the network adapters may be others than the last time.
void PreferencesDialog::build() {
    const int row = m_list ? m_list->currentRow() : 0;
    qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
    delete layout();
    m_fields.clear();
    m_typed.clear();
    m_pages.clear();
    setWindowTitle(translated("Preferences"));
    m_list = new QListWidget;
    m_list->setFixedWidth(140);
    m_list->setAccessibleName(translated("Page"));
    m_stack = new QStackedWidget;
    addInputPage();
    addRecordingPage();
    addEthernetPage();
    addDisplayPage();
    connect(m_list, &QListWidget::currentRowChanged, m_stack, &QStackedWidget::setCurrentIndex);

    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        if (tellsWrong()) {
            return;
        }
        store();
        accept();
        emit applied();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const columns = new QHBoxLayout;
    columns->addWidget(m_list);
    columns->addWidget(m_stack, 1);
    auto* const rows = new QVBoxLayout(this);
    m_notice = new QLabel;
    m_notice->setObjectName(QStringLiteral("notice"));
    m_notice->setTextFormat(Qt::PlainText);
    m_notice->setWordWrap(true);
    m_notice->hide();
    rows->addLayout(columns, 1);
    rows->addWidget(m_notice);
    rows->addWidget(buttons);
    m_list->setCurrentRow(qBound(0, row, m_list->count() - 1));
}

QFormLayout* PreferencesDialog::addPage(const QString& name, const char* title) {
    auto* const page = new QWidget;
    auto* const form = new QFormLayout(page);
    form->setContentsMargins(12, 4, 4, 4);
    form->setVerticalSpacing(10);
    auto* const heading = new QLabel(translated(title));
    heading->setObjectName(QStringLiteral("heading"));
    form->addRow(heading);
    m_list->addItem(translated(title));
    m_stack->addWidget(page);
    m_pages.append({name, title});
    return form;
}

void PreferencesDialog::addCheck(QFormLayout* form, const QString& key, const char* text) {
    auto* const box = new QCheckBox(translated(text));
    form->addRow(box);
    m_fields.append({key, [box](const QVariant& value) { box->setChecked(value.toBool()); },
                     [box] { return QVariant(box->isChecked()); }});
}

void PreferencesDialog::addNumber(QFormLayout* form, const QString& key, const char* label, int min, int max,
                                  const char* unit, const char* none) {
    auto* const box = new QSpinBox;
    box->setRange(min, max);
    box->setSuffix(QLatin1Char(' ') + translated(unit));
    if (none) {
        box->setSpecialValueText(translated(none));
    }
    form->addRow(translated(label), box);
    m_fields.append({key, [box](const QVariant& value) { box->setValue(value.toInt()); },
                     [box] { return QVariant(box->value()); }});
}

void PreferencesDialog::addChoice(QFormLayout* form, const QString& key, const char* label,
                                  const QList<Choice>& choices) {
    auto* const box = new QComboBox;
    for (const Choice& choice : choices) {
        box->addItem(translated(choice.text), choice.value);
    }
    form->addRow(translated(label), box);
    m_fields.append({key,
                     [box](const QVariant& value) { box->setCurrentIndex(qMax(0, box->findData(value))); },
                     [box] { return box->currentData(); }});
}

QLineEdit* PreferencesDialog::newEdit(const char* label, const QString& pattern) {
    auto* const edit = new QLineEdit;
    edit->setAccessibleName(translated(label));
    edit->setValidator(new QRegularExpressionValidator(QRegularExpression(pattern), edit));
    m_typed.append(edit);
    return edit;
}

void PreferencesDialog::addText(QFormLayout* form, const QString& key, const char* label,
                                const QString& pattern) {
    QLineEdit* const edit = newEdit(label, pattern);
    form->addRow(translated(label), edit);
    m_fields.append({key, [edit](const QVariant& value) { edit->setText(value.toString()); },
                     // A half-typed address is none: what was stored stays.
                     [edit] { return edit->hasAcceptableInput() ? QVariant(edit->text()) : QVariant(); }});
}

void PreferencesDialog::addPath(QFormLayout* form, const QString& key, const char* label, PathKind kind) {
    QLineEdit* const edit = newEdit(label, QStringLiteral("|/.*"));
    auto* const browse = new QPushButton(translated("Browse..."));
    browse->setAutoDefault(false);
    browse->setAccessibleName(translated(label) + QLatin1Char(' ') + browse->text());
    const QString title = translated(label);
    connect(browse, &QPushButton::clicked, this, [this, edit, title, kind] {
        const auto options = QFileDialog::DontUseNativeDialog;
        const QString path =
            kind == PathKind::Folder
                ? QFileDialog::getExistingDirectory(this, title, edit->text(),
                                                    options | QFileDialog::ShowDirsOnly)
                : QFileDialog::getOpenFileName(this, title, edit->text(),
                                               QStringLiteral("csv (*.csv);;* (*)"), nullptr, options);
        if (!path.isEmpty()) {
            edit->setText(path);
        }
    });
    auto* const row = new QHBoxLayout;
    row->addWidget(edit, 1);
    row->addWidget(browse);
    form->addRow(title, row);
    m_fields.append({key, [edit](const QVariant& value) { edit->setText(value.toString()); },
                     [edit] { return edit->hasAcceptableInput() ? QVariant(edit->text()) : QVariant(); }});
}

void PreferencesDialog::addInputPage() {
    QFormLayout* const form = addPage(QStringLiteral("s_io"), "I/O");
    addCheck(form, QStringLiteral("io/externalTrigger"), "Accept the external trigger while ready");
}

void PreferencesDialog::addRecordingPage() {
    QFormLayout* const form = addPage(QStringLiteral("s_record"), "Recording settings");
    addCheck(form, QStringLiteral("recording/AutoDownload"), "Keep each recording when it ends");
    addCheck(form, QStringLiteral("recording/AutoSave"), "Save what was kept, by the settings of saving");
    addCheck(form, QStringLiteral("recording/backToLive"), "Go back to live after the recording was kept");
    addCheck(form, QStringLiteral("recording/useTriggerTest"), "Offer the trigger test");
    addNumber(form, QStringLiteral("recording/keepFrames"), "Frames to keep of a recording", 0, 10000000,
              "frames", "All");
    addPath(form, QStringLiteral("recording/spoolFolder"), "Folder for kept recordings", PathKind::Folder);
    addNumber(form, QStringLiteral("recording/spoolLimit"), "Kept recordings take up at most", 0, 1000000,
              "GB", "No limit");
    addNumber(form, QStringLiteral("recording/playbackRate"), "Replay speed", 1, 240, "fps");
}

void PreferencesDialog::addEthernetPage() {
    QFormLayout* const form = addPage(QStringLiteral("s_ethernet"), "Ethernet");
    addText(form, QStringLiteral("cameraconnection/SearchIP"), "Address to search at",
            QLatin1String(kAddressPattern));
    addText(form, QStringLiteral("cameraconnection/AddIPDefault"), "Address offered for a new camera",
            QLatin1String(kAddressPattern));
    addChoice(form, QStringLiteral("cameraconnection/SearchWay"), "Search",
              {{0, "All cameras of the network"}, {1, "At one address"}});
    addPath(form, QStringLiteral("usercustom/cameraNameFilePath"), "File of camera names", PathKind::File);
    auto* const adapters = new QLabel(networkAdapters().join(QLatin1Char('\n')));
    adapters->setTextFormat(Qt::PlainText);
    adapters->setTextInteractionFlags(Qt::TextSelectableByMouse);
    form->addRow(translated("Network adapters"), adapters);
}

void PreferencesDialog::addDisplayPage() {
    QFormLayout* const form = addPage(QStringLiteral("s_display"), "Display");
    addChoice(form, QStringLiteral("env/style"), "Style",
              {{QStringLiteral("dark"), "Dark"}, {QStringLiteral("light"), "Light"}});
    addChoice(form, QStringLiteral("env/language"), "Language",
              {{QStringLiteral("en"), "English"}, {QStringLiteral("ja"), "Japanese"}});
    addChoice(form, QStringLiteral("display/outputLanguage"), "Output language",
              {{0, "Same as operating language"}, {1, "English"}, {2, "Japanese"}});
    addChoice(form, QStringLiteral("display/ShutterSpeed"), "Shutter speed",
              {{1, "As a fraction of a second"}, {2, "As an exposure time"}});
    addCheck(form, QStringLiteral("display/recordRateInsertDelimiter"), "Group the digits of frame rates");
    addCheck(form, QStringLiteral("display/frameInsertDelimiter"), "Group the digits of frame numbers");
    addCheck(form, QStringLiteral("display/DisplayWithRealBitDepth"),
             "Image values in the camera's own bit depth");
    addNumber(form, QStringLiteral("view/cycleSeconds"), "Windows in turn: show each for", 1, 60, "s");
}

void PreferencesDialog::load() {
    for (Field& field : m_fields) {
        field.show(m_preferences.value(field.key));
        field.shown = field.read();
    }
}

// What was typed and can't be taken is shown, with the reason; nothing is stored until it is right.
bool PreferencesDialog::tellsWrong() {
    for (QLineEdit* const edit : qAsConst(m_typed)) {
        if (edit->isModified() && !edit->hasAcceptableInput()) {
            m_list->setCurrentRow(m_stack->indexOf(edit->parentWidget()));
            edit->setFocus();
            edit->selectAll();
            m_notice->setText(
                translated("%1: \"%2\" can't be taken.").arg(edit->accessibleName(), edit->text()));
            m_notice->show();
            return true;
        }
    }
    return false;
}

// What the user left alone is not stored: a factory value stays one, and what somebody else has stored while
// the dialog was open stays as well.
void PreferencesDialog::store() {
    for (const Field& field : qAsConst(m_fields)) {
        const QVariant value = field.read();
        if (value.isValid() && value != field.shown) {
            m_preferences.setValue(field.key, value);
        }
    }
}

void PreferencesDialog::setPage(const QString& page) {
    if (!m_list) {
        build();
    }
    for (int i = 0; i < m_pages.size(); ++i) {
        const auto& [name, title] = m_pages.at(i);
        if (page == name || page == translated(name.toLatin1()) || page == translated(title)) {
            m_list->setCurrentRow(i);
        }
    }
}

QString PreferencesDialog::page() const {
    return m_list ? m_pages.at(m_list->currentRow()).first : QString();
}

int PreferencesDialog::exec() {
    build();
    load();
    return QDialog::exec();
}
