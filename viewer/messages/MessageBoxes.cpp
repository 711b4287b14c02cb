#include "viewer/messages/MessageBoxes.h"

#include "livecontrol/foundation/UTL_Format.h"
#include "viewer/messages/Translated.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDebug>
#include <QFile>

#include <algorithm>

namespace {

// A list longer than this goes on under the "details" button, so that a box never grows past the screen.
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

// What comes from outside is no markup; the line breaks of the texts are all that counts of it.
void setWords(QMessageBox& box, QString text, const QStringList& lines) {
    box.setText(textWithList(text.replace(QLatin1String("<br>"), QLatin1String("\n")), lines));
    if (lines.size() > kShownLines) {
        box.setDetailedText(lines.join(QLatin1Char('\n')));
    }
}

} // namespace

MessageBoxes::MessageBoxes(Surroundings surroundings, QObject* parent)
    : QObject(parent), m_surroundings(std::move(surroundings)) {}

QWidget* MessageBoxes::parentOr(QWidget* parent) const {
    return parent || !m_surroundings.parent ? parent : m_surroundings.parent();
}

void MessageBoxes::prepare(QMessageBox& box, const Box& content) const {
    box.setIcon(content.icon);
    box.setWindowTitle(content.title);
    box.setStandardButtons(content.buttons);
    box.setDefaultButton(content.chosen);
    box.setTextFormat(Qt::PlainText);
    setWords(box, content.text, content.lines);
    box.setInformativeText(asMarkup(content.under));
    for (auto it = content.labels.begin(); it != content.labels.end(); ++it) {
        box.button(it.key())->setText(it.value());
    }
    box.setStyleSheet(styleSheet(!m_surroundings.isDark || m_surroundings.isDark()));
}

QMessageBox::StandardButton MessageBoxes::run(QMessageBox& box, const Box& content) {
    prepare(box, content);
    qInfo().noquote() << content.title + QLatin1Char(':') << content.text
                      << content.lines.join(QStringLiteral(", "));
    emit openCountChanged(++m_open);
    const auto answer = static_cast<QMessageBox::StandardButton>(box.exec());
    emit openCountChanged(--m_open);
    return answer;
}

QMessageBox::StandardButton MessageBoxes::show(const Box& content, QWidget* parent) {
    QMessageBox box(parentOr(parent));
    return run(box, content);
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
    box.under = options.value(QStringLiteral("under"));
    // Enter alone does nothing that isn't asked for.
    const bool isYesHarmless = options.value(QStringLiteral("default")) == QLatin1String("yes");
    box.chosen = isYesHarmless ? QMessageBox::Yes : QMessageBox::No;
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

bool MessageBoxes::confirmLoss(const QString& text, const QStringList& lines, QWidget* parent) {
    return show({QMessageBox::Warning,
                 translated("Warning"),
                 text,
                 lines,
                 QMessageBox::Ok | QMessageBox::Cancel,
                 {},
                 QMessageBox::Cancel},
                parent) == QMessageBox::Ok;
}

void MessageBoxes::error(const QString& text) {
    addFailure(QString(), text);
    showUngathered();
}

void MessageBoxes::deviceError(const DeviceFailure& failure) {
    QString words =
        m_surroundings.operationWords ? m_surroundings.operationWords(failure.operation) : QString();
    if (words.isEmpty()) {
        words = failure.operation; // a function without words still names itself
    }
    if (failure.cameras.isEmpty()) {
        addFailure(words, QString());
    }
    for (const DeviceFailure::Camera& camera : failure.cameras) {
        addFailure(words, camera.name + QStringLiteral(": ") + translated(camera.reason));
    }
    showUngathered();
}

void MessageBoxes::addFailure(const QString& operation, const QString& text) {
    const bool isInFront = m_failureBox && QApplication::activeModalWidget() == m_failureBox;
    if (m_failureBox && !isInFront) { // nobody would see it there, below a dialog that has opened since
        m_failureBox = nullptr;
        m_failures.clear();
    }
    const auto known = std::find_if(m_failures.begin(), m_failures.end(), [&](const Failure& failure) {
        return failure.operation == operation && failure.text == text;
    });
    if (known != m_failures.end()) {
        ++known->count;
    } else {
        m_failures.push_back({operation, text});
    }
    if (isInFront) {
        const Box box = failureBox();
        setWords(*m_failureBox, box.text, box.lines);
    } else if (m_gathering > 0) { // to its end, but not longer than until events run again
        QMetaObject::invokeMethod(this, &MessageBoxes::showFailures, Qt::QueuedConnection);
    }
}

void MessageBoxes::showUngathered() {
    if (m_gathering == 0) {
        showFailures();
    }
}

void MessageBoxes::gatherFailures(bool gather) {
    m_gathering = qMax(0, m_gathering + (gather ? 1 : -1));
    showUngathered();
}

void MessageBoxes::showFailures() {
    if (m_failures.empty() || m_failureBox) {
        return;
    }
    const Box content = failureBox();
    QMessageBox box(parentOr(nullptr));
    m_failureBox = &box;
    run(box, content);
    if (m_failureBox == &box) {
        m_failureBox = nullptr;
        m_failures.clear();
    }
}

MessageBoxes::Box MessageBoxes::failureBox() const {
    Box box{QMessageBox::Critical, translated("Error"), translated("Several operations failed:"), {}};
    const QString operation = m_failures.front().operation;
    const bool isOne = std::all_of(m_failures.begin(), m_failures.end(),
                                   [&](const Failure& failure) { return failure.operation == operation; });
    for (const Failure& failure : m_failures) {
        QStringList parts{isOne ? QString() : failure.operation, failure.text};
        parts.removeAll(QString());
        const QString line = parts.join(QStringLiteral(": "));
        if (!line.isEmpty()) {
            box.lines.append(failure.count == 1
                                 ? line
                                 : translated("%1 (%2 times)").arg(line, QString::number(failure.count)));
        }
    }
    if (isOne && !operation.isEmpty()) {
        box.text = translated("The operation failed: %1").arg(operation);
    } else if (m_failures.size() == 1) {
        box.text =
            box.lines.isEmpty() ? translated("Something failed and did not say why.") : box.lines.takeFirst();
    }
    return box;
}
