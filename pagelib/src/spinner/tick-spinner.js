import {ticksBetween} from "./arithmetic.js";

const MOST_TICKS = 1e6; // more would not fit into the number that carries them

// A spinner for what moves by steps of its own: it tells how many steps it was turned, not where to.
//
// Events, as options or by on():
//   tickup, tickdown  with ui.value = how many steps. The first step of a turn is reported at once, those that follow within
//         `timeout` milliseconds together. After a return of false the field goes back to what it showed before.
// A typed number is reported as the steps that lead to it; one that is nearer than half a step is not taken.
export const tickSpinner = {
    widgetEventPrefix: "",
    options: {
        timeout: 0,
        tickup: null,
        tickdown: null
    },

    _create() {
        this.ticks = 0; // not reported so far, negative downwards
        this._super();
    },

    _destroy() {
        clearTimeout(this.tickTimer);
        this._super();
    },

    _step(event, direction, count) {
        const before = this.value();
        this._super(event, direction, count);
        if (this.value() !== before) {
            this._count(event, direction * count);
        }
    },

    _count(event, ticks) {
        this.ticks = Math.max(-MOST_TICKS, Math.min(MOST_TICKS, this.ticks + ticks));
        if (!this.tickTimer) {
            this._tell(event);
        }
    },

    _tell(event) {
        const ticks = this.ticks;
        this.ticks = 0;
        this.tickTimer = ticks ? setTimeout(() => this._tell(event), this.options.timeout) : 0;
        if (ticks && !this._call(ticks > 0 ? "tickup" : "tickdown", event, {value: Math.abs(ticks)})) {
            this._show(this.committed);
        }
    },

    // What was reported meanwhile is the newer value: a typed number counts from there, and a turn ends in it.
    _fire(event) {
        const isTyped = this.typing;
        const before = this.outside ? this.outside.number : this.committed;
        const isReported = Boolean(this.outside);
        this._super(event);
        const ticks = isTyped ? ticksBetween(before, this.committed, this.options) : 0;
        if (ticks) {
            this._count(event, ticks);
        } else if (isTyped || isReported) {
            this._take(before); // too near for a step, or the end of a turn
        }
    }
};
