#!/usr/bin/env bash
# Lays out a tree that runs from a stick, on this kind of system and later ones: programs, maps, Qt with its plugins and
# the libraries that they need, with the licences of those. Settings and data of the terminal stay in bin/data in there.
#     packaging/lay_out_portable.sh BUILD DIR
# A tree that was laid out before is renewed; its settings and data stay.
set -euo pipefail

build=$(cd "$1" && pwd)
directory=$2
mark=licences/THIRD-PARTY-NOTICES.md
if [ -e "$directory" ] && [ -n "$(ls -A "$directory")" ] && [ ! -e "$directory/$mark" ]; then
    echo "$directory is not empty, and no portable tree." >&2
    exit 1
fi
mkdir -p "$directory"
cd "$directory"
rm -rf documents lib licences plugins share translations
mkdir -p bin/data lib plugins licences

# The programs as they are built: those that are installed no longer look for libraries beside themselves.
cmake --install "$build" --component programs --prefix "$PWD" >/dev/null
for program in bin/*; do
    [ -f "$program" ] && [ -f "$build/$program" ] || continue
    install -m 755 "$build/$program" "$program"
    strip "$program"
done
mv share/doc/vyxdisplay/THIRD-PARTY-NOTICES.md "$mark"
mv share/doc/vyxdisplay documents
find share -mindepth 1 -maxdepth 1 ! -name vyxdisplay -exec rm -r {} +

query=$(command -v qtpaths6 || command -v qmake6 || echo /usr/lib/qt6/bin/qtpaths)
qt() { "$query" --query "$1" 2>/dev/null || "$query" -query "$1"; } # as qtpaths or as qmake takes it
plugins=$(qt QT_INSTALL_PLUGINS)
for kind in iconengines imageformats platforminputcontexts platforms sqldrivers/libqsqlite.so styles tls \
    wayland-decoration-client wayland-graphics-integration-client wayland-shell-integration xcbglintegrations; do
    [ -e "$plugins/$kind" ] || continue
    mkdir -p "plugins/$(dirname "$kind")"
    cp -rL "$plugins/$kind" "plugins/$kind"
done
# The toolkit's own texts in other languages.
mkdir translations
cp "$(qt QT_INSTALL_TRANSLATIONS)"/qtbase_*.qm translations 2>/dev/null || true
# Reference systems of imported maps, which their library looks for beside itself.
if [ -e /usr/share/proj/proj.db ]; then
    install -D -m 644 -t share/proj /usr/share/proj/proj.db
fi
printf '[Paths]\nPrefix=..\nPlugins=plugins\n' >bin/qt.conf

# Left to the system: the C and C++ libraries, what belongs to its screen and its driver, and what reads its fonts.
system='^(ld-linux.*|lib(c|m|dl|rt|pthread|resolv|util|nsl|anl|stdc\+\+|gcc_s|GL|GLX|EGL|OpenGL|GLESv2|GLdispatch|drm|gbm|'
system+='glapi|X11|X11-xcb|xcb|wayland-client|wayland-egl|fontconfig|freetype|expat|uuid))\.so'
find bin plugins -type f \( -name '*.so' -o -perm -u+x \) -print0 | xargs -0 ldd 2>/dev/null |
    sed -n 's/^\t\(\S*\) => \(\/\S*\) .*/\1 \2/p' | sort -u | grep -vE "$system" |
    while read -r name path; do
        [ -e "lib/$name" ] || cp -L "$path" "lib/$name"
        # Whose it is; files of merged directories are known by their old place.
        package=$(dpkg-query -S "$(readlink -f "$path")" "${path#/usr}" "$path" 2>/dev/null | head -1 | cut -d: -f1) || true
        [ -z "$package" ] || cp -Ln "/usr/share/doc/$package/copyright" "licences/$package" 2>/dev/null || true
    done

cat >vyxdisplay <<'END'
#!/bin/sh
# The terminal, wherever this tree stands.
exec "$(dirname "$(readlink -f "$0")")/bin/vyxdisplay" "$@"
END
chmod 755 vyxdisplay
echo "$PWD: $(du -sh . | cut -f1), of it libraries $(du -sh lib | cut -f1). Start $PWD/vyxdisplay."
