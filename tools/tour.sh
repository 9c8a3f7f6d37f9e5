#!/bin/bash
# Walks every page of a wizard under Xvfb and leaves one picture a page in build/pages.
#   tools/tour.sh [--dpi N] [arguments of the wizard]
# The release program and the tools must have been built.
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/prefix.sh
source tools/suite.sh

dpi=96
if [ "${1:-}" = --dpi ]; then
    dpi=$2
    shift 2
fi
suite=build/suite
work=build/tour-$dpi
mkdir -p build/pages "$work"
rm -f "$work/display" "$work"/*.bmp "$suite/Settings/Tour Mill.DCP"
lay_out_suite "$suite"

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

use_prefix "tour-$dpi" x11
wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$dpi" /f > /dev/null 2>&1
register_suite "$suite"
status=0
wine build/release/tour.exe "$(windows_path "$suite")\\VWizard.exe" "$(windows_path "$work")" "$@" || status=$?

suffix=
[ "$dpi" = 96 ] || suffix=-${dpi}dpi
for bitmap in "$work"/*.bmp; do
    [ -e "$bitmap" ] || continue
    /usr/bin/convert "$bitmap" "build/pages/$(basename "$bitmap" .bmp)$suffix.png"
done
echo "Pictures of the pages: build/pages"
exit "$status"
