#include "app/Com.h"

#include <windows.h>

#include <ole2.h>

void StartOle() {
    static const HRESULT started = OleInitialize(nullptr);
    static_cast<void>(started); // without it the services say so themselves
}
