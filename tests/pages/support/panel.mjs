// The panel of a camera that has everything, and what a test may want to be otherwise.
import {pageTest, recorder} from "./page.mjs";

export const ALL = 3; // of MULTIPLE_DOCS_: each selected camera has it

const rows = (name, texts) => texts.map((text, i) => ({Value: String(i), [name]: text}));

const SIZES = {
    WidthFrameMax: 1280, WidthMax: 1280, WidthMin: 64, WidthStep: 32,
    HeightFrameMax: 1024, HeightMax: 1024, HeightMin: 32, HeightStep: 16
};

/** An area of the exposure pages and its levels, by the beginning of the members' names. */
export function areaSettings(name, more = {}) {
    return {
        [`${name}On`]: true,
        [`${name}Area`]: {Width: 640, Height: 512, ...SIZES},
        [`${name}Pos`]: {X: 320, Y: 256, XStep: 32, YStep: 16},
        [`${name}Value`]: {Value: 100, Max: 255, Step: 1},
        [`${name}Range`]: {Value: 20, Max: 255, Step: 1},
        ShowHistgram: false,
        ...more
    };
}

export const SHUTTER = {
    ShutterSpeeds: rows("ShutterSpeed", ["1/60", "1/125", "1/250", "1/500"]), Selected: true, SelectValue: "1",
    ExistSupportedShutterLockMode: ALL, ShutterLockMode: false, ExistSupportedAutoExposure: ALL, AutoExposureOn: false,
    ExistSupportedDSShutter: ALL, DSShutterAvairable: true, ExistSupportedDSShutterMode: 0, DSShutterMode: false,
    DSShutterValue: 0, LowLightMode: false
};

export const TRIGGER = {
    TriggerMode: ["START_TRG", "MANUAL_TRG", "RANDOM_TRG", "RANDOM_MANUAL_TRG"].map((Identifier) => ({Identifier})),
    TotalFrames: 1000, TotalFramesLabel: "1000 frames", TrgAfterFrame: 400, LockTriggerParam: -1,
    RandomFrames: 100, RandomFramesOffset: 0, MaxRandomTrgCount: 8, MaxRandomEndlessTrgCount: 5,
    RandomTimesEnable: false, RandomTimesMax: 3, ExistSupportRandomTrgTimes: ALL
};

/** An axis of a lens. */
export const axis = (more = {}) => ({Enable: true, SpinnerMin: 0, SpinnerMax: 1000, SmallTick: 10, SpinnerValue: 100,
    SliderMin: 0, SliderMax: 1000, SliderValue: 100, ...more});

export const LENS = {LensType: "EF2", ExistLensControl: ALL, LensName: "L1", CameraName: "C1", Iris: axis(), Zoom: axis(),
    Focus: axis({AutoFocusEnable: false})};

export const cameraRow = (key, more = {}) => JSON.stringify({
    key, cameraname: `Camera ${key}`, ipaddress: `192.168.0.${key}`, devicename: "M1", selected: "", found: "found",
    mobile: "", dummy: "", shutdown: "shutdown", "sup-wifi": "sup-wifi", "con-wifi": "", "sup-linkspeed": "", ...more
});

function liveAnswers() {
    return {
        isUpdateIgnore: false, isLiveMode: true, isConnected: true, isDisplayInfoShowing: false,
        getConnectedCameraShowing: false, getControlStatus: {}, getLastPage: 0, getPrefBool: false,
        translate: (text) => text, isQmonRunning: false, isAutoFocusActive: false, isSupportedShadingOn: true,
        getLowLightSettings: {SupportedLowlight: ALL, LowLightType: 3, LowLightMode: false},
        getResolutionSettings: {
            Resolutions: [{Value: "0", Width: 1280, Height: 1024}, {Value: "1", Width: 640, Height: 512}], Selected: true,
            SelectValue: "1", ExistResolutionLockMode: ALL, ResolutionLockMode: false, VariablePrefix: ""
        },
        getFrameRateSettings: {Framerates: rows("Rate", ["60", "125", "250"]), Selected: true, SelectValue: "2",
            VariablePrefix: ""},
        getShutterSpeedSettings: {...SHUTTER},
        getDSShutterSettings: "",
        getLensControlSettings: "", getLensControlCommandTime: 0,
        getTriggerModeSettings: {
            TriggerMode: ["Start", "Manual", "Random", "Random manual"].map((Name, Value) => ({Value, Name})),
            SelectValue: 1,
            DifferentTriger: false, ExistSupportImageTrigger: ALL, HWImageTriggerOn: false
        },
        getTriggerParameterSettings: {...TRIGGER},
        getCurrentVariableInfo: {Supported: true, ChannelInfo: "1: 640 x 512"},
        getFanControlSettings: {State: 1, LowLightMode: false, SupportedFanControl: ALL},
        existSupportedLedLaserControl: 0, getHeadLedLaser: false, isSupportedPhaseAdjust: true,
        isWarningPhaseAdjust: false,
        getLiveImageQualitySettings: {supported: ALL, reduceMode: false},
        getIPAddressSettings: {IPAddress: "192.168.0.0"}, isUseIpCameraName: false
    };
}

/**
 * A test with the open panel: `page.live` is its script object, `page.list` that of the camera list.
 * @param {Object} answers - what `livecontrol` answers otherwise
 */
export function panelTest(title, answers, body) {
    pageTest(title, "panel", () => ({
        livecontrol: recorder(Object.assign(liveAnswers(), answers)),
        deviceList: recorder({getDeviceInfoList: [cameraRow(1, {selected: "ui-selected"}), cameraRow(2)], confirm: true,
            translate: (text) => text}),
        main: recorder(), timeline_obj: recorder()
    }), async (page, {livecontrol, deviceList, timeline_obj}) => {
        page.live = livecontrol;
        page.list = deviceList;
        page.timeline = timeline_obj;
        page.answer = (others) => Object.assign(livecontrol.answers, others);
        page.update = () => page.emit(livecontrol, "update");
        page.open = () => page.emit(livecontrol, "open");
        await page.open();
        await page.update();
        page.told(livecontrol);
        await body(page, livecontrol);
    });
}
