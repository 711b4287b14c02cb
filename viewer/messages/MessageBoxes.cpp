#include "viewer/messages/MessageBoxes.h"

#include "viewer/messages/Translated.h"

#include <QAbstractButton>
#include <QDebug>
#include <QFile>

namespace {

// A list longer than this goes on behind the "details" button, so that a box never grows past the screen.
constexpr int kShownLines = 12;

QString styleSheet(bool dark) {
    QFile file(dark ? QStringLiteral("://ui-messageBox-dark.css")
                    : QStringLiteral("://ui-messageBox-light.css"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString textWithList(const QString& text, const QStringList& lines) {
    if (lines.isEmpty()) {
        return text;
    }
    QString result = text + QLatin1Char('\n');
    for (const QString& line : lines.mid(0, kShownLines)) {
        result += QStringLiteral("\n  \u2022 ") + line;
    }
    if (lines.size() > kShownLines) {
        result += QStringLiteral("\n  ") + translated("... and %1 more").arg(lines.size() - kShownLines);
    }
    return result;
}

} // namespace

MessageBoxes::MessageBoxes(Surroundings surroundings, QObject* parent)
    : QObject(parent), m_surroundings(std::move(surroundings)) {}

QMessageBox::StandardButton MessageBoxes::show(const Box& content, QWidget* parent) {
    if (!parent && m_surroundings.parent) {
        parent = m_surroundings.parent();
    }
    QMessageBox box(content.icon, content.title, QString(), content.buttons, parent);
    box.setTextFormat(Qt::PlainText);
    // What comes from outside is no markup; the line breaks of the texts are all that counts of it.
    QString text = content.text;
    box.setText(textWithList(text.replace(QLatin1String("<br>"), QLatin1String("\n")), content.lines));
    if (content.lines.size() > kShownLines) {
        box.setDetailedText(content.lines.join(QLatin1Char('\n')));
    }
    for (auto it = content.labels.begin(); it != content.labels.end(); ++it) {
        box.button(it.key())->setText(it.value());
    }
    box.setStyleSheet(styleSheet(!m_surroundings.isDark || m_surroundings.isDark()));
    qInfo().noquote() << content.title + QLatin1Char(':') << content.text
                      << content.lines.join(QStringLiteral(", "));

    emit openCountChanged(++m_open);
    const auto answer = static_cast<QMessageBox::StandardButton>(box.exec());
    emit openCountChanged(--m_open);
    return answer;
}

void MessageBoxes::info(const QString& text, QWidget* parent) {
    show({QMessageBox::Information, translated("Information"), text, {}}, parent);
}

void MessageBoxes::warn(const QString& text, QWidget* parent) { warnList(text, {}, parent); }

void MessageBoxes::warnList(const QString& text, const QStringList& lines, QWidget* parent) {
    show({QMessageBox::Warning, translated("Warning"), text, lines}, parent);
}

void MessageBoxes::alert(const QString& text, QWidget* parent) { alertList(text, {}, parent); }

void MessageBoxes::alertList(const QString& text, const QStringList& lines, QWidget* parent) {
    show({QMessageBox::Critical, translated("Error"), text, lines}, parent);
}

bool MessageBoxes::confirm(const QString& text, QWidget* parent, const QMap<QString, QString>& options) {
    Box box{
        QMessageBox::Question, translated("Confirmation"), text, {}, QMessageBox::Yes | QMessageBox::No, {}};
    if (options.contains(QStringLiteral("yes"))) {
        box.labels[QMessageBox::Yes] = options.value(QStringLiteral("yes"));
    }
    if (options.contains(QStringLiteral("no"))) {
        box.labels[QMessageBox::No] = options.value(QStringLiteral("no"));
    }
    return show(box, parent) == QMessageBox::Yes;
}

bool MessageBoxes::confirmOkCancel(const QString& text, QWidget* parent) {
    return show({QMessageBox::Question,
                 translated("Confirmation"),
                 text,
                 {},
                 QMessageBox::Ok | QMessageBox::Cancel,
                 {}},
                parent) == QMessageBox::Ok;
}

void MessageBoxes::error(const QString& text) { alert(text, nullptr); }

void MessageBoxes::deviceError(const DeviceFailure& failure) {
    QString words =
        m_surroundings.operationWords ? m_surroundings.operationWords(failure.operation) : QString();
    if (words.isEmpty()) {
        words = failure.operation; // a function without words still names itself
    }
    QStringList lines;
    for (const DeviceFailure::Camera& camera : failure.cameras) {
        lines.append(camera.name + QStringLiteral(": ") + translated(camera.reason));
    }
    alertList(translated("The operation failed: %1").arg(words), lines, nullptr);
}
