import $ from "../../jquery.js";
import {bindRows, fill, recordOf, rowOf} from "../record-rows.js";
import {columnsOf, firstTicks, idOf, keptTicks, lastColumnOf, momentOf, rowOfCurrent, sourceOf, tickedRows} from "./choice.js";

// The rows of what can be saved or opened, with ticks, and the picture of the row in hand. Names are the user's or a
// camera's: text nodes only.

const THUMBNAIL = {width: 240, height: 180};

/**
 * @param {Object} mediator - lists the rows and gives their pictures
 * @param {Object} options - `temporary`: of what is open for this dialog only; `from`: with where it comes from;
 *     `preview(row, width, height)`: gives another picture of the row, or an empty text; `changed()` is told of
 *     ticks and of another row in hand; `isGone(row)`: has no row any more; `current()`: key of the document that
 *     shows, whose row is in hand at first; `isSingle`: it is ticked alone
 */
export function rowList(mediator, options) {
    let rows = [];
    let ticks = [];
    let chosen = null;
    let answer = ""; // of the mediator, as it was read last

    const rowInHand = () => rows.find((row) => idOf(row) === chosen);

    function showPicture() {
        const row = rowInHand();
        const png = row ? mediator.select(Number(row.dockey), Number(row.partitionno), THUMBNAIL.width, THUMBNAIL.height)
            : "";
        const other = row && options.preview ? options.preview(row, THUMBNAIL.width, THUMBNAIL.height) : "";
        showPng(other || png);
    }

    function showPng(png) {
        $("#thumbnail").attr("src", png ? `data:image/png;base64,${png}` : null).toggle(Boolean(png));
    }

    function show() {
        const isDated = rows.some((row) => momentOf(row) !== "");
        $("#recorded_column").toggle(isDated);
        fill("#rows", rows.map((row) => {
            const id = idOf(row);
            const [name, ...columns] = columnsOf(row);
            const texts = (options.from ? [sourceOf(row)] : []).concat(isDated ? [momentOf(row)] : [], columns);
            const box = $("<input>", {type: "checkbox", checked: ticks.includes(id)})
                .attr({id: `tick:${id}`, "aria-label": name});
            return rowOf("save-row", name, [box, document.createTextNode(name), ...texts.map((text) =>
                document.createTextNode(text))], id === chosen)
                .attr("data-recid", row.recid).toggleClass("not-saved", Boolean(row.style));
        }));
        if (rows.length) {
            $("#last_column").text(mediator.translate(lastColumnOf(rows[0])));
        }
        $("#no_rows").toggle(rows.length === 0);
        $("#all_rows").prop("checked", rows.length > 0 && ticks.length === rows.length);
    }

    function choose(id) {
        chosen = id;
        show();
        showPicture();
        options.changed();
    }

    function tick(id, on) {
        ticks = keptTicks(rows, on ? ticks.concat(id) : ticks.filter((each) => each !== id));
        show();
        options.changed();
    }

    const idOfRecord = (row) => idOf(rows.find((each) => each.recid === recordOf(row)));
    bindRows("#rows", (row, event) => {
        if (!$(event.target).is("input")) {
            choose(idOfRecord(row));
        }
    });
    $("#rows").on("change", "tbody input", (event) =>
        tick(idOfRecord($(event.target).closest("tr")), event.target.checked));
    $("#all_rows").on("change", (event) => {
        ticks = event.target.checked ? rows.map(idOf) : [];
        show();
        options.changed();
    });

    const shown = () => (options.current ? rowOfCurrent(rows, options.current()) : undefined);
    const ask = () => mediator.list(Boolean(options.temporary)) || "[]";

    /** In live mode a camera has no recording to save, but the picture that shows. */
    function called(row) {
        return row.cameraname && !options.temporary && mediator.isLiveMode()
            ? Object.assign({}, row, {totalframes: mediator.translate("Live picture")}) : row;
    }

    function take(text) {
        const isFirst = rows.length === 0;
        answer = text;
        rows = JSON.parse(text).map(called).filter((row) => !options.isGone || !options.isGone(row));
        ticks = isFirst ? firstTicks(rows, options.isSingle ? shown() : undefined) : keptTicks(rows, ticks);
    }

    /** Reads the list anew; what is ticked and in hand stays as far as it is there. */
    function read() {
        take(ask());
        if (!rowInHand() && rows.length) {
            const first = shown();
            chosen = first ? idOf(first) : ticks[0] || idOf(rows[0]);
        }
        choose(chosen);
    }

    return {
        read,
        /** The same, with the first row in hand that was not there before, or none. */
        readNew() {
            const before = rows.map(idOf);
            take(ask());
            const fresh = rows.map(idOf).filter((id) => !before.includes(id));
            choose(fresh.length ? fresh[0] : null);
        },
        /** The same as read(), if the list is another one now. */
        refresh() {
            if (ask() !== answer) {
                read();
            }
        },
        all: () => rows,
        ticked: () => tickedRows(rows, ticks),
        inHand: rowInHand,
        showPicture
    };
}
