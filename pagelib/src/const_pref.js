// Preference keys that pages and other parts of the viewer share.
window.PREF_KEY_STYLE = "env/style";
window.PREF_KEY_CONNECTED_CAMERA_ONLY_SHOWING = "devicemanager/connectedCameraOnlyShowing";
window.PREF_KEY_LIVECONTROL_VIEW_DEVICESETTING = "livecontrol/viewdevicesetting";
