// Which control a state of the host disables. Pure data: what a rule does beyond disabling is handed in.

const RECORDING_CONTROLS = [
    "#livecontrol_camera_item_list",
    "#livecontrol_resolution",
    "#livecontrol_framerate",
    "#livecontrol_shutterspeed",
    "#livecontrol_trigger",
    "#livecontrol_io_setting",
    "#livecontrol_recording_setting",
    "#livecontrol_ethernet_setting",
    "#livecontrol_save_button",
    "#livecontrol_load_button",
    "#livecontrol_device_item_list",
    "#livecontrol_adddevice",
    "#livecontrol_useip_cameraname",
    "#livecontrol_update",
    "#livecontrol_variable_select button",
    "[id^=livecontrol_ip]"
];

/** The controls of the trigger's parameters, which lock and unlock together. */
export const TRIGGER_BLOCK = [
    "#livecontrol_random_frames",
    "#livecontrol_random_times_enable",
    "#livecontrol_random_times_max",
    "#livecontrol_trigger_total_frames",
    "#livecontrol_trig_slider",
    "#livecontrol_manu_trig_before_frame",
    "#livecontrol_manu_trig_after_frame",
    "#livecontrol_manu_trig_before_per",
    "#livecontrol_manu_trig_after_per",
    "#livecontrol_manu_trig_before_frame_lock",
    "#livecontrol_manu_trig_after_frame_lock",
    "#livecontrol_manu_trig_before_per_lock",
    "#livecontrol_manu_trig_before_per_lock_2"
];

const PREFERENCE_LINKS = [
    "#livecontrol_io_setting",
    "#livecontrol_recording_setting",
    "#livecontrol_ethernet_setting"
];

/**
 * The rule table. Each key names a flag of `getControlStatus`: "NONE-DOCUMENT" is `IsNoneDocument`. `disabled` holds
 * while the flag is true; `func` is called with the flag's value.
 * @param {object} actions - functions of one flag: `recording`, `multiWindow`, `lowLight`, `noneWindow`,
 *     `multiToolLock`, `liveSpeed`
 */
export function liveRules(actions) {
    return {
        "NONE-DOCUMENT": {disabled: [".view-all", "#livecontrol_deleteall", "#livecontrol_update"]},
        "MULTI-WINDOW": {
            disabled: ["option#op_auto_exposure", "option#op_hwimage_trigger", "#livecontrol_variable_select button"],
            func: actions.multiWindow
        },
        "CTSREADY": {disabled: RECORDING_CONTROLS, func: actions.recording},
        "READY": {disabled: RECORDING_CONTROLS, func: actions.recording},
        "RECORDING": {disabled: RECORDING_CONTROLS, func: actions.recording},
        "BACKGROUND-SAVING": {disabled: RECORDING_CONTROLS, func: actions.recording},
        "EXIST-LOWLIGHT": {disabled: PREFERENCE_LINKS},
        "LOWLIGHT": {
            disabled: [
                "#livecontrol_resolution",
                "#livecontrol_framerate",
                "#livecontrol_trigger",
                "#livecontrol_variable_select button",
                "option#op_auto_exposure"
            ],
            func: actions.lowLight
        },
        "AUTOFOCUS": {
            disabled: [
                "#livecontrol_resolution",
                "#livecontrol_framerate",
                "#livecontrol_trigger",
                "#livecontrol_variable_select button"
            ].concat(PREFERENCE_LINKS, ["option#op_auto_exposure"])
        },
        "NONE-WINDOW": {
            disabled: [
                "#livecontrol_showInfoCheckbox",
                "#livecontrol_resolution",
                "#livecontrol_framerate",
                "#livecontrol_shutterspeed",
                "#livecontrol_trigger",
                "#livecontrol_variable_select button"
            ],
            func: actions.noneWindow
        },
        "QMON-LOCK-DEVICE": {disabled: [], func: actions.multiToolLock},
        "IMAGETRIGGER-DETECTING": {disabled: [], func: actions.liveSpeed},
        "IMAGETRIGGER-CAPTURING": {disabled: [], func: actions.liveSpeed},
        "SUSPEND-REDUCE": {disabled: [], func: actions.liveSpeed}
    };
}
