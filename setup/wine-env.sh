# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154 # the names are for, and from, who sources this
# What every Wine process of ours needs in its environment. Sourced.

# The wrapper named "wine" looks for a 32-bit half that is not installed; the loader does not.
wine_loader=/usr/lib/wine/wine64
wine_server=/usr/lib/wine/wineserver64

wine_environment() { # PREFIX
    export WINEPREFIX="$1" WINEARCH=win64 WINEDEBUG="${WINEDEBUG:--all}"
    # No offers to download .NET or an HTML engine, no entries in the user's desktop menus.
    export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
    # A fixed set of fonts, so that pictures do not depend on what else is installed.
    export FONTCONFIG_FILE="$root/setup/fonts.conf"
}
