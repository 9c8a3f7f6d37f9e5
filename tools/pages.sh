#!/bin/bash
# Pictures every page and window anew for docs/pages: at 96 and 144 DPI and in a high-contrast scheme.
# The release program, icons, samples and the tools must have been built.
set -euo pipefail
cd "$(dirname "$0")/.."

rm -f build/pages/*.png
for dpi in 96 144; do
    tools/tour.sh --dpi "$dpi"
    tools/tour.sh --dpi "$dpi" /NDW
    tools/tour.sh --dpi "$dpi" --windows
done
tools/tour.sh --contrast
tools/tour.sh --contrast /NDW
tools/tour.sh --contrast --windows
mkdir -p docs/pages
rm -f docs/pages/*.png
cp build/pages/*.png docs/pages/
