#include "livecontrol/foundation/UTL_Messages.h"

#include "livecontrol/foundation/ModalScope.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/foundation/UTL_Format.h"
#include "livecontrol/foundation/WindowHelpers.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QPointer>

namespace {

QString translated(const QString& text) {
    return QCoreApplication::translate("zel4", text.toUtf8().constData());
}

QString logName(QMessageBox::StandardButton button) {
    static const QMap<QMessageBox::StandardButton, QString> kNames{
        {QMessageBox::Ok, QStringLiteral("Ok")},         {QMessageBox::No, QStringLiteral("No")},
        {QMessageBox::Save, QStringLiteral("Save")},     {QMessageBox::Yes, QStringLiteral("Yes")},
        {QMessageBox::Cancel, QStringLiteral("Cancel")},
    };
    return kNames.value(button);
}

/// Owns the box together with its parent, which may go while the box is open.
struct OwnedBox {
    explicit OwnedBox(QWidget* parent) : box(new QMessageBox(parent)) {}
    ~OwnedBox() { delete box.data(); }
    Q_DISABLE_COPY(OwnedBox)

    QPointer<QMessageBox> box;
};

void setUp(QMessageBox& box, const QString& text, const QString& under,
           QMessageBox::StandardButtons buttons) {
    box.setWindowTitle(translated(QStringLiteral("Confirmation")));
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setInformativeText(asMarkup(under));
    box.setIcon(QMessageBox::Question);
    box.setStandardButtons(buttons);
    box.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    box.setWindowFlag(Qt::WindowStaysOnTopHint);
    // The first Return of somebody in a hurry must do nothing. The flag before has taken the focus away.
    box.setDefaultButton(buttons.testFlag(QMessageBox::Cancel) ? QMessageBox::Cancel : QMessageBox::No);
}

void setLabels(QMessageBox& box, HostApplication* host, const UTL_Messages::Labels& labels) {
    for (auto it = labels.begin(); it != labels.end(); ++it) {
        if (QAbstractButton* const button = box.button(it.key())) {
            button->setText(translated(it.value()));
        }
    }
    QAbstractButton* const cancel = box.button(QMessageBox::Cancel);
    if (cancel && !labels.contains(QMessageBox::Cancel)) {
        cancel->setText(host->translate(QStringLiteral("Cancel"), nullptr, 0));
    }
    if (labels.isEmpty()) {
        applyNativeStyle(host, &box);
    } else {
        applyMessageBoxStyle(host, &box);
    }
}

/// Asks with the given buttons, under the trace name `operation`.
QMessageBox::StandardButton ask(const QString& operation, const QString& text, HostApplication* host,
                                QWidget* parent, const UTL_Messages::Labels& labels, const QString& under,
                                QMessageBox::StandardButtons buttons) {
    const QString question = translated(text);
    const OperationTrace trace(operation, traceArgs({{"text", question}}));
    const OwnedBox owned(parent ? parent : host->getDialogParent());
    setUp(*owned.box, question, under, buttons);
    setLabels(*owned.box, host, labels);
    const ModalScope modal(host);
    owned.box->show();
    centerOnScreen(host, owned.box);
    const auto answer = static_cast<QMessageBox::StandardButton>(owned.box->exec());
    // The box can go with its parent, and its event loop can be ended from outside.
    const bool isAnswered = owned.box && answer != QMessageBox::NoButton;
    const QMessageBox::StandardButton result = isAnswered ? answer : QMessageBox::Cancel;
    qInfo().noquote() << QStringLiteral("[%1][result:%2]").arg(question, logName(result));
    return result;
}

} // namespace

bool UTL_Messages::confirm(const QString& text, HostApplication* host, QWidget* parent, const Labels& labels,
                           const QString& under) {
    return ask(QStringLiteral("UTL_Messages::confirm"), text, host, parent, labels, under,
               QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

bool UTL_Messages::confirmOkCancel(const QString& text, HostApplication* host, QWidget* parent,
                                   const Labels& labels, const QString& under) {
    return ask(QStringLiteral("UTL_Messages::confirmOkCancel"), text, host, parent, labels, under,
               QMessageBox::Ok | QMessageBox::Cancel) == QMessageBox::Ok;
}

QMessageBox::StandardButton UTL_Messages::confirmYesNoCancel(const QString& text, HostApplication* host,
                                                             QWidget* parent, const Labels& labels,
                                                             const QString& under) {
    return ask(QStringLiteral("UTL_Messages::confirmYesNoCancel"), text, host, parent, labels, under,
               QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
}
