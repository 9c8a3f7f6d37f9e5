#include "win/Com.h"

#include <windows.h>

#include <ole2.h>

// Never taken back: the thread is the program's only one, and the services keep objects until it ends.
void StartOle() { OleInitialize(nullptr); }
