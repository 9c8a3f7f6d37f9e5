# shellcheck shell=bash
# Lays out the demonstration suite; to be sourced from the root after tools/prefix.sh.
#   lay_out_suite FOLDER    the wizard, icons, samples, stand-ins and settings, all below FOLDER
#   register_suite FOLDER   tells the prefix in use about it: settings folder, .chm and .pdf files

companions=(VConfig.exe VDNAV.EXE VLinkMgr.exe VFileMgr.exe VTerminal.exe VRemote.EXE HH.exe DocViewer.exe)
documents=(QuickTour.chm LinkCheck.chm CharCodes.chm TechNotes.chm "Setup Reference.pdf"
           "Varnel DNC Setup Reference.pdf" "Quick Tour Guide.pdf" "Operator Guide.pdf")

lay_out_suite() {
    local suite=$1 name
    mkdir -p "$suite/Icons" "$suite/Samples" "$suite/Settings"
    cp build/release/VWizard.exe "$suite/"
    for name in "${companions[@]}"; do cp build/release/standin.exe "$suite/$name"; done
    for name in "${documents[@]}"; do
        printf 'Placeholder of the demonstration suite.\r\n' > "$suite/$name"
    done
    find build/release/Icons -iname '*.ico' -exec cp -t "$suite/Icons" {} + 2> /dev/null || true
    find build/release/Samples -iname '*.dcp' -exec cp -t "$suite/Samples" {} + 2> /dev/null || true
    if [ ! -e "$suite/Settings/VarnelDnc.ini" ]; then
        printf '[General]\r\nSecurity=0\r\n\r\n[Install]\r\nOptions=1\r\n' > "$suite/Settings/VarnelDnc.ini"
    fi
}

# C: is the prefix in use; Z: of every prefix is the root of this computer's files.
windows_path() {
    local path drive
    path=$(realpath "$1")
    drive=$(realpath "$WINEPREFIX/drive_c")
    case $path in
    "$drive"/*) path=C:${path#"$drive"} ;;
    *) path=Z:$path ;;
    esac
    printf '%s' "${path//\//\\}"
}

register_suite() {
    local suite
    suite=$(windows_path "$1")
    wine reg add 'HKCU\SOFTWARE\Varnel\Varnel DNC\Paths' /v SettingsPath /d "$suite\\Settings" /f
    wine reg add 'HKCR\.chm' /ve /d VarnelDocument /f
    wine reg add 'HKCR\.pdf' /ve /d VarnelDocument /f
    wine reg add 'HKCR\VarnelDocument\shell\open\command' /ve \
        /d "\"$suite\\DocViewer.exe\" \"%1\"" /f
} > /dev/null 2>&1
