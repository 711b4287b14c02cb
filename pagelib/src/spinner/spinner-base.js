import {format, isSettled, pace, parse, settle, stepped, typedNumber} from "./arithmetic.js";
import {hideHint, showHint} from "./hint.js";
import {createFrame, keyDirection, wheelDirection} from "./spinner-frame.js";

const HOLD_DELAY = 400; // ms from the press to the first repeat
const HOLD_INTERVAL = 40; // ms from one repeat to the next
const WHEEL_REST = 300; // ms without a turn of the wheel that end an edit
const KEY_ENTER = 13;
const KEY_ESCAPE = 27;

function isAllChosen({value, selectionStart, selectionEnd}) {
    return value !== "" && selectionStart === 0 && selectionEnd === value.length;
}

// Base of the spinner widgets: a text field with two buttons.
//
// Events, as options or by on():
//   spin  before each step, with ui = {value, oldValue, direction, modify}. `value` is where the step leads; the
//         handler may change it. With preventDefault(), a return of false or modify = false the field keeps what it shows. A
//         handler that sets the value itself has the last word. value() still gives the old value.
//   fire  when an edit is committed: a button, a key or the wheel let go, Enter or leaving the field after typing. The
//         value is a number within the limits then; it need not lie on a step. ui = {value}
//
// value(number) never causes an event. A value that comes from outside while the user types or spins is kept back, so
// that an update does not pull the field from under the hand; Escape brings it up.
export const spinnerBase = {
    widgetEventPrefix: "",
    defaultElement: "<input>",
    options: {
        min: null,
        max: null,
        step: 1,
        decimal: false,
        natural: false,
        decimalPoint: null,
        incremental: true,
        spin: null,
        fire: null
    },

    _create() {
        this.committed = parse(this.element.val());
        this.outside = null; // {number} that waits for the end of an edit
        this.typing = false;
        this.spun = false;
        this.held = false; // a button of it is down
        this.blurs = 0;
        this.calls = 0; // handlers of ours that run
        this.lastEvent = null;
        this.frame = createFrame(this.element, (event, direction) => this._press(event, direction));
        this._on({
            keydown: this._onKeyDown,
            keyup: (event) => keyDirection(event.which) && this._endSpin(event),
            input: () => {
                this.typing = true;
                hideHint(this.frame.element);
            },
            blur: (event) => {
                this.blurs += 1;
                this._commit(event);
            },
            wheel: this._onWheel
        });
        this._on(this.document, {mouseup: this._onRelease});
        this._refresh();
    },

    _destroy() {
        this._stopTimers();
        this.frame.release();
    },

    _setOption(key, value) {
        const turnsOff = key === "disabled" && value && !this.options.disabled;
        this._super(key, value);
        if (key === "disabled") {
            this.element.prop("disabled", Boolean(value));
        }
        if (turnsOff) {
            this._abandon();
        }
        this._refresh();
    },

    _refresh() {
        const {min, max, disabled} = this.options;
        const number = parse(this.element.val());
        this.frame.describe({min, max, number, disabled: Boolean(disabled)});
    },

    _isOff() {
        return this.options.disabled || this.element.prop("disabled");
    },

    _isBusy() {
        return this.typing || this.spun || this.held;
    },

    // WebKit puts the cursor to the end at each setting, even of what is there: what is chosen to be typed over stays so.
    _show(number) {
        const text = format(number, this.options);
        const field = this.element[0];
        if (field.value !== text) {
            const isChosen = document.activeElement === field && isAllChosen(field);
            field.value = text;
            if (isChosen) {
                field.select();
            }
        }
        this._refresh();
    },

    // Runs a handler; what it sets by value() goes into the field at once. False when it cancelled.
    _call(type, event, ui) {
        this.calls += 1;
        this.wasSet = false;
        try {
            return this._trigger(type, event, ui) && ui.modify !== false;
        } finally {
            this.calls -= 1;
        }
    },

    // One step; the subclass that counts ticks overrides it.
    _step(event, direction, count) {
        const oldValue = this.value();
        const value = stepped(oldValue === null ? this.committed : oldValue, direction, count, this.options);
        if (value === oldValue) {
            return;
        }
        const ui = {value, oldValue, direction, modify: true};
        if (this._call("spin", event, ui) && !this.wasSet) {
            this._show(ui.value);
        }
        this.spun = true;
    },

    _spin(event, direction, count) {
        if (this._isOff()) {
            this._endSpin(event);
            return;
        }
        this.lastEvent = event;
        this.typing = false;
        hideHint(this.frame.element);
        const blurs = this.blurs;
        this._step(event, direction, count);
        if (this.blurs !== blurs) {
            this._abandon(); // a message that the step brought up took the release of the button or the key with it
        }
    },

    _press(event, direction) {
        if (this._isOff()) {
            return;
        }
        this.element.trigger("focus");
        this.held = true;
        this._spin(event, direction, 1);
        if (!this.held) {
            return;
        }
        let repeats = 0;
        const repeat = () => {
            this._spin(event, direction, pace(this.options.incremental, repeats));
            repeats += 1;
            this.holdTimer = this.held && !this._isOff() ? setTimeout(repeat, HOLD_INTERVAL) : 0;
        };
        clearTimeout(this.holdTimer);
        this.holdTimer = setTimeout(repeat, HOLD_DELAY);
    },

    _onRelease(event) {
        if (this.held) {
            this._endSpin(event);
        }
    },

    _onKeyDown(event) {
        const direction = keyDirection(event.which);
        if (direction && !event.ctrlKey && !event.altKey) {
            event.preventDefault();
            this._spin(event, Math.sign(direction), Math.abs(direction));
        } else if (event.which === KEY_ENTER) {
            this._commit(event);
        } else if (event.which === KEY_ESCAPE) {
            this._abandon();
        }
    },

    _onWheel(event) {
        if (document.activeElement !== this.element[0] || this._isOff()) {
            return;
        }
        event.preventDefault();
        this._spin(event, wheelDirection(event), 1);
        clearTimeout(this.wheelTimer);
        this.wheelTimer = setTimeout(() => this._endSpin(event), WHEEL_REST);
    },

    _stopTimers() {
        clearTimeout(this.holdTimer);
        clearTimeout(this.wheelTimer);
        this.holdTimer = 0;
        this.held = false;
    },

    _endSpin(event) {
        this._stopTimers();
        if (this.spun) {
            this._fire(event);
        }
    },

    _commit(event) {
        this._stopTimers();
        const isEdited = this.spun || (this.typing && parse(this.element.val()) !== this.committed);
        if (isEdited && !this._isOff()) {
            this._fire(event);
        } else {
            this._abandon();
        }
    },

    // The text becomes the value. What is no number is no edit: the last value comes back, and a hint says why.
    _fire(event) {
        const typed = typedNumber(this.element.val(), this.options);
        if (typed === null) {
            this._abandon();
            showHint(this.frame.element, this.options);
            return;
        }
        const value = settle(typed, this.options);
        this.typing = false;
        this.spun = false;
        this.outside = null;
        this.committed = value;
        this._show(value);
        this._trigger("zelcommit", event || this.lastEvent, {value});
        this._call("fire", event || this.lastEvent, {value});
    },

    // Ends an edit without a word: the field shows the value from outside again.
    _abandon() {
        this._stopTimers();
        const wasBusy = this.typing || this.spun || this.outside;
        this.typing = false;
        this.spun = false;
        if (wasBusy) {
            this._take(this.outside ? this.outside.number : this.committed);
        }
        this.outside = null;
    },

    _take(number) {
        this.committed = number;
        this._show(number);
    },

    /** The number in the field, null if there is none; with an argument sets it without any event. */
    value(newValue) {
        if (newValue === undefined) {
            return parse(this.element.val());
        }
        const number = parse(newValue);
        this.wasSet = true;
        if (this._isBusy() && !this.calls) {
            this.outside = {number};
        } else {
            this._take(number);
        }
        return undefined;
    },

    /** Whether the text in the field is a number within the limits. */
    isValid() {
        return isSettled(this.element.val(), this.options);
    },

    /** The element with its buttons. */
    widget() {
        return this.frame.element;
    }
};
