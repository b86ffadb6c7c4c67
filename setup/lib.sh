# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Shared by the commands and the scripts in setup/. Sourced; sets $root.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Progress goes to standard output; standard error is for what went wrong.
say() { echo "tintkit: $*"; }

die() {
    echo "tintkit: $*" >&2
    exit 1
}

die_usage() { # COMMAND MESSAGE
    echo "$1: $2 (see $1 --help)" >&2
    exit 2
}

# A digest of files (by content) and words, to key a stamp with.
stamp_key() {
    local item
    for item in "$@"; do
        if [[ -f $item ]]; then cat "$item"; else echo "$item"; fi
    done | sha256sum | cut -d ' ' -f 1
}

# Says WHAT is being done, runs the command with its output in build/logs/NAME.log, and shows the
# time it takes while it runs. On failure shows the end of the log and stops, with the hint if any.
logged() { # [--hint TEXT] WHAT NAME COMMAND [ARGUMENT...]
    local hint=''
    if [[ $1 == --hint ]]; then
        hint=$2
        shift 2
    fi
    local what=$1 log="$root/build/logs/$2.log" begin=$SECONDS ticker status
    shift 2
    mkdir -p "$root/build/logs"
    say "$what ..."
    show_elapsed "$$" &
    ticker=$!
    set +e # not "|| status=$?": that would switch -e off inside as well
    (set -e && "$@") >"$log" 2>&1 </dev/null
    status=$?
    set -e
    kill "$ticker" 2>/dev/null
    wait "$ticker" 2>/dev/null || true
    if ((status != 0)); then
        tail -n 20 "$log"
        die "failed: $what (status $status${hint:+; $hint}); the end of ${log#"$root"/} stands above"
    fi
    say "  done ($((SECONDS - begin)) s)"
}

# On a terminal one line that counts the seconds; elsewhere a line each half minute.
show_elapsed() { # PID-OF-THE-SCRIPT
    local begin=$SECONDS
    while kill -0 "$1" 2>/dev/null; do
        sleep 1
        if [[ -t 1 ]]; then
            printf '  %d s\r' $((SECONDS - begin))
        elif (((SECONDS - begin) % 30 == 0)); then
            say "  $((SECONDS - begin)) s"
        fi
    done
}

# The path as a Windows program under Wine knows it.
windows_path() { # ABSOLUTE-PATH
    echo "Z:${1//\//\\}"
}
