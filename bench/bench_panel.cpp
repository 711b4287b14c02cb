// What an update of the live panel costs, as ratios that one run measures on both sides:
// - a whole update with many cameras selected against filling the same blocks and the same list from constant
//   JSON in the same engine;
// - the control status and the device list for more and more documents.

#include "bench/BenchRig.h"
#include "bench/RatioReporter.h"
#include "livecontrol/interface/JS_Mediator.h"
#include "livecontrol/interface/PLG_Interface.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/Viewer.h"
#include "viewer/app/panes/PanelView.h"

#include <QApplication>
#include <QTemporaryDir>
#include <string>

namespace {

// Swaps the mediator for an object that answers with texts which it was once asked for, and calls the same
// page code.
const char kConstantPeer[] = R"JS(
window.benchReal = window.livecontrol;
window.benchConstant = (function (real, list) {
    var constant = {
        translate: function (text) { return texts[text] || text; },
        updateUI: function () {}, errorLog: function (text) { throw new Error(text); }
    };
    var texts = {};
    ["Locked Resolution", "Locked Shutter Speed", "Auto Exposure...", "Auto Exposure", "Dual Slope Shutter", "(None)",
        "Connected", "Not connected", "---", "H/W Image Trigger..."].forEach(
        function (text) { texts[text] = real.translate(text); });
    ["getResolutionSettings", "getFrameRateSettings", "getShutterSpeedSettings", "getDSShutterSettings",
        "getLowLightSettings", "getLensControlSettings", "getLensControlCommandTime", "isAutoFocusActive",
        "getTriggerModeSettings", "getTriggerParameterSettings"].forEach(
        function (slot) { var answer = real[slot](); constant[slot] = function () { return answer; }; });
    var rows = list.getDeviceInfoList(true);
    constant.list = { getDeviceInfoList: function () { return rows; }, translate: constant.translate };
    return constant;
})(window.livecontrol, window.deviceList);
window.benchRebuild = function () {
    window.livecontrol = window.benchConstant;
    devicelist_obj.setMediator(window.benchConstant.list);
    devicelist_obj.setListName("#livecontrol_camera_item_list");
    devicelist_obj.setTemplate("#cameraSelectItem");
    devicelist_obj.createList();
    livecontrol_obj.refreshLowLight();
    livecontrol_obj.refreshResolution();
    livecontrol_obj.refreshFramerate();
    livecontrol_obj.refreshShutterSpeed();
    livecontrol_obj.refreshLensControl();
    livecontrol_obj.refreshTriggerMode();
    livecontrol_obj.refreshTriggerParameter($("#livecontrol_trigger").val());
    zel4func.reloadSumoSelect("select.SumoUnder");
    window.livecontrol = window.benchReal;
    devicelist_obj.setMediator(window.deviceList);
};
)JS";

PanelTest* s_panel = nullptr;

void pageUpdate(benchmark::State& state) {
    for (auto _ : state) {
        s_panel->viewer().panelView().runScript(QStringLiteral("livecontrol_obj.update()"));
    }
}

void constantRebuild(benchmark::State& state) {
    for (auto _ : state) {
        s_panel->viewer().panelView().runScript(QStringLiteral("benchRebuild()"));
    }
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;

    QTemporaryDir folder;
    for (const int count : {1, 8, 64}) {
        PanelTest panel(rigOf(folder, count));
        panel.eval(QStringLiteral("livecontrol.selectAllDocs(), 1"));
        panel.settle();
        JS_Mediator* const mediator = panel.viewer().panelView().plugin()->getMediator();
        const std::string documents = "/" + std::to_string(count);
        benchmark::RegisterBenchmark(("getControlStatus" + documents).c_str(),
                                     [mediator](benchmark::State& state) {
                                         for (auto _ : state) {
                                             benchmark::DoNotOptimize(mediator->getControlStatus());
                                         }
                                     });
        benchmark::RegisterBenchmark(("getDeviceInfoList" + documents).c_str(),
                                     [mediator](benchmark::State& state) {
                                         for (auto _ : state) {
                                             benchmark::DoNotOptimize(mediator->getDeviceInfoList(true));
                                         }
                                     });
        if (count == 64) {
            s_panel = &panel;
            panel.eval(QString::fromLatin1(kConstantPeer) + QStringLiteral("1"));
            benchmark::RegisterBenchmark("constantRebuild/64", constantRebuild)
                ->Unit(benchmark::kMillisecond);
            benchmark::RegisterBenchmark("pageUpdate/64", pageUpdate)->Unit(benchmark::kMillisecond);
        }
        benchmark::RunSpecifiedBenchmarks(&reporter);
        benchmark::ClearRegisteredBenchmarks();
    }
    std::printf("\n");
    reporter.ratio("page update with 64 cameras / same boxes from constant JSON", "pageUpdate/64",
                   "constantRebuild/64", "at most 1.5");
    reporter.ratio("control status, 64 documents / 1 document", "getControlStatus/64", "getControlStatus/1",
                   "1, no growth");
    reporter.ratio("device list, 8 documents / 1 document", "getDeviceInfoList/8", "getDeviceInfoList/1",
                   "8, linear");
    reporter.ratio("device list, 64 documents / 8 documents", "getDeviceInfoList/64", "getDeviceInfoList/8",
                   "8, linear");
    return 0;
}
