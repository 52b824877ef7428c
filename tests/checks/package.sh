#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# package.sh BUILD: checks what a traveller gets. Makes and installs the Debian package, runs it as an ordinary user,
# and removes it without a trace. Starts the portable folder from a copy. The machine is left as it was.
set -uo pipefail
cd "$(dirname "$0")/../.." || exit 1
. tools/packages.sh
build=$(realpath "$1")

installed() { dpkg-query -W -f '${db:Status-Status} ${Package}\n' | sed -n 's/^installed //p' | sort; }
if installed | grep -qx vanzer; then
    echo 'A vanzer package is installed here: it stays as it is, and ours is not tried'
    exit 1
fi

scratch=$(mktemp -d)
installed >"$scratch/before"
leave() {
    installed | comm -13 "$scratch/before" - | xargs -r bash -c '. tools/packages.sh; as_root dpkg --purge "$@"' leave >/dev/null
    rm -rf "$scratch"
}
trap leave EXIT
fail() {
    printf 'package: %s\n' "$*"
    exit 1
}

cmake --build "$build" --target package portable >"$scratch/log" 2>&1 || { tail -n 20 "$scratch/log"; fail 'not made'; }
version=$(sed -n 's/^project(Vanzer VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
package=$build/vanzer_${version}_$(dpkg --print-architecture).deb
dpkg-deb -c "$package" | awk '$2 != "root/root" { bad = 1; print } END { exit bad }' || fail 'files that are not root'"'s"

# Runs a command as an ordinary user with a home folder, who can't write where the program is.
user() {
    local as=()
    [ "$(id -u)" -eq 0 ] && as=(setpriv --reuid=65534 --regid=65534 --clear-groups)
    "${as[@]}" env -u DISPLAY -u WAYLAND_DISPLAY -u XDG_DATA_HOME -u XDG_CONFIG_HOME -u XDG_RUNTIME_DIR HOME="$scratch/home" \
        LC_ALL=C.UTF-8 TZ=UTC QT_QPA_PLATFORM=xcb TMPDIR="$scratch/home" "$@"
}
owned() { [ "$(id -u)" -ne 0 ] || chown -R 65534:65534 "$@"; }
mkdir -m 755 "$scratch/home"
chmod 755 "$scratch"
owned "$scratch/home"

# shows_window PROGRAM ARCHIVE TITLE [FILE]: the window must appear with the archive in that place, and stay until it is
# ended.
cat >"$scratch/look" <<'LOOK'
program=$1 archive=$2 file=${3:-}
"$program" ${file:+"$file"} & pid=$!
for _ in $(seq 100); do
    sleep 0.2
    kill -0 $pid 2>/dev/null || { echo "$program ended by itself"; exit 1; }
    if xwininfo -root -tree 2>/dev/null | grep -q '"Vanzer (v\. ' && [ -s "$archive" ]; then
        sleep 0.5
        kill -0 $pid 2>/dev/null || exit 1
        kill $pid
        wait $pid
        exit 0
    fi
done
echo "$program: no window, or no archive at $archive"
kill $pid
exit 1
LOOK
shows_window() { user xvfb-run -a -s '-screen 0 1920x1200x24' bash "$scratch/look" "$@" || fail "the window of $1"; }

as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "$package" >"$scratch/log" 2>&1 ||
    { tail -n 20 "$scratch/log"; fail 'not installed'; }
# Some machines don't install documents. Those are looked for in the package, all others on the disk.
dpkg -L vanzer | while read -r file; do [ -f "$file" ] && echo "$file"; done >"$scratch/files"
dpkg-deb -c "$package" | sed 's/.* \.//' >"$scratch/packed"
for file in bin/vanzer bin/vanzer-batch bin/Scribolo share/applications/vanzer.desktop share/mime/packages/vanzer-iei.xml \
    share/icons/hicolor/scalable/apps/vanzer.svg share/metainfo/vanzer.metainfo.xml \
    share/doc/vanzer/manuale.md share/doc/vanzer/copyright share/doc/vanzer/THIRD_PARTY.md \
    share/man/man1/vanzer.1.gz share/man/man1/vanzer-batch.1.gz share/vanzer/esempi/capo_nord.iei; do
    case $file in share/doc/* | share/man/*) list=packed ;; *) list=files ;; esac
    grep -qx "/usr/$file" "$scratch/$list" || fail "no $file"
done
# Every picture of the manual must be there.
sed -n 's/^!\[.*(\(.*\))$/\1/p' docs/manuale.md >"$scratch/pictures"
[ -s "$scratch/pictures" ] || fail 'a manual without pictures'
desktop-file-validate /usr/share/applications/vanzer.desktop || fail 'the desktop file'
cp samples/sud.iei "$scratch/home/viaggio.iei"
[ "$(gio info -a standard::content-type "$scratch/home/viaggio.iei" | sed -n 's/^ *standard::content-type: //p')" = \
    application/x-vanzer-iei ] || fail 'the type of an .iei file'

mkdir "$scratch/home/prova"
owned "$scratch/home"
user /usr/bin/vanzer-batch --dir "$scratch/home/prova" --script "$PWD/samples/delta_po.txt" >"$scratch/answers" || fail 'vanzer-batch'
grep -q '"ViandoriaCalcolata":true\|"Elaborazione conclusa' "$scratch/answers" || fail 'vanzer-batch calculated nothing'
shows_window /usr/bin/vanzer "$scratch/home/.local/share/Vanzer/Vanzer/Vanzer.mdb"
shows_window /usr/bin/vanzer "$scratch/home/.local/share/Vanzer/Vanzer/Vanzer.mdb" /usr/share/vanzer/esempi/sud.iei

as_root dpkg --purge vanzer >"$scratch/log" 2>&1 || fail 'not removed'
while read -r file; do [ ! -e "$file" ] || fail "left behind: $file"; done <"$scratch/files"

# The portable folder, unpacked from its archive in a place with a blank in its name.
mkdir "$scratch/home/una chiavetta"
tar xzf "$build/vanzer-$version-portable.tar.gz" -C "$scratch/home/una chiavetta" || fail 'the portable archive'
owned "$scratch/home"
folder="$scratch/home/una chiavetta/Vanzer"
while read -r picture; do [ -s "$folder/$picture" ] || fail "no $picture beside the manual"; done <"$scratch/pictures"
shows_window "$folder/vanzer" "$folder/Vanzer.mdb"
for file in LEGGIMI.txt LICENSE THIRD_PARTY.md esempi/sud.iei Scribolo; do
    [ -s "$folder/$file" ] || fail "no $file in the portable folder"
done
echo "package: $(wc -l <"$scratch/files") files came and went"
