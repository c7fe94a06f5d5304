# Sourced by what tries Quorlin on a machine made for it: make_root ROOT makes a minimal Debian 12 in that folder, with the
# packages of the mirrors that this machine uses and with its settings for them; mount_below ROOT and unmount give it what
# programs expect. Needs root and mmdebstrap.

# How this machine's apt reaches its mirrors: options, sources, keys and certificates.
make_root() {
    local root=$1 part
    local options=(--mode=root --variant=minbase --quiet --aptopt='APT::Install-Recommends "false"')
    for part in /etc/apt/apt.conf /etc/apt/apt.conf.d/*; do
        ! grep -qs '^ *Acquire::' "$part" || options+=("--aptopt=$part")
    done
    local sources=/etc/apt/sources.list.d/debian.sources
    [ -f $sources ] || sources=/etc/apt/sources.list
    mmdebstrap "${options[@]}" bookworm "$root" $sources
    for part in etc/apt/auth.conf.d etc/apt/trusted.gpg.d usr/share/keyrings usr/local/share/ca-certificates etc/ssl/certs; do
        [ ! -d "/$part" ] || { mkdir -p "$root/$part"; cp -rL --update "/$part/." "$root/$part/"; }
    done
    cp -L /etc/resolv.conf /etc/hosts "$root/etc/"
}

# Whoever calls this runs in a mount namespace of its own, so that a mount is seen by no other process.
mounted=()
mount_one() {
    local place=${*: -1}
    mkdir -p "$place"
    mount "$@"
    mounted+=("$place")
}
mount_below() {
    local root=$1
    mount_one -t proc proc "$root/proc"
    mount_one -t sysfs -o ro sysfs "$root/sys"
    mount_one -t devpts -o newinstance,ptmxmode=0666 devpts "$root/dev/pts"
    mount_one -t tmpfs tmpfs "$root/dev/shm"
}
unmount() {
    local i
    for ((i = ${#mounted[@]} - 1; i >= 0; i--)); do
        umount -l "${mounted[i]}" || return 1
    done
    mounted=()
}

# inside ROOT COMMAND: without the variables of this machine, but for those that say how the network is reached.
inside() {
    local root=$1 name
    local variables=(HOME=/srv PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 TERM=dumb)
    for name in http_proxy https_proxy no_proxy SSL_CERT_FILE SSL_CERT_DIR; do
        [ -z "${!name-}" ] || variables+=("$name=${!name}")
    done
    chroot "$root" env -i "${variables[@]}" bash -c "$2"
}
