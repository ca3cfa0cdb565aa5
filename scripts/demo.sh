#!/usr/bin/env bash
# Walks through the designer's real window on a screen in memory: makes a demonstration theme, changes a colour and a
# picture, mends problems and exports it. The package and screenshots of every page, in both languages, come to stand
# under OUT.
#
#   demo.sh PROGRAM_FOLDER OUT
set -euo pipefail
programs=$(realpath "$1")
mkdir -p "$2"
out=$(realpath "$2")
name=Lagoon

rm -rf "$out/store" "$out/$name.zdt" "$out"/*.png
echo "Walking through the window (a minute) ..."
runtime=$(mktemp -d)
trap 'rm -rf "$runtime"' EXIT
export XDG_RUNTIME_DIR=$runtime
xvfb-run -a -s "-screen 0 1280x775x24" bash -c '
    openbox >/dev/null 2>&1 &
    sleep 0.5
    "$0/zdt_window_tour" "$1"' "$programs" "$out"

echo "What is missing for an export:"
"$programs/zdt" --root "$out/store" check "$name" && echo "nothing"
echo "The package: $out/$name.zdt ($(stat -c %s "$out/$name.zdt") bytes)"
echo "Screenshots: $(ls "$out"/*.png | wc -l) in $out"
