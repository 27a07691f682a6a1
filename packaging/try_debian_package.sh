#!/usr/bin/env bash
# Installs the packages that make_debian_package.sh made in a Debian that has nothing else, and uses them there: the
# terminal with the demonstration, as an ordinary user without a screen; manual pages and completions; the service, by
# hand and under a service manager in a container; a program of somebody else's against the libraries. Needs root and the mirror of /etc/apt; leaves nothing behind but the screenshot.
#     packaging/try_debian_package.sh [SUITE]      # bookworm
set -euo pipefail
cd "$(dirname "$0")/.."

suite=${1:-bookworm}
mirror=${VYX_DEBIAN_MIRROR:-http://deb.debian.org/debian}
packages=$PWD/build/release/packages
picture=$PWD/build/vyxdisplay-package.png
[ "$(id -u)" -eq 0 ] || { echo "To be run as root." >&2; exit 1; }
packaging/install_build_packages.sh package
ls "$packages"/vyxdisplay_*.deb "$packages"/libkorvane-dev_*.deb >/dev/null

root=$(mktemp -d /var/tmp/vyx-package.XXXXXX)
chmod 755 "$root"
clean() {
    umount "$root/proc" 2>/dev/null || true
    rm -rf --one-file-system "$root"
}
trap clean EXIT
inside() { chroot "$root" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
    DEBIAN_FRONTEND=noninteractive "$@"; }
user() { inside setpriv --reuid 1000 --regid 1000 --clear-groups env HOME=/home/user QT_QPA_PLATFORM=offscreen "$@"; }
step() { printf '\n== %s (after %d s)\n' "$*" "$SECONDS"; }

step "A clean $suite"
debootstrap --variant=minbase "$suite" "$root" "$mirror" >/dev/null
mount -t proc proc "$root/proc"
inside useradd --create-home --uid 1000 user
mkdir "$root/packages"
cp "$packages"/*.deb "$root/packages/"

step "The programs"
inside sh -c 'apt-get update -qq && apt-get install -y -qq -o Dpkg::Use-Pty=0 --no-install-recommends /packages/vyxdisplay_*.deb' >/dev/null
user vyxdisplay --demo --exit-after 10 --screenshot /home/user/window.png --snapshot /home/user/tracks.json
cp "$root/home/user/window.png" "$picture"
octets=$(stat -c %s "$picture") # a window without a picture in it takes some 20,000
[ "$octets" -gt 60000 ] || { echo "The screenshot is too small to show anything: $octets octets" >&2; exit 1; }
tracks=$(grep -c '"trackNumber"' "$root/home/user/tracks.json")
[ "$tracks" -gt 10 ] || { echo "The demonstration shows no tracks" >&2; exit 1; }
echo "$picture: $octets octets; $tracks track numbers in the snapshot"
user sh -c 'vyx-traffic --duration 60 --pcap /tmp/minute.pcap 2>/dev/null && vyx-asterix doctor /tmp/minute.pcap'
user vyx-map info /usr/share/vyxdisplay/maps/world.map | head -3
for program in $(inside dpkg -L vyxdisplay | sed -n 's,^/usr/bin/,,p'); do
    inside sh -c "zcat /usr/share/man/man1/$program.1.gz | grep -q '^.SH OPTIONS' &&
        bash -n /usr/share/bash-completion/completions/$program &&
        test -f /usr/share/zsh/vendor-completions/_$program"
done

step "The service"
inside getent passwd vyxdisplay
inside systemd-analyze verify /lib/systemd/system/vyxdisplay.service
inside install -d -o vyxdisplay -g vyxdisplay /var/lib/vyxdisplay
inside setpriv --reuid vyxdisplay --regid vyxdisplay --init-groups env HOME=/var/lib/vyxdisplay \
    vyxdisplay --headless --exit-after 5 --snapshot /var/lib/vyxdisplay/snapshot.json
inside test -s /var/lib/vyxdisplay/snapshot.json

step "The service, under its manager with all restrictions of the unit"
inside sh -c 'apt-get install -y -qq -o Dpkg::Use-Pty=0 --no-install-recommends systemd-sysv dbus' >/dev/null
cat > "$root/etc/systemd/system/ask.service" <<'END'
[Unit]
After=vyxdisplay.service
[Service]
ExecStart=/bin/sh -c 'vyxdisplay --ask /run/vyxdisplay/control status >/var/answer.json 2>&1; systemctl --no-block poweroff'
[Install]
WantedBy=multi-user.target
END
inside systemctl enable --quiet vyxdisplay ask
umount "$root/proc"
timeout 120 systemd-nspawn --quiet --directory "$root" --register=no --keep-unit --boot </dev/null >/dev/null
mount -t proc proc "$root/proc"
grep -q '"ok":true' "$root/var/answer.json" || { echo "The service does not answer: $(cat "$root/var/answer.json")" >&2; exit 1; }
rm "$root/var/answer.json" "$root/etc/systemd/system/ask.service"

step "The libraries"
inside sh -c 'apt-get install -y -qq -o Dpkg::Use-Pty=0 --no-install-recommends /packages/libkorvane-dev_*.deb \
    g++ make cmake pkg-config' >/dev/null
cp -r tests/install/consumer "$root/home/user/consumer"
user sh -c 'cmake -S /home/user/consumer -B /tmp/consumer >/dev/null && cmake --build /tmp/consumer >/dev/null &&
    ctest --test-dir /tmp/consumer --output-on-failure'
user sh -c 'g++ -std=c++20 /home/user/consumer/asterix.cpp -o /tmp/asterix $(pkg-config --cflags --libs korvane_asterix) &&
    /tmp/asterix'

step "Gone again"
inside apt-get purge -y -qq -o Dpkg::Use-Pty=0 vyxdisplay libkorvane-dev >/dev/null
left=$(inside find /usr /etc /lib -iname '*vyx*' -o -iname '*korvane*')
[ -z "$left" ] || { echo "Left behind: $left" >&2; exit 1; }
step "All is well"
