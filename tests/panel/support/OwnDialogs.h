#pragma once

#include "livecontrol/foundation/ReportFailure.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/overlays/formats/GUI_AddNumberDialog.h"
#include "livecontrol/overlays/formats/GUI_FrameFormatDialog.h"
#include "livecontrol/overlays/formats/GUI_RecordRateFormatDialog.h"
#include "livecontrol/overlays/formats/GUI_RectimeFormatDialog.h"
#include "livecontrol/overlays/formats/GUI_ShutterSpeedFormatDialog.h"
#include "livecontrol/overlays/formats/GUI_TimeCodeCustomDialog.h"
#include "livecontrol/overlays/info/GUI_EditInfoDialog.h"
#include "viewer/app/Viewer.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/saving/SavingDialogs.h"

#include <QString>

/// Runs a dialog that no button of the panel opens, as a slot would: what can't be made is told to the host.
/// False if there is none of that name.
inline bool runOwnDialog(Viewer& viewer, const QString& name) {
    ViewerHost* const host = &viewer.host();
    const auto saving = [&viewer](SaveFunction save) {
        return std::make_unique<SavingDialogs>(viewer.host(), viewer.preferences(), std::move(save));
    };
    const auto run = [&] {
        if (name == QLatin1String("time code")) {
            GUI_TimeCodeCustomDialog(host, host->getDialogParent()).exec();
        } else if (name == QLatin1String("shutter format")) {
            GUI_ShutterSpeedFormatDialog(host).exec();
        } else if (name == QLatin1String("rate format")) {
            GUI_RecordRateFormatDialog(host).exec();
        } else if (name == QLatin1String("frame format")) {
            GUI_FrameFormatDialog(host).exec();
        } else if (name == QLatin1String("recording time format")) {
            GUI_RectimeFormatDialog(host).exec();
        } else if (name == QLatin1String("digits")) {
            GUI_AddNumberDialog(host, nullptr, 0, 12, 2).exec();
        } else if (name == QLatin1String("saved view")) {
            GUI_EditInfoDialog(host, 1, true, nullptr, 0, {}, QDateTime::currentDateTime()).exec();
        } else if (name == QLatin1String("save files")) {
            saving([](const SaveRequest&) {})->save();
        } else if (name == QLatin1String("open")) {
            saving({})->open();
        } else if (name == QLatin1String("storage")) {
            saving({})->storage();
        } else {
            return false;
        }
        return true;
    };
    try {
        return run();
    } catch (std::exception& error) {
        reportFailure(host, error);
        return true;
    }
}
