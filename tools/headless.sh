#!/bin/bash
# headless.sh [--clean-home] COMMAND [ARGUMENT...]: runs a command on a screen of its own, drawn in software (Xvfb).
# SECOND_SCREEN=800x600x24 in the environment gives the command a second screen beside it, NO_GLX=1 a server that has
# no such extension, as those of remote desktops.
# With --clean-home the command finds an empty folder for settings, data and caches that goes with it.
# Each call has its own screen, so that two GUI tests at a time don't take the focus from each other.
set -u
clean_home=no
if [ "$1" = --clean-home ]; then
    clean_home=yes
    shift
fi
folder=$(mktemp -d)
server=
child=
# shellcheck disable=SC2317  # called by the trap
cleanup() {
    [ -z "$child" ] || kill "$child" 2>/dev/null
    [ -z "$server" ] || { kill "$server" && wait "$server"; } 2>/dev/null
    rm -rf "$folder"
}
trap cleanup EXIT
trap 'exit 143' TERM
trap 'exit 130' INT
trap 'exit 129' HUP

export XAUTHORITY=$folder/authority
touch "$XAUTHORITY"
cookie=$(od -An -N16 -tx1 /dev/urandom | tr -d ' \n')
# The server picks a free number itself and writes it to the pipe once it listens. The file it reads needs a
# number too, which it ignores.
xauth -q add :0 . "$cookie" 2>/dev/null
mkfifo "$folder/display"
screens=(-screen 0 1600x1000x24)
[ -z "${SECOND_SCREEN:-}" ] || screens+=(-screen 1 "$SECOND_SCREEN")
[ -z "${NO_GLX:-}" ] || screens+=(-extension GLX)
Xvfb -displayfd 3 "${screens[@]}" -dpi 96 -nolisten tcp -noreset -auth "$XAUTHORITY" \
    3>"$folder/display" >"$folder/log" 2>&1 &
server=$!
read -r -t 20 number <"$folder/display"
if [ -z "${number:-}" ]; then
    cat "$folder/log" >&2
    echo "No virtual screen could be started." >&2
    exit 1
fi
xauth -q add ":$number" . "$cookie"

export DISPLAY=:$number LIBGL_ALWAYS_SOFTWARE=1
if [ $clean_home = yes ]; then
    mkdir -m 700 "$folder"/{config,data,cache}
    export XDG_CONFIG_HOME=$folder/config XDG_DATA_HOME=$folder/data XDG_CACHE_HOME=$folder/cache
    # Compiled shaders are nobody's settings, and compiling them takes half a second in each program.
    shaders=$(dirname "$(readlink -f "$0")")/../build/shaders
    mkdir -p "$shaders"
    export MESA_SHADER_CACHE_DIR=${MESA_SHADER_CACHE_DIR:-$shaders}
fi
if [ $clean_home = yes ] || [ -z "${XDG_RUNTIME_DIR:-}" ]; then
    mkdir -m 700 "$folder/runtime"
    export XDG_RUNTIME_DIR=$folder/runtime
fi
unset WAYLAND_DISPLAY QT_QPA_PLATFORM
# In the background, for a shell handles a signal only when its foreground command has ended.
"$@" <&0 &
child=$!
wait "$child"
status=$?
child=
exit $status
