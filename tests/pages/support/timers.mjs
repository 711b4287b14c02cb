/** The page's timers, which run only as far as `step` says, until `free` gives the page its own back. */
export function stepTimers({window}) {
    const {setTimeout, clearTimeout} = window;
    const due = new Map();
    let now = 0, last = 1e6;
    window.setTimeout = (action, ms = 0) => {
        last += 1;
        due.set(last, {action, at: now + ms});
        return last;
    };
    window.clearTimeout = (id) => due.delete(id) || clearTimeout(id);
    const next = (end) => [...due].filter(([, timer]) => timer.at <= end).sort(([, one], [, other]) => one.at - other.at)[0];
    return {
        step(ms) {
            const end = now + ms;
            for (let timer = next(end); timer; timer = next(end)) {
                due.delete(timer[0]);
                now = timer[1].at;
                timer[1].action();
            }
            now = end;
        },
        free: () => Object.assign(window, {setTimeout, clearTimeout})
    };
}
