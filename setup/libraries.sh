# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2154 # $root comes from lib.sh
# Cross-builds the static libraries that Debian has no Windows packages of, into build/deps/windows.
# Sourced after lib.sh and source-package.sh.

library_home=$root/build/deps/windows

# Configures, builds and installs a CMake project for Windows. Objects are built with exceptions,
# since ours pass through the C libraries' frames.
cross_build() { # SOURCE-DIRECTORY CMAKE-ARGUMENT...
    local source=$1 build="${1%/}-build"
    shift
    [[ $source != /usr/* ]] || build=$root/build/deps/${source##*/}-build
    rm -rf "$build"
    cmake -S "$source" -B "$build" -G Ninja \
        -D CMAKE_TOOLCHAIN_FILE="$root/setup/mingw-w64.cmake" \
        -D CMAKE_BUILD_TYPE=Release -D CMAKE_C_FLAGS=-fexceptions \
        -D CMAKE_INSTALL_PREFIX="$library_home" -D BUILD_SHARED_LIBS=OFF "$@"
    cmake --build "$build"
    cmake --install "$build"
    rm -rf "$build"
}

# The interface of version 6b ("62"), which is libjpeg-turbo's default.
build_libjpeg_turbo() {
    fetch_source libjpeg-turbo "$root/build/deps/libjpeg-turbo"
    cross_build "$root/build/deps/libjpeg-turbo/source" \
        -D ENABLE_SHARED=OFF -D WITH_TURBOJPEG=OFF -D WITH_JAVA=OFF -D REQUIRE_SIMD=ON
}

build_libpng() {
    fetch_source libpng1.6 "$root/build/deps/libpng"
    cross_build "$root/build/deps/libpng/source" \
        -D PNG_SHARED=OFF -D PNG_TESTS=OFF -D PNG_EXECUTABLES=OFF
}

build_googletest() {
    cross_build /usr/src/googletest
}

# Builds LIBRARY with build_LIBRARY unless that has been done with this recipe and this compiler.
need_library() { # NAME
    local name=$1 stamp="$library_home/stamps/$1" key
    key=$(stamp_key "$root/setup/libraries.sh" "$root/setup/source-package.sh" \
        "$root/setup/mingw-w64.cmake" "$(x86_64-w64-mingw32-g++-posix --version | head -n 1)")
    if [[ $(cat "$stamp" 2>/dev/null) == "$key" ]]; then return; fi
    if [[ $name != googletest && -z ${source_lists_updated-} ]]; then
        logged "updating the list of source packages" source-lists update_source_lists
        source_lists_updated=yes
    fi
    logged "building $name for Windows" "$name" "build_${name//-/_}"
    if [[ -f $root/build/deps/$name/version ]]; then
        say "  from Debian's source $(<"$root/build/deps/$name/version")"
    fi
    mkdir -p "${stamp%/*}"
    echo "$key" >"$stamp"
}
