#include "shell/cShellLink.h"

#include "app/Blanks.h"
#include "app/CodePage.h"
#include "app/SpecialFolders.h"
#include "win/Com.h"

#include <objbase.h>
#include <shlobj.h>

namespace {

// Of every text that a link holds, its NUL included; the shell cuts what is longer.
constexpr int kBufferLength = 255;

// Brings the link's stored data up to date. Without the other two the shell would look for a missing target
// on every drive and then ask the user.
constexpr DWORD kResolve = DWORD{SLR_UPDATE} | SLR_NO_UI | SLR_NOSEARCH;

// A link object with its two faces; null in `link` when the shell has none to give.
struct LinkObject {
    UniqueInterface<IShellLinkA> link;
    UniqueInterface<IPersistFile> file;

    LinkObject() {
        StartOle();
        if (SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkA,
                                       reinterpret_cast<void**>(link.Out()))))
            link.Get()->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(file.Out()));
    }
    explicit operator bool() const { return static_cast<bool>(file); }
};

using TextGetter = HRESULT (STDMETHODCALLTYPE IShellLinkA::*)(LPSTR, int);

std::optional<std::wstring> TextOf(IShellLinkA& link, TextGetter getter) {
    char buffer[kBufferLength] = "";
    if (FAILED((link.*getter)(buffer, kBufferLength))) return std::nullopt;
    return FromAnsi(buffer);
}

} // namespace

bool cShellLink::GetSystemFolderPath(HWND ownerWindow, std::int32_t folderId, std::wstring& path) const {
    const auto found = SpecialFolderPath(ownerWindow, folderId);
    if (!found) return false;
    std::wstring folder = TrimBlanks(*found);
    if (folder.ends_with(L'\\')) folder.pop_back(); // some versions leave one
    if (!folder.empty()) path = folder;
    return true;
}

bool cShellLink::CreateShellLink(const std::wstring& linkFile, const std::wstring& target,
                                 const std::wstring& workingFolder, const std::wstring& arguments,
                                 const std::wstring& iconFile, std::int32_t iconIndex,
                                 std::int32_t showCommand) const {
    if (linkFile.empty() || target.empty()) return false;
    const LinkObject object;
    if (!object) return false;
    IShellLinkA& link = *object.link.Get();
    // With another character in its place a path would lead nowhere, or somewhere else.
    const auto apply = [](const std::wstring& text, auto set) {
        return text.empty() || (!FirstNotInAnsi(text) && SUCCEEDED(set(ToAnsi(text).c_str())));
    };
    // Not one call is asked for S_OK: a missing target gives S_FALSE, and its shortcut may well be made
    // before it.
    return apply(target, [&](const char* text) { return link.SetPath(text); }) &&
           apply(workingFolder, [&](const char* text) { return link.SetWorkingDirectory(text); }) &&
           apply(arguments, [&](const char* text) { return link.SetArguments(text); }) &&
           apply(iconFile, [&](const char* text) { return link.SetIconLocation(text, iconIndex); }) &&
           SUCCEEDED(link.SetDescription("")) && SUCCEEDED(link.SetShowCmd(showCommand)) &&
           SUCCEEDED(link.Resolve(nullptr, kResolve)) &&
           SUCCEEDED(object.file.Get()->Save(linkFile.c_str(), FALSE));
}

// All or nothing: a property that could not be read would look like an empty one of the link's own.
std::optional<ShellLinkInfo> cShellLink::GetShellLinkInfo(const std::wstring& linkFile) const {
    if (linkFile.empty()) return std::nullopt;
    const LinkObject object;
    if (!object || FAILED(object.file.Get()->Load(linkFile.c_str(), STGM_READ))) return std::nullopt;
    IShellLinkA& link = *object.link.Get();
    char buffer[kBufferLength] = "";
    ShellLinkInfo info;
    if (FAILED(link.GetPath(buffer, kBufferLength, nullptr, 0))) return std::nullopt;
    info.target = FromAnsi(buffer);
    const auto workingFolder = TextOf(link, &IShellLinkA::GetWorkingDirectory);
    const auto arguments = TextOf(link, &IShellLinkA::GetArguments);
    const auto description = TextOf(link, &IShellLinkA::GetDescription);
    if (!workingFolder || !arguments || !description) return std::nullopt;
    info.workingFolder = *workingFolder;
    info.arguments = *arguments;
    info.description = *description;
    char iconFile[kBufferLength] = "";
    int iconIndex = 0;
    int showCommand = 0;
    if (FAILED(link.GetHotkey(&info.hotKey)) ||
        FAILED(link.GetIconLocation(iconFile, kBufferLength, &iconIndex)) ||
        FAILED(link.GetShowCmd(&showCommand)))
        return std::nullopt;
    info.iconFile = FromAnsi(iconFile);
    info.iconIndex = iconIndex;
    info.showCommand = showCommand;
    return info;
}
