/** Numbers of the panel's pages, in the order of `livecontrol_obj.pages`. */
export const LIVE_PAGE = {
    LIST: 0,
    DEVICE_SETTING: 1,
    VARIABLE: 2,
    AUTO_EXPOSURE: 3,
    HW_IMAGE_TRIGGER: 4
};
