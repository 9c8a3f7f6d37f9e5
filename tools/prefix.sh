# shellcheck shell=bash
# Wine prefixes for one job each; to be sourced from the root of the repository.
#   use_prefix NAME null   a fresh prefix build/wine/NAME without any display (for tests)
#   use_prefix NAME x11    the same for Xvfb
#   use_prefix NAME desk   the same for a person's display
#   end_prefix             stops the Wine server of the prefix in use
# use_prefix exports everything that wine needs; the caller must call end_prefix.

wine_root=$PWD/build/wine

# Settings that keep Wine quiet, alone and the same on every machine.
export_wine() {
    export XAUTHORITY=${XAUTHORITY:-${HOME:-/root}/.Xauthority}
    export WINEPREFIX=$1 HOME=$1/home
    export WINEARCH=win32 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
    export LANG=C.UTF-8 LC_ALL=C.UTF-8
    mkdir -p "$HOME"
}

# Makes build/wine/template once. Its folders are real ones, so that a copy shares nothing.
make_template() (
    mkdir -p "$wine_root"
    exec 9> "$wine_root/lock"
    flock 9
    [ -e "$wine_root/template/ready" ] && exit 0
    rm -rf "$wine_root/template"
    mkdir "$wine_root/template"
    export_wine "$wine_root/template"
    unset DISPLAY WAYLAND_DISPLAY
    # Nothing that outlives this function may keep the lock.
    wineboot -u > /dev/null 2>&1 9>&-
    # The buttons of title bars are characters of the one font, bullets of the other.
    cp /usr/share/wine/fonts/marlett.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
    /usr/bin/python3 -B tools/symbol_font.py "$WINEPREFIX/drive_c/windows/Fonts/symbol.ttf"
    wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f > /dev/null 2>&1 9>&-
    wineserver -k 9>&- || true
    wineserver -w 9>&-
    find "$WINEPREFIX/drive_c/users" -type l | while read -r link; do
        rm "$link"
        mkdir -p "$link"
    done
    touch "$WINEPREFIX/ready"
)

use_prefix() {
    make_template
    local prefix=$wine_root/$1
    if [ -d "$prefix" ]; then
        WINEPREFIX=$prefix wineserver -k 2> /dev/null || true
        rm -rf "$prefix"
    fi
    cp -a "$wine_root/template" "$prefix"
    export_wine "$prefix"
    case $2 in
    null)
        unset DISPLAY WAYLAND_DISPLAY
        wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f > /dev/null 2>&1
        wineserver -k || true
        ;;
    x11) wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f > /dev/null 2>&1 ;;
    esac
}

end_prefix() {
    wineserver -k 2> /dev/null || true
    wineserver -w
}
