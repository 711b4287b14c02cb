// A message that opens while a slider's handler runs takes the release of the button or the key with it, and the slider
// would stay in a hand that let go: glued to the pointer, or deaf to updates. A slider that an update disables under the
// hand would go on to send what doesn't apply any more. So the slide ends there. The handler is not called again, for that
// would ask the camera once more for what it has just refused; an update shows what is there.

/** Teaches the document's sliders that. The document outlives the panel: a panel that is opened again finds it done. */
export function bindInterruptedSlides() {
    if ($.ui.slider.prototype._letGo) {
        return;
    }
    let blurs = 0; // of the page: what opens over it takes the focus
    $(window).on("blur", () => {
        blurs += 1;
    });

    $.widget("ui.slider", $.ui.slider, {
        _handleEvents: $.extend({}, $.ui.slider.prototype._handleEvents, {
            // The key comes up elsewhere when the focus leaves with it held.
            blur(event) {
                if (!this.slides) {
                    this._handleEvents.keyup.call(this, event);
                }
            }
        }),

        _slide(event, index, value) {
            const before = blurs;
            this.slides = true;
            this._super(event, index, value);
            this.slides = false;
            if (blurs !== before) {
                this._letGo();
            }
        },

        _setOptionDisabled(value) {
            this._super(value);
            if (value && (this._mouseSliding || this._keySliding)) {
                this._letGo();
            }
        },

        _mouseCapture(event) {
            this.isLetGo = false;
            return this._super(event) && !this.isLetGo;
        },

        _letGo() {
            this.isLetGo = true;
            this.document.off("mousemove.slider mouseup.slider");
            this._mouseStarted = false;
            this._mouseSliding = false;
            this._keySliding = false;
            this._removeClass(this.handles, null, "ui-state-active");
            this.document.trigger("mouseup"); // frees the mouse for the next widget
            // Of the panel that is open then, and after the update that may have brought it here.
            setTimeout(() => window.livecontrol_obj.update(), 0);
        }
    });
}
