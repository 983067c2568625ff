#!/bin/bash
# SPDX-License-Identifier: MIT
# What desktops and hosts read about the programs is well formed, by their own validators.
set -u
sources=$1
built=$2
failed=0
check() {
    local said
    if ! said=$("$@" 2>&1) || [ -n "$said" ]; then
        printf 'FAILED: %s\n%s\n' "$*" "$said" >&2
        failed=1
    fi
}
validated_appstream() {
    appstreamcli validate --no-net "$1" >"$TMPDIR/said" || cat "$TMPDIR/said"
}

for entry in "$built"/*.desktop; do
    check desktop-file-validate --no-hints "$entry"
done
cd "$sources"
for template in *.desktop.in *.xml.in plasma/*.in; do
    translated=$(grep -cE '\[[a-zA-Z_]+\](=|":)|xml:lang=' "$built/${template%.in}")
    check [ "$translated" -eq $((10 * $(grep -c 'tr("' "$template"))) ]
done
check xmllint --noout tamsel-clock.xml
check python3 -c 'import json, sys; json.load(open(sys.argv[1]))' "$built/plasma/metadata.json"
check validated_appstream "$built/org.tamsel.clock.metainfo.xml"
for page in man/*; do
    check groff -mdoc -Tutf8 -wall -z "$page"
done
check bash -n "$sources/completions/tamsel-clock.bash"
check bash -n "$sources/completions/pelko-location.bash"
for icon in "$sources"/icons/*.svg; do
    check xmllint --noout "$icon"
done
exit $failed
