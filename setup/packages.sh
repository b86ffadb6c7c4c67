# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2154 # $root comes from lib.sh
# Installs Debian packages that are missing. Sourced after lib.sh.

# The names in setup/packages/GROUP.txt, without comments.
package_names() { # GROUP...
    local group
    for group in "$@"; do
        sed -e 's/#.*//' -e 's/[[:space:]]*$//' -e '/^$/d' "$root/setup/packages/$group.txt"
    done | sort -u
}

missing_packages() { # NAME...
    local installed name
    installed=$(dpkg-query --show --showformat '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null |
        sed -n 's/^installed //p') || true
    for name in "$@"; do
        grep -qxF -- "$name" <<<"$installed" || echo "$name"
    done
}

# Sets the array as_root to what must stand before a command that needs root.
find_root() { # MISSING-PACKAGES (for the message)
    if ((EUID == 0)); then
        as_root=(env)
    elif ! command -v sudo >/dev/null; then
        die "these packages are missing, and installing them takes root or sudo: $1"
    elif sudo -n true 2>/dev/null || { [[ -t 0 ]] && sudo -v; }; then
        as_root=(sudo env)
    else
        die "these packages are missing, and sudo does not let you install them: $1"
    fi
}

need_packages() { # GROUP...
    local names missing as_root
    command -v dpkg-query >/dev/null || die "set-up knows Debian 12 and its like only (no dpkg here)"
    mapfile -t names < <(package_names "$@")
    mapfile -t missing < <(missing_packages "${names[@]}")
    ((${#missing[@]})) || return 0

    find_root "${missing[*]}"
    say "missing: ${missing[*]}"
    logged "updating the package lists" apt-update update_package_lists
    logged --hint "is the network up?" "installing ${#missing[@]} packages and what they need" \
        apt-install install_packages "${missing[@]}"
}

# A list that fails, of whatever else the machine uses, is no matter if the packages are found.
update_package_lists() {
    "${as_root[@]}" apt-get -o DPkg::Lock::Timeout=300 update || true
}

install_packages() { # NAME...
    "${as_root[@]}" DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300 \
        install --yes --no-install-recommends "$@"
}
