#include "benchmark/BareWindow.h"

void AddControls(HWND) {}
