#!/usr/bin/env bash
# The install as a user gets it: a fresh prefix, the desktop files through
# their validators, the manual page against the cli's own help, the installed
# heftarium-cli on the installed sample collection, and the installed program
# starting from a fresh home folder on the data it copies from the prefix.
# Arguments: build folder, scratch folder, version.
set -euo pipefail
build=$1 scratch=$2 version=$3
prefix=$scratch/prefix
fail() { echo "FEHLER: $*" >&2; exit 1; }

rm -rf "$scratch"
cmake --install "$build" --prefix "$prefix" >/dev/null
data=$prefix/share/Quintara/Heftarium
app=de.quintara.Heftarium

for file in bin/heftarium bin/heftarium-cli share/applications/$app.desktop \
            share/icons/hicolor/scalable/apps/$app.svg share/metainfo/$app.metainfo.xml \
            share/man/man1/heftarium-cli.1; do
  [ -s "$prefix/$file" ] || fail "nach der Installation fehlt $file"
done
for file in DBs/Heftarium.mdb DBs/VN-HR.mdb DBs/VN-TB.mdb "DBs/Valdorin Zyklus.mdb" DBs/Heftarium.marker \
            bm/Logo.svg bm/Splash.svg help/index.html; do
  [ -s "$data/$file" ] || fail "im Datenordner fehlt $file"
done
leftovers=$(find "$data" -type f -perm -u+x)
[ -z "$leftovers" ] || fail "Programme im Datenordner: $leftovers"

desktop-file-validate "$prefix/share/applications/$app.desktop"
appstreamcli validate --no-net "$prefix/share/metainfo/$app.metainfo.xml" >/dev/null ||
  appstreamcli validate --no-net "$prefix/share/metainfo/$app.metainfo.xml"
grep -q "version=\"$version\"" "$prefix/share/metainfo/$app.metainfo.xml" || fail "AppStream ohne Version $version"

cli=$prefix/bin/heftarium-cli
[ "$("$cli" --version)" = "heftarium-cli $version" ] || fail "heftarium-cli --version"
info=$("$cli" --db "$data/DBs/Heftarium.mdb" info)
grep -q '^Serie: Valdorin$' <<<"$info" && grep -q '^Einträge: [1-9]' <<<"$info" ||
  fail "info auf der installierten Sammlung: $info"

# Every command's help, folded into one line, stands in the rendered manual
# page as it is.
flat() { sed 's/\xe2\x88\x92/-/g; s/‐/-/g' | tr -s ' \n' '  '; }
manual=$(groff -k -man -Tutf8 -rLL=250n -rHY=0 -P-cbou "$prefix/share/man/man1/heftarium-cli.1" | flat)
commands=$("$cli" --help | sed -n 's/^  heftarium-cli \(--[a-z-]* DATEI \)\?\([a-z]\+\)\( .*\)\?$/\2/p' | sort -u)
[ -n "$commands" ] || fail "heftarium-cli --help nennt keinen Befehl"
for command in $commands; do
  text=$("$cli" "$command" --help | tail -n +2 | flat)
  [[ "$manual" == *"$text"* ]] || fail "die Manpage weicht von \"$command --help\" ab: $text"
done
[ "$("$prefix/bin/heftarium" --version)" = "Heftarium $version" ] || fail "heftarium --version"

# The first start from a fresh home copies the shipped data; the program
# must still run a moment after its start lines.
home=$scratch/home
userdata=$home/.local/share/Quintara/Heftarium
env -u XDG_DATA_HOME HOME="$home" XDG_DATA_DIRS="$prefix/share" QT_QPA_PLATFORM=offscreen \
  "$prefix/bin/heftarium" >"$scratch/heftarium.out" 2>&1 &
pid=$!
for _ in $(seq 300); do
  grep -qs "Programmdaten in $userdata" "$userdata/Heftarium.log" && break
  sleep 0.1
done
sleep 2
kill -0 "$pid" 2>/dev/null || fail "heftarium endete beim Start: $(cat "$scratch/heftarium.out")"
kill "$pid"
wait "$pid" 2>/dev/null || true
grep -qs "^V$version, " "$userdata/Heftarium.log" || fail "keine Startzeile mit V$version im Log"
[ -s "$userdata/DBs/Heftarium.marker" ] && [ -s "$userdata/DBs/Valdorin Zyklus.mdb" ] ||
  fail "die mitgelieferten Dateien wurden nicht kopiert"
echo "Installation in $prefix geprüft"
