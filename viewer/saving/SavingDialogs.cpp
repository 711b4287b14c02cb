#include "viewer/saving/SavingDialogs.h"

#include "livecontrol/foundation/ReportFailure.h"
#include "livecontrol/storage/cards/JS_Mediator_SaveCFast.h"
#include "livecontrol/storage/cards/JS_Mediator_SaveDockStore.h"
#include "livecontrol/storage/cards/JS_Mediator_SaveSD.h"
#include "livecontrol/storage/dialogs/GUI_FileSaveDialog.h"
#include "livecontrol/storage/dialogs/JS_Mediator_FileSaveDialog.h"
#include "livecontrol/storage/dialogs/JS_Mediator_SaveFile.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/saving/DrivesMediator.h"
#include "viewer/saving/PageDialog.h"
#include "viewer/saving/SaveSettings.h"
#include "viewer/saving/SavingMediator.h"

#include <QScopeGuard>

namespace {

constexpr QSize Size(900, 720);
constexpr QSize StorageSize(620, 520);

/// Runs it with what only the program can do. What the page stored is kept if the user agrees.
bool runWith(GUI_WebViewDialog& dialog, std::unique_ptr<SavingMediator> mediator) {
    SavingMediator& saving = *mediator;
    dialog.addMediator(std::move(mediator));
    saving.rememberSettings();
    const bool isAgreed = dialog.exec() == QDialog::Accepted;
    saving.settleSettings(isAgreed);
    return isAgreed;
}

} // namespace

SavingDialogs::SavingDialogs(ViewerHost& host, Preferences& preferences, SaveFunction save, QObject* parent)
    : QObject(parent), m_host(host), m_preferences(preferences), m_save(std::move(save)) {}

std::unique_ptr<SavingMediator> SavingDialogs::mediatorFor(const JS_Mediator_FileDialog& page) {
    return std::make_unique<SavingMediator>(&m_host, m_preferences, page.scriptName(), page.dateTime(),
                                            m_save, m_layoutPicture);
}

std::unique_ptr<JS_Mediator> SavingDialogs::drives() {
    return std::make_unique<DrivesMediator>(&m_host, m_host.drives(), m_host.documents());
}

void SavingDialogs::save() {
    reportingFailures(&m_host, [this] {
        SaveSettings::ensureFolder(m_host, QStringLiteral("export"));
        GUI_FileSaveDialog dialog(&m_host, nullptr);
        runWith(dialog, mediatorFor(dialog.page()));
    });
}

void SavingDialogs::run(const QString& widget, const QString& family, const char* title) {
    reportingFailures(&m_host, [&] {
        SaveSettings::ensureFolder(m_host, family);
        auto mediator = std::make_unique<JS_Mediator_FileDialog>(&m_host, widget);
        JS_Mediator_FileDialog& page = *mediator;
        PageDialog dialog(&m_host, QLatin1String(title), QStringLiteral("qrc:/filesavedialog.html"),
                          std::move(mediator), Size);
        auto settings = std::make_unique<JS_Mediator_SaveFile>(&m_host, widget);
        settings->follow(page);
        dialog.addMediator(std::move(settings));
        runWith(dialog, mediatorFor(page));
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
        dialog.addMediator(drives());
        dialog.exec();
    });
}

bool SavingDialogs::open() {
    const auto run = [this] {
        SaveSettings::ensureFolder(m_host,
                                   QStringLiteral("export")); // where what is saved is looked for first
        m_host.temporary().keep(m_host.temporary().keys());   // those of another dialog are the user's
        const auto closeOthers = qScopeGuard([this] { m_host.temporary().keep({}); });
        auto mediator = std::make_unique<JS_Mediator_FileDialog>(&m_host, QStringLiteral("fileopendialog"));
        JS_Mediator_FileDialog& page = *mediator;
        PageDialog dialog(&m_host, QStringLiteral("Open"), QStringLiteral("qrc:/fileopendialog.html"),
                          std::move(mediator), Size);
        dialog.addMediator(drives());
        return runWith(dialog, mediatorFor(page));
    };
    return reportingFailures(&m_host, run, false);
}
