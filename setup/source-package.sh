# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2154 # $root comes from lib.sh
# Fetches Debian source packages without touching the machine's configuration: a copy of its source
# lists, turned to sources, lives under build/deps/apt. Sourced after lib.sh.

apt_home=$root/build/deps/apt

source_apt() { # apt-get | apt-cache, ARGUMENT...
    local program=$1
    shift
    "$program" -o Dir::Etc::SourceList=/dev/null -o Dir::Etc::SourceParts="$apt_home/sources" \
        -o Dir::State::Lists="$apt_home/lists" -o Dir::Cache="$apt_home/cache" \
        -o APT::Sandbox::User=root "$@"
}

# apt checks the signatures of the lists, and by them every file it fetches.
update_source_lists() {
    local list
    rm -rf "$apt_home/sources"
    mkdir -p "$apt_home/sources" "$apt_home/lists/partial" "$apt_home/cache/archives/partial"
    for list in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [[ -f $list ]] || continue
        sed -n 's/^[[:space:]]*deb[[:space:]]/deb-src /p' "$list" >"$apt_home/sources/${list##*/}.list"
    done
    for list in /etc/apt/sources.list.d/*.sources; do
        [[ -f $list ]] || continue
        sed 's/^Types:.*/Types: deb-src/' "$list" >"$apt_home/sources/${list##*/}"
    done
    # A list that fails is no matter as long as the packages we want are in another.
    source_apt apt-get update || true
}

# The versions that can be had, newest first.
source_versions() { # PACKAGE
    source_apt apt-cache --only-source showsrc "$1" 2>/dev/null | sed -n 's/^Version: //p' | sort -u |
        sort_versions
}

sort_versions() {
    local version sorted=() i
    while read -r version; do
        for ((i = 0; i < ${#sorted[@]}; i++)); do
            if dpkg --compare-versions "$version" gt "${sorted[i]}"; then break; fi
        done
        sorted=("${sorted[@]:0:i}" "$version" "${sorted[@]:i}")
    done
    ((${#sorted[@]} == 0)) || printf '%s\n' "${sorted[@]}"
}

# Fetches and unpacks the newest version that the mirrors really hold (a fresh security version may
# be listed before its files are there) into DIRECTORY/source.
fetch_source() { # PACKAGE DIRECTORY
    local package=$1 directory=$2 version
    rm -rf "$directory"
    mkdir -p "$directory"
    cd "$directory" || return
    for version in $(source_versions "$package"); do
        echo "== $package $version"
        if source_apt apt-get source --only-source --download-only "$package=$version"; then
            dpkg-source --no-check --extract ./*.dsc source
            echo "$version" >version
            return
        fi
        rm -f -- *
    done
    echo "No version of the source package $package can be had from the package sources of this"
    echo "machine. Is the network up, and do the mirrors in /etc/apt hold sources (deb-src)?"
    return 1
}
