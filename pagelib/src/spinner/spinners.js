import $ from "../jquery.js";
import {spinnerBase} from "./spinner-base.js";
import {tickSpinner} from "./tick-spinner.js";

const REST = 400; // ms without a step after which a spinner that waits has come to rest

// Fires at once when a button, a key or the wheel is let go.
const realtimeFire = {widgetEventPrefix: ""};

// Fires once the value has come to rest: a row of clicks is one edit. Leaving the field or Enter ends the wait.
const stopFire = {
    widgetEventPrefix: "",

    _endSpin(event) {
        this._stopTimers();
        if (!this.spun) {
            return;
        }
        clearTimeout(this.restTimer);
        this.restTimer = setTimeout(() => {
            if (this.spun && !this.holdTimer) {
                this._fire(event);
            }
        }, REST);
    },

    _fire(event) {
        clearTimeout(this.restTimer);
        this._super(event);
    },

    _abandon() {
        clearTimeout(this.restTimer);
        this._super();
    }
};

/** Registers the spinner widgets with jQuery, once; without jQuery UI on the page there are none. */
export function installSpinners() {
    if (!$.widget || ($.zel && $.zel.spinnerRealtimeFire)) {
        return;
    }
    // The prefix is not inherited: each widget would put its own name before spin and fire.
    $.widget("zel.spinnerBase", spinnerBase);
    $.widget("zel.spinnerRealtimeFire", $.zel.spinnerBase, realtimeFire);
    $.widget("zel.spinnerStopFire", $.zel.spinnerBase, stopFire);
    $.widget("zel.spinnerTick", $.zel.spinnerBase, tickSpinner);
}
