# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Everything the commands at the root share. Sourced by them.

# shellcheck source=setup/lib.sh
. "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
# shellcheck source=setup/packages.sh
. "$root/setup/packages.sh"
# shellcheck source=setup/source-package.sh
. "$root/setup/source-package.sh"
# shellcheck source=setup/libraries.sh
. "$root/setup/libraries.sh"
# shellcheck source=setup/build.sh
. "$root/setup/build.sh"

# GoogleTest too where only a program is wanted: tests and programs share one build tree.
need_windows_libraries() {
    need_library libjpeg-turbo
    need_library libpng
    need_library googletest
}
