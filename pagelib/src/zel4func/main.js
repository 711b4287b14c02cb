import {installSpinners} from "../spinner/spinners.js";
import {enhance} from "../ui/enhance.js";
import {applyButtonLabelFontSize} from "./button-labels.js";
import {createDatetimeFormatSelector} from "./datetime-format.js";
import {disable} from "./disable.js";
import {deviceNameCheck, initializeTextfield4ProhibitionFilename} from "./file-names.js";
import {appendDummy, hideSelectBox} from "./host-box.js";
import {inputIpCheck} from "./ip-check.js";
import {translateJSONListToObj} from "./json-list.js";
import {localize} from "./localize.js";
import {log} from "./log.js";
import {enableUserOperationLog, logChosenRow, updateUserOperationLogHandler} from "./operation-log.js";
import {pageMediator} from "./page-mediator.js";
import {floatceil, floatfloor, round} from "./rounding.js";
import {scrollarea_resize} from "./scroll-areas.js";
import {
    addItemSumoSelect,
    disableItemSumoSelect,
    emptySumoSelect,
    initSumoSelect,
    reloadSumoSelect,
    selectItemSumoSelect
} from "./select-box.js";
import {setDisable} from "./set-disable.js";
import {applyStyle} from "./style.js";

// The panel's document holds the library already when a plug-in's page loads it once more; the first copy stays, since
// its listeners are on the document.
if (!window.zel4func) {
    installSpinners();
    enhance();
    window.zel4func = {
        addItemSumoSelect,
        appendDummy,
        applyButtonLabelFontSize,
        applyStyle,
        createDatetimeFormatSelector,
        deviceNameCheck,
        disable,
        disableItemSumoSelect,
        emptySumoSelect,
        enableUserOperationLog,
        floatceil,
        floatfloor,
        hideSelectBox,
        initSumoSelect,
        initializeTextfield4ProhibitionFilename,
        inputIpCheck,
        localize,
        log,
        logChosenRow,
        pageMediator,
        reloadSumoSelect,
        round,
        scrollarea_resize,
        selectItemSumoSelect,
        setDisable,
        translateJSONListToObj,
        updateUserOperationLogHandler
    };
}
