# shellcheck shell=bash
# Laying out and packing what is handed over; to be sourced from the root of the repository.

# The version number, as CMake read it when it configured the release build.
product_version() {
    sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' build/release/CMakeCache.txt
}

# Seconds since 1970 of the last commit, or of SOURCE_DATE_EPOCH where there is no history.
source_time() {
    git log -1 --format=%ct 2> /dev/null || echo "${SOURCE_DATE_EPOCH:-946684800}"
}

# lay_out_package BUILD FOLDER   copies what is handed over from a build folder into an empty FOLDER
lay_out_package() {
    local build=$1 folder=$2
    rm -rf "$folder"
    mkdir -p "$folder/Icons" "$folder/Samples"
    cp "$build/VWizard.exe" "$folder/"
    cp "$build"/Icons/*.ICO "$folder/Icons/"
    find "$build/Samples" -iname '*.dcp' -exec cp -t "$folder/Samples" {} +
    sed "s/@VERSION@/$(product_version)/; s/\$/\r/" docs/administrators.txt > "$folder/README.txt"
}

# pack BUILD FOLDER ZIP   the same, packed; the bytes depend on the contents and the commit alone
pack() {
    local build=$1 folder=$2 zip_file=$3
    lay_out_package "$build" "$folder"
    # The archive holds local times and permissions: both must be the same on every computer.
    find "$folder" -type f -exec chmod 644 {} + -exec touch -d "@$(source_time)" {} +
    rm -f "$zip_file"
    (cd "$folder" && find . -type f | sed 's|^\./||' | LC_ALL=C sort | TZ=UTC zip -X -D -9 -q "$zip_file" -@)
}
