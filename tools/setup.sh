#!/usr/bin/env bash
# tools/setup.sh GROUP...: makes sure that the packages of these groups of packaging/packages.txt are installed.
#
# Installs what is missing when that is possible (as root, or through sudo); otherwise names the missing packages with
# the command that installs them and ends with status 1. On a system without dpkg it only says what is needed.
set -euo pipefail
list=$(dirname "$0")/../packaging/packages.txt

wanted=()
while read -r groups package _; do
    for group in ${groups//,/ }; do
        case " $* " in *" $group "*) wanted+=("$package") ;; esac
    done
done < "$list"
[ ${#wanted[@]} -gt 0 ] || { echo "setup: no package is listed for: $*" >&2; exit 2; }

if ! command -v dpkg-query > /dev/null; then
    echo "setup: this is not a Debian system. Quorlin needs what Debian calls: ${wanted[*]}" >&2
    exit 0
fi

missing() {
    local installed
    installed=$(dpkg-query -W -f='${Package} ${db:Status-Status}\n' "${wanted[@]}" 2> /dev/null | sed -n 's/ installed$//p') || true
    comm -23 <(printf '%s\n' "${wanted[@]}" | sort -u) <(sort -u <<< "$installed")
}

mapfile -t absent < <(missing)
[ ${#absent[@]} -gt 0 ] || exit 0

install="apt-get install --yes --no-install-recommends ${absent[*]}"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if command -v sudo > /dev/null && { sudo -n true 2> /dev/null || [ -t 0 ]; }; then
        as_root=(sudo)
    else
        printf 'Missing packages: %s\nInstall them with:\n\n    su -c "apt-get update && %s"\n\nand try again.\n' \
            "${absent[*]}" "$install" >&2
        exit 1
    fi
fi

echo "Installing ${absent[*]}"
run_apt() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300 "$@"
}
log=$(mktemp)
trap 'rm -f "$log"' EXIT
# A package list that cannot be renewed is no reason to stop: the one that is there may still do.
run_apt update > "$log" 2>&1 < /dev/null || true
if ! run_apt install --yes --no-install-recommends "${absent[@]}" >> "$log" 2>&1 < /dev/null; then
    tail -n 20 "$log" >&2
    printf '\nThese packages could not be installed: %s\nInstall them with:\n\n    %s%s\n\nand try again.\n' \
        "$(missing | tr '\n' ' ')" "${as_root[0]:+sudo }" "$install" >&2
    exit 1
fi
