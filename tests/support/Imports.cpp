#include "tests/support/Imports.h"

#include <windows.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

template <class Type> Type* At(std::uintptr_t offset) {
    return reinterpret_cast<Type*>(reinterpret_cast<std::uintptr_t>(GetModuleHandleW(nullptr)) + offset);
}

void** EntryOf(const std::string& function) {
    const auto* headers =
        At<IMAGE_NT_HEADERS>(static_cast<std::uintptr_t>(At<IMAGE_DOS_HEADER>(0)->e_lfanew));
    const auto& imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (auto* library = At<IMAGE_IMPORT_DESCRIPTOR>(imports.VirtualAddress); library->Name; ++library) {
        auto* name = At<IMAGE_THUNK_DATA>(library->OriginalFirstThunk);
        auto* entry = At<IMAGE_THUNK_DATA>(library->FirstThunk);
        for (; name->u1.AddressOfData; ++name, ++entry)
            if (!IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal) &&
                At<IMAGE_IMPORT_BY_NAME>(name->u1.AddressOfData)->Name == function)
                return reinterpret_cast<void**>(&entry->u1.Function);
    }
    throw std::runtime_error(function + " is not imported");
}

void* Exchange(void** entry, void* function) {
    DWORD protection = 0;
    VirtualProtect(entry, sizeof *entry, PAGE_READWRITE, &protection);
    void* const before = std::exchange(*entry, function);
    VirtualProtect(entry, sizeof *entry, protection, &protection);
    return before;
}

} // namespace

ReplacedImport::ReplacedImport(const char* function, void* replacement)
    : entry_(EntryOf(function)), original_(Exchange(entry_, replacement)) {}

ReplacedImport::~ReplacedImport() { Exchange(entry_, original_); }
