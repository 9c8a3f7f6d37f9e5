#!/bin/bash
# Walks every page of a wizard under Xvfb and leaves one picture a page in build/pages.
#   tools/tour.sh [--dpi N] [--contrast] [--windows] [arguments of the wizard]
#   --contrast   in a high-contrast scheme
#   --windows    what the walk does not meet: permission page, message window, choice dialog
# The release program and the tools must have been built.
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/prefix.sh
source tools/suite.sh

dpi=96 contrast= windows=
while :; do
    case ${1:-} in
    --dpi) dpi=$2 && shift ;;
    --contrast) contrast=-contrast ;;
    --windows) windows=yes ;;
    *) break ;;
    esac
    shift
done
work=build/tour-$dpi$contrast
mkdir -p build/pages "$work"
rm -f "$work/display" "$work"/*.bmp

Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3> "$work/display" 2> /dev/null &
server=$!
stop() {
    end_prefix
    kill "$server" 2> /dev/null || true
}
trap stop EXIT
until [ -s "$work/display" ]; do
    kill -0 "$server"
    sleep 0.05
done
export DISPLAY=:$(cat "$work/display")

# White text on black, with the colors of the scheme of that name that comes with the system.
contrast_colors() {
    local name
    printf 'REGEDIT4\n\n[HKEY_CURRENT_USER\\Control Panel\\Colors]\n'
    for name in ButtonFace Window Menu MenuBar Scrollbar InfoWindow AppWorkSpace HilightText; do
        echo "\"$name\"=\"0 0 0\""
    done
    for name in WindowText ButtonText MenuText ButtonDkShadow WindowFrame InfoText TitleText; do
        echo "\"$name\"=\"255 255 255\""
    done
    echo '"ButtonShadow"="128 128 128"'
    echo '"ButtonHilight"="192 192 192"'
    echo '"ButtonLight"="192 192 192"'
    echo '"GrayText"="63 242 63"'
    echo '"HotTrackingColor"="255 255 0"'
    echo '"Hilight"="26 235 255"'
    echo '"ActiveTitle"="55 0 110"'
    echo '"GradientActiveTitle"="55 0 110"'
}

use_prefix "tour-$dpi$contrast" x11
wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$dpi" /f > /dev/null 2>&1
if [ -n "$contrast" ]; then
    contrast_colors > "$work/scheme.reg"
    wine reg import "$(windows_path "$work/scheme.reg")" > /dev/null 2>&1
    wine reg add 'HKCU\Software\Microsoft\Windows\CurrentVersion\ThemeManager' /v ThemeActive /d 0 /f > /dev/null 2>&1
fi
# On the prefix's own drive, so that a page which names a path shows one that a reader might have.
suite="$WINEPREFIX/drive_c/Varnel DNC"
lay_out_suite "$suite"
register_suite "$suite"

message="<b>The CNC does not answer.</b><br>|No character has arrived for <i>30 seconds</i>.||\
<u>Check that the cable is connected.</u>|<u>Check that the CNC is ready to receive.</u>||\
<l>COM1, 4800 baud, 7 data bits, even parity</l>"

tour() { wine build/release/tour.exe "$@" || status=1; }
status=0
pictures=$(windows_path "$work") program=$(windows_path "$suite")\\VWizard.exe
if [ -z "$windows" ]; then
    tour "$pictures" "$program" "$@"
else
    dialogs=$(windows_path build/release/dialogs.exe)
    tour --one message "$pictures" "$dialogs" message 5 1 "" "$message"
    tour --one choice "$pictures" "$dialogs" choice 0
    rm "$suite/Settings/VarnelDnc.ini"
    tour --one permission "$pictures" "$program" "$@"
fi

suffix=$contrast
[ "$dpi" = 96 ] || suffix=-${dpi}dpi$contrast
for bitmap in "$work"/*.bmp; do
    [ -e "$bitmap" ] || continue
    /usr/bin/convert "$bitmap" -strip +dither -colors 250 -define png:compression-level=9 \
        -define png:compression-filter=0 "PNG8:build/pages/$(basename "$bitmap" .bmp)$suffix.png"
done
echo "Pictures of the pages: build/pages"
exit "$status"
