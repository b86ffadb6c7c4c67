# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2154 # $root comes from lib.sh
# Configures and builds presets. Sourced after lib.sh.

# Only one command at a time sets up and builds; others wait. The lock is let go by release_build
# (or the end of the command), so that running what was built does not hold others up.
lock_build() {
    mkdir -p "$root/build"
    exec {build_lock}>>"$root/build/.lock"
    if ! flock --nonblock "$build_lock"; then
        say "waiting for another command that is building ..."
        flock "$build_lock"
    fi
}

release_build() { exec {build_lock}>&-; }

# Configures PRESET when it never was or its settings changed; ninja sees to the rest.
configure() { # PRESET
    local stamp="$root/build/$1/configured" key
    key=$(stamp_key "$root/CMakePresets.json" "$root/setup/mingw-w64.cmake")
    if [[ $(cat "$stamp" 2>/dev/null) == "$key" && -f $root/build/$1/build.ninja ]]; then return; fi
    cd "$root" || return
    logged "configuring $1" "configure-$1" cmake --preset "$1" --fresh
    echo "$key" >"$stamp"
}

build_preset() { # PRESET TARGET...
    local preset=$1
    shift
    configure "$preset"
    say "building $preset (${*:-all}) ..."
    (cd "$root/build/$preset" && ninja "$@") ||
        die "the build '$preset' failed; the compiler's messages stand above"
}
