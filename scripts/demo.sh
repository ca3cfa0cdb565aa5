#!/usr/bin/env bash
# Makes a demonstration theme with `zdt` under OUT, changes a few colours and a picture, and exports it.
#
#   demo.sh ZDT OUT
set -euo pipefail
zdt=$(realpath "$1")
mkdir -p "$2"
out=$(realpath "$2")
root=$out/store
name=Lagoon

rm -rf "$root" "$out/$name.zdt"
mkdir -p "$root"
zdt() { "$zdt" --root "$root" "$@"; }

echo "A new theme of generation 9: $root/res/$name"
zdt new "$name" --generation 9

echo "Its names, a few colours, and the square icon's picture as another application's icon:"
zdt set "$name" \
    title "$name" title-cn 潟湖 author "The demonstration" designer "The demonstration" \
    launcher/text/workspace_app_text_color "#e0fbfc" \
    contacts/text/call_log_primary_text_color "#12505b" \
    mms/text/message_pop_send_bg_color_theme_adapter "#b8f2e6" \
    systemui/text/qs_tile_tint_on "#00a8a8" \
    icons/system/static/com.android.browser.png "$root/res/$name/icons/com.zendro.android.compass.png"
zdt get "$name" launcher/text/workspace_app_text_color

echo "What is missing for an export:"
zdt check "$name" && echo "nothing"

zdt export "$name" "$out/$name.zdt"
echo "The package: $out/$name.zdt ($(stat -c %s "$out/$name.zdt") bytes)"
