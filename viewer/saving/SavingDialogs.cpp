#include "viewer/saving/SavingDialogs.h"

#include "livecontrol/foundation/ReportFailure.h"
#include "livecontrol/storage/cards/JS_Mediator_SaveCFast.h"
#include "livecontrol/storage/cards/JS_Mediator_SaveDockStore.h"
#include "livecontrol/storage/cards/JS_Mediator_SaveSD.h"
#include "livecontrol/storage/dialogs/GUI_FileSaveDialog.h"
#include "livecontrol/storage/dialogs/JS_Mediator_FileSaveDialog.h"
#include "livecontrol/storage/dialogs/JS_Mediator_SaveFile.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/saving/PageDialog.h"
#include "viewer/saving/SaveSettings.h"
#include "viewer/saving/SavingMediator.h"

#include <QScopeGuard>

namespace {

constexpr QSize Size(900, 720);
constexpr QSize StorageSize(620, 520);

/// The settings' object hears from the dialog's how many are saved.
std::unique_ptr<JS_Mediator_SaveFile> settingsFor(ViewerHost& host, const QString& widget,
                                                  JS_Mediator_FileDialog& page) {
    auto settings = std::make_unique<JS_Mediator_SaveFile>(&host, widget);
    QObject::connect(&page, &JS_Mediator_FileDialog::selectedDocCount, settings.get(),
                     &JS_Mediator_SaveFile::selectedDocCount);
    QObject::connect(&page, &JS_Mediator_FileDialog::selectedDocHeadCount, settings.get(),
                     &JS_Mediator_SaveFile::selectedDocHeadCount);
    return settings;
}

} // namespace

SavingDialogs::SavingDialogs(ViewerHost& host, SaveFunction save, QObject* parent)
    : QObject(parent), m_host(host), m_save(std::move(save)) {}

void SavingDialogs::save() {
    reportingFailures(&m_host, [this] {
        SaveSettings::ensureFolder(m_host, QStringLiteral("export"));
        GUI_FileSaveDialog dialog(&m_host, nullptr);
        dialog.addMediator(std::make_unique<SavingMediator>(&m_host, dialog.page().scriptName(), m_save));
        dialog.exec();
    });
}

void SavingDialogs::run(const QString& widget, const QString& family, const char* title) {
    reportingFailures(&m_host, [&] {
        SaveSettings::ensureFolder(m_host, family);
        auto mediator = std::make_unique<JS_Mediator_FileDialog>(&m_host, widget);
        JS_Mediator_FileDialog& page = *mediator;
        PageDialog dialog(&m_host, QLatin1String(title), QStringLiteral("qrc:/filesavedialog.html"),
                          std::move(mediator), Size);
        dialog.addMediator(settingsFor(m_host, widget, page));
        dialog.addMediator(std::make_unique<SavingMediator>(&m_host, widget, m_save));
        dialog.exec();
    });
}

void SavingDialogs::snapshot() { run(QStringLiteral("snapshotdialog"), QStringLiteral("snap"), "Snapshot"); }

void SavingDialogs::convert() { run(QStringLiteral("batchconverter"), QStringLiteral("convert"), "Convert"); }

void SavingDialogs::report() {
    run(QStringLiteral("reportExportDialog"), QStringLiteral("report"), "Report");
}

void SavingDialogs::layout() {
    run(QStringLiteral("layoutsavedialog"), QStringLiteral("layout"), "Save layout");
}

void SavingDialogs::storage() {
    reportingFailures(&m_host, [this] {
        PageDialog dialog(
            &m_host, QStringLiteral("Camera storage"), QStringLiteral("qrc:/camerastorage.html"),
            std::make_unique<JS_Mediator_Dialog>(&m_host, QStringLiteral("storagedialog")), StorageSize);
        dialog.addMediator(std::make_unique<JS_Mediator_SaveSD>(&m_host));
        dialog.addMediator(std::make_unique<JS_Mediator_SaveDockStore>(&m_host));
        dialog.addMediator(std::make_unique<JS_Mediator_SaveCFast>(&m_host));
        dialog.exec();
    });
}

void SavingDialogs::open() {
    reportingFailures(&m_host, [this] {
        const QString widget = QStringLiteral("fileopendialog");
        m_host.temporary().keep(m_host.temporary().keys()); // those of another dialog are the user's
        const auto closeOthers = qScopeGuard([this] { m_host.temporary().keep({}); });
        PageDialog dialog(&m_host, QStringLiteral("Open"), QStringLiteral("qrc:/fileopendialog.html"),
                          std::make_unique<JS_Mediator_FileDialog>(&m_host, widget), Size);
        dialog.addMediator(std::make_unique<SavingMediator>(&m_host, widget, m_save));
        if (dialog.exec() == QDialog::Accepted) {
            emit opened();
        }
    });
}
