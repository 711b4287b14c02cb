const ENTER = 13;

/** Enter is OK, but where it does something by itself. */
export function bindEnter(ok) {
    $(document).on("keydown", (event) => {
        const isOwn = $(event.target).is("button, a, [role=button], [role=combobox]");
        if (event.which === ENTER && !isOwn && !$("#edit-portlet-dialog").is(":visible")) {
            event.preventDefault();
            ok();
        }
    });
}
