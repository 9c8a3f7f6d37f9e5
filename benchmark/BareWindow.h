#pragma once

#include <windows.h>

// What stands in the bare window before it is shown: nothing, or the controls of the wizard's first page.
void AddControls(HWND window);
